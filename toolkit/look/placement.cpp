#include "toolkit/look/placement.h"

#include <QWidget>
#include <algorithm>
#include <cmath>

namespace trabeon {

int ToPixels(double twips) {
    return static_cast<int>(std::lround(twips / TwipsPerPixel));
}

// Both are here because QPointer needs the full definition of QWidget.
Placement::Placement() = default;

Placement::Placement(QWidget* widget) : widget_(widget) {}

QWidget* Placement::Widget() const {
    return widget_;
}

WindowState StateOf(const QWidget& window) {
    if (window.isMinimized())
        return WindowState::Minimized;
    return window.isMaximized() ? WindowState::Maximized : WindowState::Normal;
}

void SetStateOf(QWidget& window, WindowState state) {
    if (state == StateOf(window))
        return;
    if (state == WindowState::Minimized)
        window.showMinimized();
    else if (state == WindowState::Maximized)
        window.showMaximized();
    else
        window.showNormal();
}

void Placement::SetWidget(QWidget* widget) {
    widget_ = widget;
}

int Placement::Left() const {
    return widget_->x() * TwipsPerPixel;
}

int Placement::Top() const {
    return widget_->y() * TwipsPerPixel;
}

int Placement::Width() const {
    return widget_->width() * TwipsPerPixel;
}

int Placement::Height() const {
    return widget_->height() * TwipsPerPixel;
}

void Placement::SetLeft(int twips) {
    widget_->move(ToPixels(twips), widget_->y());
}

void Placement::SetTop(int twips) {
    widget_->move(widget_->x(), ToPixels(twips));
}

void Placement::SetWidth(int twips) {
    Resize(std::max(0, ToPixels(twips)), widget_->height());
}

void Placement::SetHeight(int twips) {
    Resize(widget_->width(), std::max(0, ToPixels(twips)));
}

void Placement::Move(int left, int top, int width, int height) {
    widget_->move(ToPixels(left), ToPixels(top));
    Resize(std::max(0, ToPixels(width)), std::max(0, ToPixels(height)));
}

void Placement::Resize(int pixelsWide, int pixelsHigh) {
    widget_->resize(pixelsWide, pixelsHigh);
}

}  // namespace trabeon
