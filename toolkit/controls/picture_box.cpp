#include "toolkit/controls/picture_box.h"

#include <QFontMetricsF>
#include <QFrame>
#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"
#include "toolkit/outside/picture_file.h"

namespace trabeon {

namespace {

constexpr double CharactersPerTab = 8;

void PaintStroke(QPainter& painter, const Stroke& stroke) {
    const auto pixels = [](double twips) { return twips / TwipsPerPixel; };
    const QPointF start(pixels(stroke.x1), pixels(stroke.y1));
    painter.setPen(QPen(QColor(stroke.colour), 1));
    switch (stroke.kind) {
        case Stroke::Kind::Line:
            painter.drawLine(start, QPointF(pixels(stroke.x2), pixels(stroke.y2)));
            break;
        case Stroke::Kind::Circle:
            painter.drawEllipse(start, pixels(stroke.x2), pixels(stroke.x2));
            break;
        case Stroke::Kind::Text:
            painter.drawText(start + QPointF(0, QFontMetricsF(painter.font()).ascent()),
                             ShownText(stroke.text));
            break;
    }
}

QImage Scaled(const QImage& picture, const QSize& size) {
    if (picture.size() == size)
        return picture;
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

double NextStop(const std::vector<double>& stops, double x, double tab) {
    const auto stop = std::upper_bound(stops.begin(), stops.end(), x);
    return stop == stops.end() ? (std::floor(x / tab) + 1) * tab : *stop;
}

}  // namespace

Colour QBColor(int number) {
    static constexpr std::array<Colour, 16> Palette{
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xc0c0c0,
        0x808080, 0x0000ff, 0x00ff00, 0x00ffff, 0xff0000, 0xff00ff, 0xffff00, 0xffffff};
    return Palette.at(static_cast<std::size_t>(number));
}

class PictureBox::Surface : public QFrame {
  public:
    Surface(PictureBox& box, QWidget* parent) : QFrame(parent), box_(box) {
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        painter.setFont(font());
        painter.setClipRect(contentsRect());
        painter.translate(contentsRect().topLeft());
        box_.Paint(painter, devicePixelRatioF());
        painter.end();
        QFrame::paintEvent(event);
    }

  private:
    PictureBox& box_;
};

PictureBox::PictureBox(Container& parent) : Control(new Surface(*this, parent.Canvas())) {}

QWidget* PictureBox::Canvas() const {
    return Widget();
}

void PictureBox::SetBackColor(Colour colour) {
    backColour_ = colour;
    Widget()->update();
}

void PictureBox::SetBorder(bool shown) {
    static_cast<QFrame*>(Widget())->setFrameStyle(shown ? QFrame::StyledPanel | QFrame::Sunken
                                                        : QFrame::NoFrame);
}

void PictureBox::Add(const Stroke& stroke) {
    drawn_.push_back(stroke);
    Widget()->update();
}

void PictureBox::Cls() {
    drawn_.clear();
    CurrentX = CurrentY = 0;
    Widget()->update();
}

void PictureBox::Line(double x1, double y1, double x2, double y2) {
    Line(x1, y1, x2, y2, ForeColor);
}

void PictureBox::Line(double x1, double y1, double x2, double y2, Colour colour) {
    Add({Stroke::Kind::Line, x1, y1, x2, y2, colour, {}});
    CurrentX = x2;
    CurrentY = y2;
}

void PictureBox::Circle(double x, double y, double radius, Colour colour) {
    Add({Stroke::Kind::Circle, x, y, radius, 0, colour, {}});
}

void PictureBox::Print(const std::string& text) {
    const QFontMetricsF metrics(Widget()->font());
    const double tab =
        TabWidth > 0 ? TabWidth : CharactersPerTab * metrics.averageCharWidth() * TwipsPerPixel;
    const QStringList parts = ShownText(text).split('\t');
    for (qsizetype i = 0; i < parts.size(); ++i) {
        if (i > 0)
            CurrentX = NextStop(TabStops, CurrentX, tab);
        if (parts.at(i).isEmpty())
            continue;
        Add({Stroke::Kind::Text, CurrentX, CurrentY, 0, 0, ForeColor, parts.at(i).toStdString()});
        CurrentX += metrics.horizontalAdvance(parts.at(i)) * TwipsPerPixel;
    }
}

void PictureBox::PrintLine(const std::string& text) {
    Print(text);
    CurrentX = 0;
    CurrentY += QFontMetricsF(Widget()->font()).height() * TwipsPerPixel;
}

void PictureBox::Paint(QPainter& painter, double pixelRatio) const {
    const QRect inside(QPoint(0, 0), Widget()->contentsRect().size());
    painter.fillRect(inside, QColor(backColour_));
    if (!picture_.isNull()) {
        painter.drawImage(inside, Scaled(picture_, inside.size() * pixelRatio));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Stroke& stroke : drawn_)
        PaintStroke(painter, stroke);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

QImage PictureBox::Picture() const {
    const QSize size = Widget()->contentsRect().size().expandedTo({1, 1});
    const double ratio = SharpRatio(size);
    QImage picture(size * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(QColor(backColour_));
    QPainter painter(&picture);
    painter.setFont(Widget()->font());
    Paint(painter, ratio);
    painter.end();
    SetRatio(picture, ratio);  // set earlier, it would make the text larger
    return picture;
}

void PictureBox::CopyToClipboard() const {
    Outside::Current().PutPicture(Picture());
}

void PictureBox::SetPicture(const QImage& picture) {
    picture_ = picture;
    Widget()->update();
}

bool PictureBox::StretchFrom(const PictureBox& source) {
    const QSize size = Widget()->contentsRect().size() * Widget()->devicePixelRatioF();
    SetPicture(source.picture_.isNull() ? QImage() : Scaled(source.picture_, size));
    return !picture_.isNull();
}

}  // namespace trabeon
