#include "toolkit/controls/vertical_button.h"

#include <QEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

constexpr int Wide = 345;      // twips
constexpr int Room = 2 * 135;  // above and below the caption

}  // namespace

VerticalButton::VerticalButton(Container& parent, const std::string& caption)
    : Button(parent, caption) {
    const QString text = ShownText(caption);
    const int captionHigh = Widget()->fontMetrics().size(Qt::TextShowMnemonic, text).width();
    Control::Resize(ToPixels(Wide), captionHigh + ToPixels(Room));
}

bool VerticalButton::OnEvent(QEvent& event) {
    if (event.type() != QEvent::Paint)
        return Button::OnEvent(event);
    Paint();
    return true;
}

void VerticalButton::Paint() {
    auto& button = *static_cast<QPushButton*>(Widget());
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state |= button.isDown() ? QStyle::State_Sunken : QStyle::State_Raised;
    QPainter painter(&button);
    button.style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, &button);
    painter.translate(button.width(), 0);
    painter.rotate(90);
    button.style()->drawItemText(&painter, QRect(0, 0, button.height(), button.width()),
                                 Qt::AlignCenter | Qt::TextShowMnemonic, button.palette(),
                                 button.isEnabled(), button.text(), QPalette::ButtonText);
}

}  // namespace trabeon
