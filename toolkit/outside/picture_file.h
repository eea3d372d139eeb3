// Pictures that leave the program: how sharp they are on paper, and their PNG files. Only for the
// toolkit's own sources and for documents.
#pragma once

#include <QByteArray>
#include <QImage>

namespace trabeon {

/// The number of dots that a picture has for each 1/96 inch: 4, which is 384 an inch. A picture
/// that is wider than paper is made smaller there, so it has fewer. The size is in 1/96 inch.
[[nodiscard]] double SharpRatio(const QSize& size);

/// Records in a picture that it has this number of dots for each 1/96 inch, for the toolkit and for
/// other programs.
void SetRatio(QImage& picture, double ratio);

/// The picture as a PNG file, with all its dots and with its size on paper. Empty for a null image.
[[nodiscard]] QByteArray PngOf(const QImage& picture);
/// The size in dots of the picture in a PNG file.
[[nodiscard]] QSize DotsOf(const QByteArray& png);

}  // namespace trabeon
