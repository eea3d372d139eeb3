// The pictures of a paragraph in an Office Open XML document.
#pragma once

#include <vector>

#include "output/document.h"
#include "output/docx_xml.h"

namespace trabeon {

/// Where a picture is in the line of its paragraph, in points.
struct PlacedPicture {
    double left, width, height;
};

/// Places the pictures side by side at the wanted distances, without overlaps, and scales them down
/// if they do not fit the text area of the page. Its sizes are points.
[[nodiscard]] std::vector<PlacedPicture> placePictures(const Paragraph& paragraph, double pageWidth,
                                                       double pageHeight);

/// Writes a picture. Its number in the document counts from 1; its relation is "picture1", ...
void writePicture(DocxXml& xml, const PlacedPicture& place, int number);

}  // namespace trabeon
