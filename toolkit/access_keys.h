// Where a child window and the menu bar have the same access key, the child window in front answers
// it: without this the two would take turns.
#pragma once

#include <QObject>

class QMdiArea;

namespace trabeon {

class AccessKeys : public QObject {
  public:
    // Looks at the keys of the whole program; lives as long as the area.
    explicit AccessKeys(QMdiArea& area);

    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    QMdiArea& area_;
};

}  // namespace trabeon
