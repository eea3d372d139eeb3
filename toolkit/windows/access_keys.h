// If the child window in front and the menu bar have the same access key, the child window gets it.
// Without this the two would take turns. If several menus or several controls share a key, the
// first one comes first.
#pragma once

#include <QKeySequence>
#include <QObject>

class QAction;
class QMainWindow;
class QMdiArea;

namespace trabeon {

class AccessKeys : public QObject {
  public:
    /// Filters the keys of the whole program. The area owns it.
    AccessKeys(QMainWindow& window, QMdiArea& area);

    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    QMainWindow& window_;
    QMdiArea& area_;
    QKeySequence former_;                     // the access key pressed just before
    const QAction* openBeforeAlt_ = nullptr;  // the menu that Alt has closed
};

}  // namespace trabeon
