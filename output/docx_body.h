// Writes the main part of an Office Open XML document: paragraphs, tables and pictures.
#pragma once

#include <QByteArray>

#include "output/document.h"

namespace trabeon {

/// The text of the main part. It refers to pictures by their number in the document, from 1:
/// "picture1", "picture2" ...
[[nodiscard]] QByteArray docxBody(const Document& document);

/// All pictures of the document in order.
[[nodiscard]] std::vector<const DocumentPicture*> picturesOf(const Document& document);

}  // namespace trabeon
