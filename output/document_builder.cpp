#include "output/document_builder.h"

#include "toolkit/outside/outside.h"
#include "toolkit/outside/picture_file.h"

namespace trabeon {
namespace {

constexpr double pointsPerPixel = 0.75;

}  // namespace

void appendText(std::vector<TextRun>& runs, const std::string& text, const TextStyle& style) {
    if (!text.empty())
        runs.push_back({text, style});
}

void DocumentBuilder::type(const std::string& text) {
    if (!current().pictures.empty())
        endParagraph();
    appendText(current().runs, text, style);
}

bool DocumentBuilder::paste(double left) {
    const QImage image = Outside::Current().Picture();
    if (image.isNull())
        return false;
    if (!current().runs.empty())
        endParagraph();
    const double scale = pointsPerPixel / image.devicePixelRatio();
    current().pictures.push_back(
        {PngOf(image).toStdString(), image.width() * scale, image.height() * scale, left});
    return true;
}

DocumentTable& DocumentBuilder::beginTable(std::size_t columns) {
    auto& blocks = document_.blocks;
    if (current().runs.empty() && current().pictures.empty())
        blocks.pop_back();
    return std::get<DocumentTable>(blocks.emplace_back(DocumentTable{columns, {}}));
}

}  // namespace trabeon
