#include "toolkit/pages/printer.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPainter>
#include <QPrinter>

#include "toolkit/look/look.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"

namespace trabeon {

namespace {

constexpr double MillimetresPerInch = 25.4;

}  // namespace

std::unique_ptr<Printer> Printer::Open(const std::string& documentName) {
    auto printer = Outside::Current().OpenPrinter(documentName);
    if (!printer)
        return nullptr;
    return std::unique_ptr<Printer>(new Printer(std::move(printer)));
}

Printer::Printer(std::unique_ptr<QPrinter> printer)
    : printer_(std::move(printer)), file_(*printer_), painter_(std::make_unique<QPainter>()) {
    printer_->setFullPage(true);
}

Printer::~Printer() = default;

// The orientation counts from the next page on, so it is told before that one begins.
void Printer::NewPage(Orientation orientation) {
    if (failed_)
        return;
    printer_->setPageOrientation(orientation == Orientation::Landscape ? QPageLayout::Landscape
                                                                       : QPageLayout::Portrait);
    failed_ = painter_->isActive() ? !printer_->newPage() : !painter_->begin(printer_.get());
    if (!failed_)
        painter_->setFont(FontNamed("Courier New", FontSize, false));
}

void Printer::Print(double x, double y, const std::string& text) {
    if (failed_)
        return;
    const double dots = printer_->resolution() / MillimetresPerInch;
    const QString line = ShownText(text);
    const QFontMetricsF metrics(painter_->font(), printer_.get());
    const double wide = metrics.horizontalAdvance(line);
    const double sheet = printer_->pageLayout().fullRect(QPageLayout::Millimeter).width();
    const double room = (sheet - 2 * x) * dots;  // as much is free on the right as on the left
    const double size = wide > room && room > 0 ? room / wide : 1;
    painter_->save();
    painter_->translate(x * dots, y * dots + metrics.ascent());
    painter_->scale(size, size);
    painter_->drawText(QPointF(), line);
    painter_->restore();
}

bool Printer::EndDoc() {
    failed_ = failed_ || !painter_->end() || printer_->printerState() == QPrinter::Error ||
              !file_.TakePlace();
    return !failed_;
}

}  // namespace trabeon
