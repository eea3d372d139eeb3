#include "toolkit/windows/wait_cursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace trabeon {

WaitCursor::WaitCursor() {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitCursor::~WaitCursor() {
    QGuiApplication::restoreOverrideCursor();
}

}  // namespace trabeon
