// A window of the program that shows pages of the manual, where the desktop has no browser.
#pragma once

#include <QWidget>

class QTextBrowser;

namespace trabeon {

// Links lead from page to page; Back and Forward, or Alt+Left and Alt+Right, retrace them. Escape
// closes the window. It keeps where it was.
class PageWindow : public QWidget {
  public:
    PageWindow();

    // Shows the page and comes to the front. While no window of the program is active, as at the
    // start, it leaves the keyboard to the main window, which comes up at the same time.
    void Open(const QString& path);

  private:
    QTextBrowser& view_;
};

}  // namespace trabeon
