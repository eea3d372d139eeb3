#include "toolkit/frame.h"

#include <QGroupBox>

#include "toolkit/shown_text.h"

namespace trabeon {

Frame::Frame(Container& parent, const std::string& caption)
    : Control(new QGroupBox(ShownText(caption), parent.Canvas())) {}

QWidget* Frame::Canvas() const {
    return Widget();
}

}  // namespace trabeon
