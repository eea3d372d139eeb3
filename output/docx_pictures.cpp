#include "output/docx_pictures.h"

#include <algorithm>

namespace trabeon {
namespace {

constexpr double gapBetweenPictures = 6;  // points
constexpr double roomForTitles = 60;      // points of a page that a picture leaves to its title

void writeName(DocxXml& xml, const char* element, const QString& number) {
    xml.empty(element, {{"id", number}, {"name", "Picture " + number}, {"descr", "Diagram"}});
}

void writeSize(DocxXml& xml, const char* element, const PlacedPicture& place) {
    xml.empty(element, {{"cx", whole(place.width * emuPerPoint)},
                        {"cy", whole(place.height * emuPerPoint)}});
}

void writeShape(DocxXml& xml, const PlacedPicture& place) {
    const auto properties = xml.element("pic:spPr");
    {
        const auto transform = xml.element("a:xfrm");
        xml.empty("a:off", {{"x", "0"}, {"y", "0"}});
        writeSize(xml, "a:ext", place);
    }
    const auto geometry = xml.element("a:prstGeom", {{"prst", "rect"}});
    xml.empty("a:avLst");
}

void writeImage(DocxXml& xml, const QString& number) {
    const auto fill = xml.element("pic:blipFill");
    xml.empty("a:blip", {{"r:embed", "picture" + number}});
    const auto stretch = xml.element("a:stretch");
    xml.empty("a:fillRect");
}

}  // namespace

std::vector<PlacedPicture> placePictures(const Paragraph& paragraph, double pageWidth,
                                         double pageHeight) {
    std::vector<PlacedPicture> places;
    double right = -gapBetweenPictures, tallest = 0;
    for (const auto& picture : paragraph.pictures) {
        const double left = std::max(picture.left, right + gapBetweenPictures);
        places.push_back({left, picture.width, picture.height});
        right = left + picture.width;
        tallest = std::max(tallest, picture.height);
    }
    const double scale = std::min({1.0, pageWidth / right, (pageHeight - roomForTitles) / tallest});
    for (auto& place : places)
        place = {place.left * scale, place.width * scale, place.height * scale};
    return places;
}

void writePicture(DocxXml& xml, const PlacedPicture& place, int number) {
    const auto text = QString::number(number);
    const auto drawing = xml.element("w:drawing");
    const auto inLine = xml.element("wp:inline");
    writeSize(xml, "wp:extent", place);
    writeName(xml, "wp:docPr", text);
    const auto graphic = xml.element("a:graphic");
    const auto data = xml.element(
        "a:graphicData", {{"uri", "http://schemas.openxmlformats.org/drawingml/2006/picture"}});
    const auto picture = xml.element("pic:pic");
    {
        const auto properties = xml.element("pic:nvPicPr");
        writeName(xml, "pic:cNvPr", text);
        xml.empty("pic:cNvPicPr");
    }
    writeImage(xml, text);
    writeShape(xml, place);
}

}  // namespace trabeon
