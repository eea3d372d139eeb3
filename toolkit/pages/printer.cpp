#include "toolkit/pages/printer.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>
#include <cmath>

#include "toolkit/look/look.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"

namespace trabeon {

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr double twipsPerInch = 1440;
constexpr double twipsPerPoint = 20;

int Twips(double points) {
    return static_cast<int>(std::lround(points * twipsPerPoint));
}

}  // namespace

Paper PaperOf(const QPrinter& printer) {
    const QPageLayout layout = printer.pageLayout();
    const QRectF sheet = layout.fullRect(QPageLayout::Point);
    const QRectF inside = sheet.marginsRemoved(layout.margins(QPageLayout::Point));
    return {Twips(sheet.width()),   Twips(sheet.height()), Twips(inside.width()),
            Twips(inside.height()), Twips(inside.left()),  Twips(inside.top())};
}

std::unique_ptr<Printer> Printer::Open(const std::string& documentName) {
    auto printer = Outside::Current().OpenPrinter(documentName);
    if (!printer)
        return nullptr;
    return std::unique_ptr<Printer>(new Printer(std::move(printer)));
}

Printer::Printer(std::unique_ptr<QPrinter> printer)
    : printer_(std::move(printer)),
      file_(*printer_),
      painter_(std::make_unique<QPainter>()),
      sheet_(PaperOf(*printer_)) {
    printer_->setFullPage(true);
}

Printer::~Printer() = default;

void Printer::SetOrientation(Orientation orientation) {
    printer_->setPageOrientation(orientation == Orientation::Landscape ? QPageLayout::Landscape
                                                                       : QPageLayout::Portrait);
    sheet_ = PaperOf(*printer_);
}

bool Printer::NewPage() {
    if (failed_)
        return false;
    failed_ = painter_->isActive() ? !printer_->newPage() : !painter_->begin(printer_.get());
    if (failed_)
        return false;
    const double unit = printer_->resolution() / twipsPerInch;
    painter_->resetTransform();
    painter_->scale(unit, unit);
    painter_->translate(sheet_.OffsetX, sheet_.OffsetY);
    painter_->setFont(FontNamed("Courier New", FontSize, false));
    painter_->setRenderHint(QPainter::LosslessImageRendering);  // else pictures go out as JPEG
    painter_->setRenderHint(QPainter::SmoothPixmapTransform);
    return true;
}

QPainter* Printer::Painter() {
    return painter_->isActive() && !failed_ ? painter_.get() : nullptr;
}

void Printer::Print(double x, double y, const std::string& text) {
    if (!Painter())
        return;
    const double dots = printer_->resolution() / millimetresPerInch;
    const QString line = ShownText(text);
    const QFontMetricsF metrics(painter_->font(), printer_.get());
    const double wide = metrics.horizontalAdvance(line);
    const double sheet = printer_->pageLayout().fullRect(QPageLayout::Millimeter).width();
    const double room = (sheet - 2 * x) * dots;
    const double size = wide > room && room > 0 ? room / wide : 1;
    painter_->save();
    painter_->resetTransform();
    painter_->translate(x * dots, y * dots + metrics.ascent());
    painter_->scale(size, size);
    painter_->drawText(QPointF(), line);
    painter_->restore();
}

bool Printer::EndDoc() {
    failed_ = failed_ || !painter_->end() || printer_->printerState() == QPrinter::Error ||
              !file_.ReplaceOldFile();
    return !failed_;
}

}  // namespace trabeon
