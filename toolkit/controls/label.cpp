#include "toolkit/controls/label.h"

#include <QLabel>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

QLabel& Inner(const Control& control) {
    return *static_cast<QLabel*>(control.Widget());
}

QString WithoutAccessKey(QString caption) {
    for (qsizetype at = caption.indexOf('&'); at >= 0; at = caption.indexOf('&', at + 1))
        if (caption.mid(at + 1, 1) != " ")  // "& " is an ordinary "&"
            caption.remove(at, 1);          // "&&" leaves one "&"
    return caption;
}

}  // namespace

Label::Label(Container& parent, const std::string& caption)
    : Control(new QLabel(parent.Canvas())), caption_(caption) {
    ShowCaption();
}

std::string Label::Caption() const {
    return caption_;
}

void Label::SetCaption(const std::string& caption) {
    caption_ = caption;
    ShowCaption();
}

void Label::SetForeColor(Colour colour) {
    QPalette palette = Inner(*this).palette();
    palette.setColor(QPalette::WindowText, QColor::fromRgb(colour));
    Inner(*this).setPalette(palette);
}

void Label::SetWraps(bool wraps) {
    Inner(*this).setWordWrap(wraps);
}

void Label::SetBuddy(Control& control) {
    Inner(*this).setBuddy(control.Widget());
    control.SetAccessibleName(WithoutAccessKey(ShownText(caption_)).toStdString());
    ShowCaption();
}

void Label::Resize(int pixelsWide, int pixelsHigh) {
    sized_ = true;
    Control::Resize(pixelsWide, pixelsHigh);
}

void Label::ShowCaption() {
    const QString caption = ShownText(caption_);
    Inner(*this).setText(Inner(*this).buddy() ? caption : WithoutAccessKey(caption));
    if (!sized_)
        Inner(*this).adjustSize();
}

}  // namespace trabeon
