#include "toolkit/frame.h"

#include <QGroupBox>

namespace trabeon {

Frame::Frame(Container& parent, const std::string& caption)
    : Control(new QGroupBox(QString::fromStdString(caption), parent.Canvas())) {}

QWidget* Frame::Canvas() const {
    return Widget();
}

}  // namespace trabeon
