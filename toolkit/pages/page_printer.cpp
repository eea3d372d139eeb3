#include "toolkit/pages/page_printer.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <cmath>

#include "toolkit/outside/outside.h"

namespace trabeon {

namespace {

constexpr double TwipsPerInch = 1440;
constexpr double TwipsPerPoint = 20;

int Twips(double points) {
    return static_cast<int>(std::lround(points * TwipsPerPoint));
}

}  // namespace

Paper PaperOf(const QPrinter& printer) {
    const QRectF sheet = printer.pageLayout().fullRect(QPageLayout::Point);
    const QRectF inside = printer.pageLayout().paintRect(QPageLayout::Point);
    return {Twips(sheet.width()),   Twips(sheet.height()), Twips(inside.width()),
            Twips(inside.height()), Twips(inside.left()),  Twips(inside.top())};
}

std::unique_ptr<PagePrinter> PagePrinter::Open(const std::string& documentName) {
    std::unique_ptr<QPrinter> printer = Outside::Current().OpenPrinter(documentName);
    if (!printer)
        return nullptr;
    return std::unique_ptr<PagePrinter>(new PagePrinter(std::move(printer)));
}

PagePrinter::PagePrinter(std::unique_ptr<QPrinter> printer)
    : printer_(std::move(printer)), file_(*printer_), sheet_(PaperOf(*printer_)) {
    auto painter = std::make_unique<QPainter>();
    if (!painter->begin(printer_.get()))
        return;
    painter_ = std::move(painter);
    const double unit = printer_->resolution() / TwipsPerInch;
    painter_->scale(unit, unit);
    // Else pictures would go out as JPEG.
    painter_->setRenderHint(QPainter::LosslessImageRendering);
    painter_->setRenderHint(QPainter::SmoothPixmapTransform);
}

PagePrinter::~PagePrinter() = default;

QPainter* PagePrinter::Painter() {
    return painter_.get();
}

bool PagePrinter::NewPage() {
    return painter_ && printer_->newPage();
}

bool PagePrinter::EndDoc() {
    const bool drawn = painter_ && painter_->end();
    painter_.reset();
    return drawn && printer_->printerState() != QPrinter::Error && file_.TakePlace();
}

}  // namespace trabeon
