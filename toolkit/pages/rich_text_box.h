// A box for pictures among text, which is read, cut and pasted into. It is its own page service: it
// draws itself page by page on any canvas. Positions count characters from 0; a picture is one.
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

// Where one page goes.
struct PageFormat {
    TwipsRect page;     // of the device
    TwipsRect drawing;  // where the text goes in it
    // The area that the text is laid out for; what is drawn is scaled down to the drawing
    // rectangle, so that pages break alike on every device. An empty one: the drawing rectangle's.
    TwipsRect target{};
    int first = 0;  // the position at which the page begins
};

class RichTextBox : public Control {
  public:
    explicit RichTextBox(Container& parent);
    ~RichTextBox() override;

    // A locked box can be selected in and copied from; it takes no key and no paste.
    bool Locked() const;
    void SetLocked(bool locked);

    // The paste message: the clipboard's picture goes in at the caret. What is selected stays.
    void Paste();
    // Sets the text that is selected, locked or not; a picture whose line is left empty takes the
    // line with it.
    void SetSelText(const std::string& text);
    void SetSelection(int start, int length);

    std::string Text() const;
    int TextLength() const;
    int PictureCount() const;
    // All pictures, and how another box gets them: each goes in after those that are there.
    using Pictures = std::vector<PictureInText>;
    std::shared_ptr<const Pictures> AllPictures() const;
    void Append(const Pictures& pictures);
    // A paragraph of its own for each picture, at the size it has on that paper.
    std::string TextRTF(const Paper& paper, int margin) const;
    // The picture that was taken up last of those that stand in the text, as a rich text of its
    // own; empty if there is none.
    std::string LastPictureRTF(const Paper& paper, int margin) const;

    // Lines break at that width; 0: at the box's edge.
    void SetLineWidth(int twips);

    // The page service: draws one page, or only measures it on no canvas, and returns the position
    // at which the next page begins; that is the text's length behind the last page. What was laid
    // out is kept for the next page of the same format.
    virtual int FormatRange(PageCanvas* canvas, const PageFormat& format);
    // Lets go of what was kept.
    void ReleasePages();

  private:
    class Edit;
    Edit& Inner() const;
    const PageLayout& Layout(const TwipsRect& area);

    int taken_ = 0;  // pictures so far
    std::unique_ptr<PageLayout> layout_;
    TwipsRect laidOutFor_;
};

}  // namespace trabeon
