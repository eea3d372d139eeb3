#include "output/docx_body.h"

#include <QFontMetricsF>
#include <QHash>
#include <QXmlStreamWriter>
#include <algorithm>
#include <cmath>

#include "core/text/readable.h"
#include "output/table_layout.h"

namespace trabeon {
namespace {

constexpr double twipsPerPoint = 20;
constexpr double emuPerPoint = 12700;
constexpr double gapBetweenPictures = 6;  // points
constexpr double roomForTitles = 60;      // points of page height kept for a picture's title

QString whole(double value) {
    return QString::number(std::llround(value));
}

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

class Body {
  public:
    explicit Body(const Document& document) : document_(document), xml_(&bytes_) {}

    QByteArray made() {
        xml_.writeStartDocument("1.0", true);
        begin("document");
        for (const auto& [prefix, name] : {std::pair{"w", "wordprocessingml/2006/main"},
                                           {"r", "officeDocument/2006/relationships"},
                                           {"wp", "drawingml/2006/wordprocessingDrawing"},
                                           {"a", "drawingml/2006/main"},
                                           {"pic", "drawingml/2006/picture"}})
            xml_.writeAttribute(QString("xmlns:") + prefix,
                                QString("http://schemas.openxmlformats.org/") + name);
        begin("body");
        for (std::size_t i = 0; i < document_.blocks.size(); ++i)
            block(i);
        section();
        xml_.writeEndDocument();
        return bytes_;
    }

  private:
    void begin(const char* name) { xml_.writeStartElement(QString("w:") + name); }
    void end() { xml_.writeEndElement(); }
    void value(const char* name, const QString& value) {
        begin(name);
        attribute("val", value);
        end();
    }
    void flag(const char* name) { xml_.writeEmptyElement(QString("w:") + name); }
    void attribute(const char* name, const QString& value) {
        xml_.writeAttribute(QString("w:") + name, value);
    }

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

    static bool hasText(const Block& block) {
        const auto* paragraph = std::get_if<Paragraph>(&block);
        return paragraph != nullptr && !paragraph->runs.empty();
    }

    void write(const Paragraph& paragraph, bool isTitle) {
        begin("p");
        begin("pPr");
        if (isTitle)
            flag("keepNext");
        if (!paragraph.pictures.empty())
            tabStops(paragraph);
        end();
        for (const auto& run : paragraph.runs)
            write(run, run.style.points);
        if (!paragraph.pictures.empty())
            pictures(paragraph);
        end();
    }

    void write(const TextRun& run, double points) {
        begin("r");
        begin("rPr");
        begin("rFonts");
        for (const char* script : {"ascii", "hAnsi", "cs"})
            attribute(script, QString::fromStdString(run.style.face));
        end();
        if (run.style.bold)
            flag("b");
        value("sz", whole(points * 2));
        if (run.style.underline)
            value("u", "single");
        end();
        begin("t");
        xml_.writeAttribute("xml:space", "preserve");
        xml_.writeCharacters(QString::fromStdString(readable(run.text)));
        end();
        end();
    }

    struct Placed {
        double left, width, height;
    };

    /// Places the pictures of a paragraph side by side, without overlap and small enough for the
    /// page.
    [[nodiscard]] std::vector<Placed> placed(const Paragraph& paragraph) const {
        std::vector<Placed> places;
        double right = -gapBetweenPictures, tallest = 0;
        for (const auto& picture : paragraph.pictures) {
            const double left = std::max(picture.left, right + gapBetweenPictures);
            places.push_back({left, picture.width, picture.height});
            right = left + picture.width;
            tallest = std::max(tallest, picture.height);
        }
        const double scale =
            std::min({1.0, pageWidth() / right, (pageHeight() - roomForTitles) / tallest});
        for (auto& place : places)
            place = {place.left * scale, place.width * scale, place.height * scale};
        return places;
    }

    void tabStops(const Paragraph& paragraph) {
        begin("tabs");
        for (const auto& place : placed(paragraph)) {
            begin("tab");
            attribute("val", "left");
            attribute("pos", whole(place.left * twipsPerPoint));
            end();
        }
        end();
    }

    void pictures(const Paragraph& paragraph) {
        const auto places = placed(paragraph);
        for (std::size_t i = 0; i < places.size(); ++i) {
            begin("r");
            if (places[i].left > 0)
                flag("tab");
            picture(places[i], QString::number(++picture_));
            end();
        }
    }

    void drawing(const char* name) { xml_.writeStartElement(name); }
    void named(const char* element, const QString& number) {
        drawing(element);
        xml_.writeAttribute("id", number);
        xml_.writeAttribute("name", "Picture " + number);
        xml_.writeAttribute("descr", "Diagram");
        end();
    }
    void sized(const char* element, const Placed& place) {
        drawing(element);
        xml_.writeAttribute("cx", whole(place.width * emuPerPoint));
        xml_.writeAttribute("cy", whole(place.height * emuPerPoint));
        end();
    }

