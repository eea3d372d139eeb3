// The main part of an Office Open XML document: paragraphs, tables and pictures as its markup.
#pragma once

#include <QByteArray>

#include "output/document.h"

namespace trabeon {

/// Pictures are told by their number in the document, from 1: their relation is "picture1", ...
[[nodiscard]] QByteArray docxBody(const Document& document);

/// All pictures in their order.
[[nodiscard]] std::vector<const DocumentPicture*> picturesOf(const Document& document);

}  // namespace trabeon
