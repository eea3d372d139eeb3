#include "toolkit/pages/rich_text_box.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>

#include "toolkit/look/shown_text.h"
#include "toolkit/outside/outside.h"
#include "toolkit/pages/page_layout.h"
#include "toolkit/pages/pictures_in_text.h"
#include "toolkit/pages/rich_text_file.h"

namespace trabeon {

namespace {

// 0 for an empty target.
double ScaleOf(const TwipsRect& drawing, const TwipsRect& target) {
    if (target.Width() == 0 || target.Height() == 0)
        return 0;
    return std::min({1.0, double(drawing.Width()) / target.Width(),
                     double(drawing.Height()) / target.Height()});
}

void DropEmptyLine(QTextCursor& cursor) {
    if (cursor.block().length() > 1 || cursor.document()->blockCount() == 1)
        return;
    if (cursor.atEnd())
        cursor.deletePreviousChar();
    else
        cursor.deleteChar();
}

}  // namespace

class RichTextBox::Edit : public QTextEdit {
  public:
    Edit(RichTextBox& box, QWidget* parent) : QTextEdit(parent), box_(box) {
        setUndoRedoEnabled(false);
        setTabChangesFocus(true);
        setAcceptDrops(false);
        DrawPicturesSmoothly(*document());
        connect(document(), &QTextDocument::contentsChanged, this, [this] { box_.ReleasePages(); });
    }

  protected:
    // For Ctrl+V. Only pictures can be pasted.
    bool canInsertFromMimeData(const QMimeData* offer) const override {
        return !isReadOnly() && offer->hasImage();
    }
    void insertFromMimeData(const QMimeData* offer) override {
        if (canInsertFromMimeData(offer))
            box_.Paste();
    }

    // Copies the first picture of the selection, because other programs cannot read a mixed text.
    QMimeData* createMimeDataFromSelection() const override {
        const QTextCursor cursor = textCursor();
        for (const PictureInText& picture : PicturesOf(*document())) {
            if (picture.position < cursor.selectionStart() ||
                picture.position >= cursor.selectionEnd())
                continue;
            auto* copied = new QMimeData;
            copied->setImageData(ImageOf(picture));
            return copied;
        }
        return QTextEdit::createMimeDataFromSelection();
    }

  private:
    RichTextBox& box_;
};

RichTextBox::RichTextBox(Container& parent) : Control(new Edit(*this, parent.Canvas())) {}

RichTextBox::~RichTextBox() {
    QObject::disconnect(Inner().document(), nullptr, &Inner(), nullptr);
}

RichTextBox::Edit& RichTextBox::Inner() const {
    return *static_cast<Edit*>(Widget());
}

bool RichTextBox::Locked() const {
    return Inner().isReadOnly();
}

void RichTextBox::SetLocked(bool locked) {
    Inner().setReadOnly(locked);
    if (locked)  // keys still move the caret, where the next picture comes in
        Inner().setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
}

void RichTextBox::Paste() {
    const QImage picture = Outside::Current().Picture();
    if (Locked() || picture.isNull())
        return;
    QTextCursor cursor = Inner().textCursor();
    cursor.clearSelection();
    InsertPicture(cursor, PictureFrom(picture, ++lastNumber_));
    Inner().setTextCursor(cursor);
    Inner().ensureCursorVisible();
}

std::shared_ptr<const RichTextBox::Pictures> RichTextBox::AllPictures() const {
    return std::make_shared<const Pictures>(PicturesOf(*Inner().document()));
}

void RichTextBox::Append(const Pictures& pictures) {
    QTextCursor cursor(Inner().document());
    cursor.movePosition(QTextCursor::End);
    for (PictureInText picture : pictures) {
        picture.number = ++lastNumber_;
        InsertPicture(cursor, picture);
    }
    Inner().setTextCursor(cursor);
}

void RichTextBox::SetSelText(const std::string& text) {
    QTextCursor cursor = Inner().textCursor();
    const bool removes = cursor.hasSelection();
    cursor.beginEditBlock();
    cursor.insertText(ShownText(text));
    if (removes && text.empty())
        DropEmptyLine(cursor);
    cursor.endEditBlock();
    Inner().setTextCursor(cursor);
}

void RichTextBox::SetSelection(int start, int length) {
    QTextCursor cursor = Inner().textCursor();
    cursor.setPosition(std::clamp(start, 0, TextLength()));
    cursor.setPosition(std::clamp(start + length, 0, TextLength()), QTextCursor::KeepAnchor);
    Inner().setTextCursor(cursor);
}

std::string RichTextBox::Text() const {
    return Inner().toPlainText().toStdString();
}

int RichTextBox::TextLength() const {
    return Inner().document()->characterCount() - 1;
}

int RichTextBox::PictureCount() const {
    return static_cast<int>(PicturesOf(*Inner().document()).size());
}

std::string RichTextBox::TextRTF(const Paper& paper, int margin) const {
    return RichTextOf(*Inner().document(), paper, margin);
}

std::string RichTextBox::LastPictureRTF(const Paper& paper, int margin) const {
    const auto pictures = PicturesOf(*Inner().document());
    const auto last = std::max_element(
        pictures.begin(), pictures.end(),
        [](const PictureInText& a, const PictureInText& b) { return a.number < b.number; });
    if (last == pictures.end())
        return {};
    QTextDocument alone;
    QTextCursor cursor(&alone);
    InsertPicture(cursor, *last);
    return RichTextOf(alone, paper, margin);
}

void RichTextBox::SetLineWidth(int twips) {
    Inner().setLineWrapMode(twips > 0 ? QTextEdit::FixedPixelWidth : QTextEdit::WidgetWidth);
    Inner().setLineWrapColumnOrWidth(ToPixels(twips));
}

int RichTextBox::FormatRange(PageCanvas* canvas, const PageFormat& format) {
    const bool alone = format.target.Width() == 0 || format.target.Height() == 0;
    const TwipsRect& target = alone ? format.drawing : format.target;
    const PageLayout& layout = Layout(target);
    QPainter* painter = canvas ? canvas->Painter() : nullptr;
    const double scale = ScaleOf(format.drawing, target);
    if (!painter || scale <= 0)
        return layout.Format(nullptr, format.first);
    painter->save();
    painter->setClipRect(format.page.left, format.page.top, format.page.Width(),
                         format.page.Height());
    painter->translate(format.drawing.left, format.drawing.top);
    painter->scale(scale, scale);
    const int next = layout.Format(painter, format.first);
    painter->restore();
    return next;
}

const PageLayout& RichTextBox::Layout(const TwipsRect& area) {
    const TwipsRect size{0, 0, std::max(area.Width(), 1), std::max(area.Height(), 1)};
    if (!layout_ || !(size == laidOutFor_))
        layout_ =
            std::make_unique<PageLayout>(*Inner().document(), QSizeF(size.Width(), size.Height()));
    laidOutFor_ = size;
    return *layout_;
}

void RichTextBox::ReleasePages() {
    layout_.reset();
}

}  // namespace trabeon
