// Where a child window and the menu bar have the same access key, the child window in front answers
// it: without this the two would take turns. Menus that share one begin with the first each time,
// and so do controls.
#pragma once

#include <QKeySequence>
#include <QObject>

class QAction;
class QMainWindow;
class QMdiArea;

namespace trabeon {

class AccessKeys : public QObject {
  public:
    // Looks at the keys of the whole program; lives as long as the area.
    AccessKeys(QMainWindow& window, QMdiArea& area);

    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    QMainWindow& window_;
    QMdiArea& area_;
    QKeySequence former_;  // the access key that was pressed last, at once before
    const QAction* openBeforeAlt_ = nullptr;  // the menu that the press of Alt closed
};

}  // namespace trabeon
