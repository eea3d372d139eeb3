#include "output/docx_body.h"

#include <QFontMetricsF>
#include <QHash>
#include <algorithm>

#include "core/text/readable.h"
#include "output/docx_pictures.h"
#include "output/docx_xml.h"
#include "output/table_layout.h"

namespace trabeon {
namespace {

/// Measures the widths of texts in type of 1 point. Keeps each result.
class Measure {
  public:
    double operator()(const std::string& text, const TextStyle& style) {
        auto& known = style.bold ? bold_ : plain_;
        const auto key = QString::fromStdString(readable(text));
        if (const auto found = known.constFind(key); found != known.constEnd())
            return *found;
        QFont font("Liberation Serif");
        font.setPixelSize(size);
        font.setBold(style.bold);
        return *known.insert(key, QFontMetricsF(font).horizontalAdvance(key) / size);
    }

  private:
    static constexpr int size = 64;
    QHash<QString, double> plain_, bold_;
};

bool hasText(const Block& block) {
    const auto* paragraph = std::get_if<Paragraph>(&block);
    return paragraph != nullptr && !paragraph->runs.empty();
}

QString pointsAsTwips(double points) {
    return whole(points * twipsPerPoint);
}

class Body {
  public:
    explicit Body(const Document& document) : document_(document), xml_(bytes_) {}

    QByteArray made() {
        {
            const QString schemas = "http://schemas.openxmlformats.org/";
            const auto root = xml_.element(
                "w:document", {{"xmlns:w", schemas + "wordprocessingml/2006/main"},
                               {"xmlns:r", schemas + "officeDocument/2006/relationships"},
                               {"xmlns:wp", schemas + "drawingml/2006/wordprocessingDrawing"},
                               {"xmlns:a", schemas + "drawingml/2006/main"},
                               {"xmlns:pic", schemas + "drawingml/2006/picture"}});
            const auto body = xml_.element("w:body");
            for (std::size_t i = 0; i < document_.blocks.size(); ++i)
                block(i);
            section();
        }
        return bytes_;
    }

  private:
    [[nodiscard]] double pageWidth() const {
        return document_.page.width - document_.page.left - document_.page.right;
    }
    [[nodiscard]] double pageHeight() const {
        return document_.page.height - document_.page.top - document_.page.bottom;
    }

    void block(std::size_t i) {
        if (const auto* table = std::get_if<DocumentTable>(&document_.blocks[i]))
            write(*table);
        else
            write(std::get<Paragraph>(document_.blocks[i]), isTitle(i));
    }

    /// Text outside of tables is a title. It and the empty line below it stay on the page of the
    /// next block.
    [[nodiscard]] bool isTitle(std::size_t i) const {
        const auto* paragraph = std::get_if<Paragraph>(&document_.blocks[i]);
        if (paragraph == nullptr || !paragraph->pictures.empty())
            return false;
        return !paragraph->runs.empty() || (i > 0 && hasText(document_.blocks[i - 1]));
    }

    void write(const Paragraph& paragraph, bool isTitle) {
        const auto written = xml_.element("w:p");
        const auto places = placePictures(paragraph, pageWidth(), pageHeight());
        {
            const auto properties = xml_.element("w:pPr");
            if (isTitle)
                xml_.empty("w:keepNext");
            if (!places.empty())
                tabStops(places);
        }
        for (const auto& run : paragraph.runs)
            write(run, run.style.points);
        for (const auto& place : places) {
            const auto run = xml_.element("w:r");
            if (place.left > 0)
                xml_.empty("w:tab");
            writePicture(xml_, place, ++pictures_);
        }
    }

    void tabStops(const std::vector<PlacedPicture>& places) {
        const auto tabs = xml_.element("w:tabs");
        for (const auto& place : places)
            xml_.empty("w:tab", {{"w:val", "left"}, {"w:pos", pointsAsTwips(place.left)}});
    }

    void write(const TextRun& run, double points) {
        const auto written = xml_.element("w:r");
        {
            const auto properties = xml_.element("w:rPr");
            const auto face = QString::fromStdString(run.style.face);
            xml_.empty("w:rFonts", {{"w:ascii", face}, {"w:hAnsi", face}, {"w:cs", face}});
            if (run.style.bold)
                xml_.empty("w:b");
            fontSize(points);
            if (run.style.underline)
                xml_.empty("w:u", {{"w:val", "single"}});
        }
        const auto text = xml_.element("w:t", {{"xml:space", "preserve"}});
        xml_.characters(QString::fromStdString(readable(run.text)));
    }

