#include "toolkit/controls/button.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

// A button too narrow for a letter shows no caption, instead of parts of letters.
class Face : public QPushButton {
  public:
    using QPushButton::QPushButton;

  protected:
    void paintEvent(QPaintEvent* event) override {
        if (width() >= fontMetrics().height()) {
            QPushButton::paintEvent(event);
            return;
        }
        QStyleOptionButton option;
        initStyleOption(&option);
        option.text.clear();
        QStylePainter(this).drawControl(QStyle::CE_PushButton, option);
    }
};

QPushButton& Inner(const Control& control) {
    return *static_cast<QPushButton*>(control.Widget());
}

}  // namespace

Button::Button(Container& parent, const std::string& caption)
    : Control(new Face(ShownText(caption), parent.Canvas())) {
    QPushButton& button = Inner(*this);
    const int captionWide = button.fontMetrics().horizontalAdvance(button.text());
    Control::Resize(std::max(ToPixels(1215), captionWide + ToPixels(270)), ToPixels(375));
    button.setAutoDefault(false);  // else Enter anywhere in a dialog would press its first button
    QObject::connect(&button, &QPushButton::clicked, [this] {
        if (Click)
            Click();
    });
}

std::string Button::Caption() const {
    return Inner(*this).text().toStdString();
}

void Button::SetCaption(const std::string& caption) {
    Inner(*this).setText(ShownText(caption));
}

void Button::Press() {
    Inner(*this).click();
}

bool Button::OnEvent(QEvent& event) {
    if (event.type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent&>(event).key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Press();
            return true;
        }
    }
    return Control::OnEvent(event);
}

}  // namespace trabeon
