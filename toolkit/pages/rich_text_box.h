// A box for text and pictures. The user reads it, cuts from it and pastes pictures into it. It can
// draw its text page by page on a canvas. Positions count characters from 0; a picture is one
// character.
#pragma once

#include <QImage>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/controls/control.h"
#include "toolkit/outside/paper.h"
#include "toolkit/pages/page_canvas.h"

namespace trabeon {

class PageLayout;
struct PictureInText;

/// Where a page is drawn.
struct PageFormat {
    TwipsRect page;     // of the device
    TwipsRect drawing;  // the part of the page for the text
    /// The area that the text is laid out for. The page is scaled down to `drawing`, so that pages
    /// break in the same places on every device. Empty: the same as `drawing`.
    TwipsRect target{};
    int first = 0;  // the position at which the page begins
};

class RichTextBox : public Control {
  public:
    explicit RichTextBox(Container& parent);
    ~RichTextBox() override;

    /// In a locked box the user can select and copy, but not type or paste.
    [[nodiscard]] bool Locked() const;
    void SetLocked(bool locked);

    /// Inserts the picture on the clipboard at the caret, unless the box is locked. Keeps the
    /// selected text.
    void Paste();
    /// Replaces the selection with this text, also in a locked box. If the line of a removed
    /// picture is then empty, the line is removed too.
    void SetSelText(const std::string& text);
    void SetSelection(int start, int length);

    [[nodiscard]] std::string Text() const;
    [[nodiscard]] int TextLength() const;
    [[nodiscard]] int PictureCount() const;
    /// AllPictures gives all pictures, and Append adds them at the end of another box.
    using Pictures = std::vector<PictureInText>;
    [[nodiscard]] std::shared_ptr<const Pictures> AllPictures() const;
    void Append(const Pictures& pictures);
    /// The content as rich text, each picture in a separate paragraph with its size on this paper.
    /// `margin` is in twips.
    [[nodiscard]] std::string TextRTF(const Paper& paper, int margin) const;
    /// The picture that came in last, alone as rich text. Empty if the text has no picture.
    [[nodiscard]] std::string LastPictureRTF(const Paper& paper, int margin) const;

    /// The width at which lines break, in twips. 0: the width of the box.
    void SetLineWidth(int twips);

    /// Draws one page. Without a canvas it only measures. Returns the position at which the next
    /// page begins; after the last page, the length of the text. The layout is kept for the next
    /// page.
    virtual int FormatRange(PageCanvas* canvas, const PageFormat& format);
    /// Drops the layout that FormatRange keeps.
    void ReleasePages();

  private:
    class Edit;
    Edit& Inner() const;
    const PageLayout& Layout(const TwipsRect& area);

    int lastNumber_ = 0;  // the number of the last picture that came in
    std::unique_ptr<PageLayout> layout_;
    TwipsRect laidOutFor_;
};

}  // namespace trabeon
