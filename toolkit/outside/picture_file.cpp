#include "toolkit/outside/picture_file.h"

#include <png.h>

#include <QBuffer>
#include <QImageReader>
#include <algorithm>
#include <cmath>

namespace trabeon {

namespace {

constexpr double Ratio = 4;
constexpr double MostDots = 5000;  // of a side: 300 an inch on the longest side of A3 paper
constexpr double MetresPerPixel = 0.0254 / 96;

constexpr int CompressionLevel = 6;
constexpr int BitsPerChannel = 8;

void Append(png_struct* png, png_byte* bytes, std::size_t count) {
    static_cast<QByteArray*>(png_get_io_ptr(png))
        ->append(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(count));
}

}  // namespace

double SharpRatio(const QSize& size) {
    return std::min(Ratio, MostDots / std::max({1, size.width(), size.height()}));
}

void SetRatio(QImage& picture, double ratio) {
    const int dotsPerMetre = static_cast<int>(std::lround(ratio / MetresPerPixel));
    picture.setDevicePixelRatio(ratio);
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
}

// The toolkit's own writer tries five filters for each row and takes twice the time. Most rows of a
// drawing are like the row above, so the filter that keeps the difference to it fits best.
QByteArray PngOf(const QImage& picture) {
    QByteArray file;
    if (picture.isNull())
        return file;
    const bool transparent = picture.hasAlphaChannel();
    const QImage plain =
        picture.convertToFormat(transparent ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    png_struct* png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_info* head = png_create_info_struct(png);
    png_set_write_fn(png, &file, Append, nullptr);
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
    png_set_compression_level(png, CompressionLevel);
    png_set_IHDR(png, head, static_cast<png_uint_32>(plain.width()),
                 static_cast<png_uint_32>(plain.height()), BitsPerChannel,
                 transparent ? PNG_COLOR_TYPE_RGBA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_pHYs(png, head, static_cast<png_uint_32>(plain.dotsPerMeterX()),
                 static_cast<png_uint_32>(plain.dotsPerMeterY()), PNG_RESOLUTION_METER);
    png_write_info(png, head);
    for (int y = 0; y < plain.height(); ++y)
        png_write_row(png, plain.constScanLine(y));
    png_write_end(png, head);
    png_destroy_write_struct(&png, &head);
    return file;
}

QSize DotsOf(const QByteArray& png) {
    QBuffer file;
    file.setData(png);
    return QImageReader(&file, "PNG").size();
}

}  // namespace trabeon
