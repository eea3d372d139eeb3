#include "toolkit/desktop/page_window.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTextBrowser>
#include <QUrl>

namespace trabeon {

namespace {

constexpr QSize usualSize(840, 720);

// A button with a key. A shortcut of the button itself would wait to show the press.
QPushButton& AddButton(QWidget& window, QHBoxLayout& bar, const QString& text,
                       const QKeySequence& key) {
    auto* button = new QPushButton(text);
    auto* shortcut = new QShortcut(key, &window);
    QObject::connect(shortcut, &QShortcut::activated, button, &QPushButton::click);
    button->setToolTip(text + " (" + key.toString(QKeySequence::NativeText) + ")");
    button->setAutoDefault(true);
    button->setEnabled(false);  // until a page has been shown
    bar.addWidget(button);
    return *button;
}

}  // namespace

PageWindow::PageWindow() : view_(*new QTextBrowser) {
    setAttribute(Qt::WA_QuitOnClose, false);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(6, 5, 6, 5);
    bar->setSpacing(6);
    QPushButton& back = AddButton(*this, *bar, "Back", Qt::ALT | Qt::Key_Left);
    QPushButton& forward = AddButton(*this, *bar, "Forward", Qt::ALT | Qt::Key_Right);
    bar->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(bar);
    layout->addWidget(&view_);
    setFocusProxy(&view_);
    connect(&back, &QPushButton::clicked, &view_, &QTextBrowser::backward);
    connect(&forward, &QPushButton::clicked, &view_, &QTextBrowser::forward);
    connect(&view_, &QTextBrowser::backwardAvailable, &back, &QWidget::setEnabled);
    connect(&view_, &QTextBrowser::forwardAvailable, &forward, &QWidget::setEnabled);
    connect(&view_, &QTextBrowser::sourceChanged, this, [this] {
        setWindowTitle(view_.documentTitle());
        view_.setAccessibleName(view_.documentTitle());
    });
    connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &QWidget::close);
    resize(usualSize.boundedTo(screen()->availableSize()));
}

void PageWindow::Open(const QString& path) {
    const bool asked = QApplication::activeWindow() != nullptr;
    view_.setSource(QUrl::fromLocalFile(path));
    setAttribute(Qt::WA_ShowWithoutActivating, !asked);
    show();
    if (!asked)
        return;
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    view_.setFocus();
}

}  // namespace trabeon