    void picture(const Placed& place, const QString& number) {
        begin("drawing");
        drawing("wp:inline");
        sized("wp:extent", place);
        named("wp:docPr", number);
        drawing("a:graphic");
        drawing("a:graphicData");
        xml_.writeAttribute("uri", "http://schemas.openxmlformats.org/drawingml/2006/picture");
        drawing("pic:pic");
        drawing("pic:nvPicPr");
        named("pic:cNvPr", number);
        xml_.writeEmptyElement("pic:cNvPicPr");
        end();
        drawing("pic:blipFill");
        drawing("a:blip");
        xml_.writeAttribute("r:embed", "picture" + number);
        end();
        drawing("a:stretch");
        xml_.writeEmptyElement("a:fillRect");
        end();
        end();
        shape(place);
        for (const char* opened : {"pic:pic", "a:graphicData", "a:graphic", "wp:inline", "drawing"})
            static_cast<void>(opened), end();
    }

    void shape(const Placed& place) {
        drawing("pic:spPr");
        drawing("a:xfrm");
        drawing("a:off");
        xml_.writeAttribute("x", "0");
        xml_.writeAttribute("y", "0");
        end();
        sized("a:ext", place);
        end();
        drawing("a:prstGeom");
        xml_.writeAttribute("prst", "rect");
        xml_.writeEmptyElement("a:avLst");
        end();
        end();
    }

    void write(const DocumentTable& table) {
        const auto layout = layOut(table, pageWidth(), std::ref(measure_));
        for (std::size_t i = 0; i < layout.strips.size(); ++i) {
            if (i > 0)
                write(Paragraph{}, false);  // a word processor would join adjacent tables
            strip(table, layout.strips[i], layout.points);
        }
    }

    void strip(const DocumentTable& table, const TableStrip& strip, double points) {
        begin("tbl");
        tableProperties(strip);
        for (std::size_t r = 0; r < table.rows.size(); ++r) {
            begin("tr");
            if (r == 0 && table.headed) {
                begin("trPr");
                flag("tblHeader");
                end();
            }
            for (std::size_t c = 0; c < strip.columns.size(); ++c)
                cell(table.rows[r][strip.columns[c]], strip.widths[c], points);
            end();
        }
        end();
    }

    void tableProperties(const TableStrip& strip) {
        begin("tblPr");
        begin("tblBorders");
        for (const char* side : {"top", "left", "bottom", "right", "insideH", "insideV"}) {
            begin(side);
            attribute("val", "single");
            attribute("sz", "4");
            attribute("space", "0");
            attribute("color", "808080");
            end();
        }
        end();
        begin("tblLayout");
        attribute("type", "fixed");
        end();
        begin("tblCellMar");
        for (const char* side : {"left", "right"})
            width(side, cellMargin);
        end();
        end();
        begin("tblGrid");
        for (const double each : strip.widths) {
            begin("gridCol");
            attribute("w", whole(each * twipsPerPoint));
            end();
        }
        end();
    }

    void width(const char* element, double points) {
        begin(element);
        attribute("w", whole(points * twipsPerPoint));
        attribute("type", "dxa");
        end();
    }

    void cell(const Cell& cell, double cellWidth, double points) {
        begin("tc");
        begin("tcPr");
        width("tcW", cellWidth);
        end();
        begin("p");
        if (cell.empty())
            markOf(points);
        for (const auto& run : cell)
            write(run, std::min(run.style.points, points));
        end();
        end();
    }

    /// Sets the type size of the paragraph mark. It alone sets the height of an empty cell.
    void markOf(double points) {
        begin("pPr");
        begin("rPr");
        value("sz", whole(points * 2));
        end();
        end();
    }

    void section() {
        const PageSetup& page = document_.page;
        begin("sectPr");
        begin("pgSz");
        attribute("w", whole(page.width * twipsPerPoint));
        attribute("h", whole(page.height * twipsPerPoint));
        attribute("orient", "landscape");
        end();
        begin("pgMar");
        for (const auto& [name, measure] : {std::pair{"top", page.top},
                                            {"right", page.right},
                                            {"bottom", page.bottom},
                                            {"left", page.left},
                                            {"header", 36.0},
                                            {"footer", 36.0},
                                            {"gutter", 0.0}})
            attribute(name, whole(measure * twipsPerPoint));
        end();
        end();
    }

    const Document& document_;
    QByteArray bytes_;
    QXmlStreamWriter xml_;
    Measure measure_;
    int picture_ = 0;
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
