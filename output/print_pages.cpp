#include "output/print_pages.h"

#include <string_view>

#include "core/text/number_text.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

constexpr auto gap = "     ";
constexpr int maxLines = 56;          // per page of rows; the count starts at 2
constexpr int lastTableLine = 55;     // per page of the balance table
constexpr std::size_t labelled = 10;  // characters of a row label, repeated in each strip
constexpr std::size_t landscapeStrip = 84;
constexpr std::size_t uprightStrip = 56;

/// Prints line by line on pages.
class Pen {
  public:
    explicit Pen(std::vector<PrintedPage>& pages) : pages_(pages) { pages_.emplace_back(); }

    void turn(bool landscape) { pages_.back().landscape = landscape; }

    void toCorner() { y_ = printCorner; }

    void newPage() {
        const bool landscape = pages_.back().landscape;
        pages_.push_back({landscape, {}});
        toCorner();
    }

    void print(std::string text) {
        pages_.back().lines.push_back({printCorner, y_, std::move(text)});
        y_ += printLineHeight;
    }

  private:
    std::vector<PrintedPage>& pages_;
    double y_ = printCorner;
};

class Print {
  public:
    Print(const PrintSource& source, std::vector<PrintedPage>& pages)
        : source_(source), pen_(pages) {}

    template <class Row>
    void list(const char* title, const std::vector<Row>& rows) {
        pen_.print(title);
        NewLine(LineCount_);
        for (const Row& row : rows) {
            pen_.print(textOf(row));
            NewLine(LineCount_);
        }
    }

    void heading() {
        pen_.print(source_.headingLine);
        NewLine(LineCount_);
    }

    void balanceTable(bool landscape) {
        pen_.turn(landscape);
        const auto width = landscape ? landscapeStrip : uprightStrip;
        const auto& text = source_.balanceTable;
        const auto pages = stripCount(FieldReader(text).nextLine().size(), width);
        for (std::size_t page = 1; page <= pages; ++page) {
            strip(width, page,
                  "Trabeon Results    Page " + number(page) + " of " + number(pages) +
                      (source_.tableRemark.empty() ? "" : gap + source_.tableRemark));
            pen_.newPage();
        }
    }

    void newPage() { pen_.newPage(); }

  private:
    void NewLine(int& LineCount) {
        if (++LineCount <= maxLines)
            return;
        pen_.newPage();
        LineCount = 2;
        pen_.print(source_.headingLine);
        NewLine(LineCount);
    }

    void beginStrip(const std::string& pageLine) {
        pen_.toCorner();
        LineCount_ = 2;
        pen_.print(source_.headingLine);
        pen_.print(pageLine);
    }

    void strip(std::size_t width, std::size_t page, const std::string& pageLine) {
        beginStrip(pageLine);
        for (FieldReader reader(source_.balanceTable); !reader.atEnd();) {
            const auto line = reader.nextLine();
            const auto from = std::min((page - 1) * width + labelled, line.size());
            pen_.print(std::string(line.substr(0, labelled)) +
                       std::string(line.substr(from, width)));
            if (++LineCount_ < lastTableLine)
                continue;
            pen_.newPage();
            beginStrip(pageLine);
        }
    }

    template <class Row>
    static std::string textOf(const Row& row) {
        std::string text;
        for (const auto field : Row::fields)
            text += (field == Row::fields[0] ? "" : gap) + readable(row.*field);
        return text;
    }

    static std::string number(std::size_t value) { return generatedText(value); }

    const PrintSource& source_;
    Pen pen_;
    int LineCount_ = 2;
};

}  // namespace

std::string printHeadingLine(const std::string& project, const std::string& designer,
                             const std::string& date, const std::string& time) {
    return readable(project) + gap + "Designer:" + readable(designer) + gap + date + gap + time;
}

std::size_t stripCount(std::size_t lineLength, std::size_t width) {
    const auto cells = lineLength > labelled ? lineLength - labelled : 0;
    return std::max<std::size_t>(1, (cells + width - 1) / width);
}

std::vector<PrintedPage> printedPages(const PrintSource& source, const OutputKinds& kinds,
                                      bool landscape) {
    std::vector<PrintedPage> pages;
    Print print(source, pages);
    if (kinds.joints) {
        print.heading();
        print.list("Joint Data", source.joints);
    }
    if (kinds.members) {
        print.heading();
        print.list("Member Data", source.members);
    }
    if (kinds.loads) {
        print.heading();
        print.list("Point Load Data", source.points);
        print.list("Uniformly Distributed Load Data", source.udls);
    }
    print.newPage();
    if (kinds.table)
        print.balanceTable(landscape);
    if (pages.back().lines.empty())
        pages.pop_back();
    return pages;
}

}  // namespace trabeon
