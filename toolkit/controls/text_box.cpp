#include "toolkit/controls/text_box.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPalette>
#include <QValidator>

#include "toolkit/look/shown_text.h"

namespace trabeon {

namespace {

QLineEdit& Inner(const Control& control) {
    return *static_cast<QLineEdit*>(control.Widget());
}

class FieldValidator : public QValidator {
  public:
    using QValidator::QValidator;

    State validate(QString& text, int& caret) const override {
        for (qsizetype at = text.size() - 1; at >= 0; --at) {
            const QChar character = text.at(at);
            if (character != '"' && character != '\n' && character != '\r' &&
                character != QChar::LineSeparator && character != QChar::ParagraphSeparator)
                continue;
            text.remove(at, 1);
            if (at < caret)
                --caret;
        }
        return Acceptable;
    }
};

}  // namespace

TextBox::TextBox(Container& parent, const std::string& text)
    : Control(new QLineEdit(ShownText(text), parent.Canvas())), given_(text) {
    Control::Resize(ToPixels(1215), ToPixels(345));
    QObject::connect(&Inner(*this), &QLineEdit::textChanged, [this] {
        ShowRemark();
        if (Change)
            Change();
    });
}

void TextBox::ShowRemark() {
    const std::string remark = Remark ? Remark(Text()) : "";
    if (remark == remark_)
        return;
    QLineEdit& edit = Inner(*this);
    QString tip = edit.toolTip();
    if (!remark_.empty())
        tip.chop(QString::fromStdString(remark_).size());
    else if (!tip.isEmpty())
        tip += '\n';
    remark_ = remark;
    if (remark.empty() && tip.endsWith('\n'))
        tip.chop(1);
    edit.setToolTip(tip + QString::fromStdString(remark));
    edit.setAccessibleDescription(QString::fromStdString(remark));
    QPalette palette;
    if (!remark.empty())
        palette.setColor(QPalette::Base, QColor(0xffe9a8));
    edit.setPalette(palette);
}

std::string TextBox::Text() const {
    const QString text = Inner(*this).text();
    return text == ShownText(given_) ? given_ : text.toStdString();
}

void TextBox::SetText(const std::string& text) {
    given_ = text;
    Inner(*this).setText(ShownText(text));
}

int TextBox::SelStart() const {
    const QLineEdit& edit = Inner(*this);
    return edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
}

int TextBox::SelLength() const {
    return Inner(*this).selectionLength();
}

void TextBox::SetSelStart(int start) {
    Inner(*this).deselect();
    Inner(*this).setCursorPosition(start);
}

void TextBox::SetSelLength(int length) {
    Inner(*this).setSelection(SelStart(), length);
}

void TextBox::SelectAll() {
    Inner(*this).selectAll();
}

void TextBox::SetKeepsToField(bool keeps) {
    QLineEdit& edit = Inner(*this);
    edit.setValidator(keeps ? new FieldValidator(&edit) : nullptr);
}

void TextBox::SetLocked(bool locked) {
    Inner(*this).setReadOnly(locked);
}

bool TextBox::OnEvent(QEvent& event) {
    if (event.type() == QEvent::FocusIn)
        entering_ = static_cast<QFocusEvent&>(event).reason() == Qt::MouseFocusReason;
    // If there is nothing to undo, the window gets the key.
    if (event.type() == QEvent::ShortcutOverride && !Inner(*this).isUndoAvailable() &&
        static_cast<QKeyEvent&>(event).matches(QKeySequence::Undo))
        return true;
    return OnMouse(event) || Control::OnEvent(event);
}

// The click that brings the focus would remove the selection that GotFocus has just made.
bool TextBox::OnMouse(QEvent& event) {
    switch (event.type()) {
        case QEvent::MouseButtonPress:
            dragging_ = entering_ && Inner(*this).hasSelectedText();
            entering_ = false;
            return dragging_;
        case QEvent::MouseMove:
            return dragging_;
        case QEvent::MouseButtonRelease: {
            const bool swallowed = dragging_;
            dragging_ = false;
            return swallowed;
        }
        default:
            return false;
    }
}

}  // namespace trabeon