    void fontSize(double points) { xml_.empty("w:sz", {{"w:val", whole(points * 2)}}); }

    void write(const DocumentTable& table) {
        const auto layout = layOut(table, pageWidth(), std::ref(measure_));
        for (std::size_t i = 0; i < layout.strips.size(); ++i) {
            if (i > 0)
                write(Paragraph{}, false);  // a word processor would join adjacent tables
            strip(table, layout.strips[i], layout.points);
        }
    }

    void strip(const DocumentTable& table, const TableStrip& strip, double points) {
        const auto written = xml_.element("w:tbl");
        tableProperties();
        tableGrid(strip);
        for (std::size_t r = 0; r < table.rows.size(); ++r) {
            const auto row = xml_.element("w:tr");
            if (r == 0 && table.headed) {
                const auto properties = xml_.element("w:trPr");
                xml_.empty("w:tblHeader");
            }
            for (std::size_t c = 0; c < strip.columns.size(); ++c)
                cell(table.rows[r][strip.columns[c]], strip.widths[c], points);
        }
    }

    void tableProperties() {
        const auto properties = xml_.element("w:tblPr");
        {
            const auto borders = xml_.element("w:tblBorders");
            for (const char* side :
                 {"w:top", "w:left", "w:bottom", "w:right", "w:insideH", "w:insideV"})
                xml_.empty(
                    side,
                    {{"w:val", "single"}, {"w:sz", "4"}, {"w:space", "0"}, {"w:color", "808080"}});
        }
        xml_.empty("w:tblLayout", {{"w:type", "fixed"}});
        const auto margins = xml_.element("w:tblCellMar");
        for (const char* side : {"w:left", "w:right"})
            width(side, cellMargin);
    }

    void tableGrid(const TableStrip& strip) {
        const auto grid = xml_.element("w:tblGrid");
        for (const double each : strip.widths)
            xml_.empty("w:gridCol", {{"w:w", pointsAsTwips(each)}});
    }

    void width(const char* element, double points) {
        xml_.empty(element, {{"w:w", pointsAsTwips(points)}, {"w:type", "dxa"}});
    }

    void cell(const Cell& cell, double cellWidth, double points) {
        const auto written = xml_.element("w:tc");
        {
            const auto properties = xml_.element("w:tcPr");
            width("w:tcW", cellWidth);
        }
        const auto paragraph = xml_.element("w:p");
        if (cell.empty())
            emptyCell(points);
        for (const auto& run : cell)
            write(run, std::min(run.style.points, points));
    }

    /// Sets the type size of the paragraph mark. It alone sets the height of an empty cell.
    void emptyCell(double points) {
        const auto paragraph = xml_.element("w:pPr");
        const auto mark = xml_.element("w:rPr");
        fontSize(points);
    }

    void section() {
        const PageSetup& page = document_.page;
        const auto properties = xml_.element("w:sectPr");
        xml_.empty("w:pgSz", {{"w:w", pointsAsTwips(page.width)},
                              {"w:h", pointsAsTwips(page.height)},
                              {"w:orient", "landscape"}});
        xml_.empty("w:pgMar", {{"w:top", pointsAsTwips(page.top)},
                               {"w:right", pointsAsTwips(page.right)},
                               {"w:bottom", pointsAsTwips(page.bottom)},
                               {"w:left", pointsAsTwips(page.left)},
                               {"w:header", pointsAsTwips(36)},
                               {"w:footer", pointsAsTwips(36)},
                               {"w:gutter", "0"}});
    }

    const Document& document_;
    QByteArray bytes_;
    DocxXml xml_;
    Measure measure_;
    int pictures_ = 0;
};

}  // namespace

QByteArray docxBody(const Document& document) {
    return Body(document).made();
}

std::vector<const DocumentPicture*> picturesOf(const Document& document) {
    std::vector<const DocumentPicture*> pictures;
    for (const auto& block : document.blocks)
        if (const auto* paragraph = std::get_if<Paragraph>(&block))
            for (const auto& picture : paragraph->pictures)
                pictures.push_back(&picture);
    return pictures;
}

}  // namespace trabeon
