// A window that shows pages of the manual if the desktop has no browser.
#pragma once

#include <QWidget>

class QTextBrowser;

namespace trabeon {

/// Links lead from page to page. Back and Forward, or Alt+Left and Alt+Right, go through the pages
/// already seen. Escape closes the window; it keeps its place.
class PageWindow : public QWidget {
  public:
    PageWindow();

    /// Shows the page in front. If no window of the program is active, for example at the start,
    /// the main window gets the keyboard, because it comes up at the same time.
    void Open(const QString& path);

  private:
    QTextBrowser& view_;
};

}  // namespace trabeon
