// Pictures that leave the program: sharp on paper, and as bytes of a file. Toolkit inside.
#pragma once

#include <QByteArray>
#include <QImage>

namespace trabeon {

// The dots to each 1/96 inch that a picture of this size, in 1/96 inch, is drawn with: four, which
// is 384 to the inch. One that is wider than paper, and made to fit it there, needs fewer.
double SharpRatio(const QSize& size);

// Tells the toolkit and other programs the size of a picture that was drawn with this ratio.
void SetRatio(QImage& picture, double ratio);

// The picture in the PNG format, with all its dots and its size. A null one is no picture.
QByteArray PngOf(const QImage& picture);
QSize DotsOf(const QByteArray& png);

}  // namespace trabeon
