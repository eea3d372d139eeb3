#include "toolkit/controls/frame.h"

#include <QGroupBox>

#include "toolkit/look/shown_text.h"

namespace trabeon {

Frame::Frame(Container& parent, const std::string& caption)
    : Control(new QGroupBox(ShownText(caption), parent.Canvas())) {}

QWidget* Frame::Canvas() const {
    return Widget();
}

}  // namespace trabeon
