#include "toolkit/windows/mdi_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <vector>

#include "toolkit/look/shown_text.h"
#include "toolkit/windows/access_keys.h"

namespace trabeon {

class MdiWindow::Window : public QMainWindow {
  public:
    explicit Window(MdiWindow& owner)
        : owner_(owner), area(new QMdiArea(this)), lastEvent(new QLabel), summary(new QLabel) {
        setCentralWidget(area);
        // A long event is cut off and does not make the window wider.
        lastEvent->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        lastEvent->setTextFormat(Qt::PlainText);
        lastEvent->setContentsMargins(6, 0, 0, 0);
        lastEvent->setAccessibleName("Latest event");
        summary->setAccessibleName("Summary of the project");
        statusBar()->addWidget(lastEvent, 1);
        statusBar()->addPermanentWidget(summary);
        new AccessKeys(*this, *area);
        // When a child is closed, the one used before it comes to the front, not the oldest.
        area->setActivationOrder(QMdiArea::ActivationHistoryOrder);
        // The next child, whose size may be fixed, is not maximised because this one is.
        area->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
        area->setBackground(palette().brush(QPalette::Dark));
        area->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        area->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
        resize(QSize(1320, 860).boundedTo(screen()->availableSize() * 0.95));
    }

  protected:
    void closeEvent(QCloseEvent* event) override {
        bool cancel = false;
        if (owner_.QueryUnload)
            owner_.QueryUnload(cancel);
        if (!cancel && owner_.Unload)
            owner_.Unload(cancel);
        event->setAccepted(!cancel);
    }

  private:
    MdiWindow& owner_;

  public:
    QMdiArea* const area;
    QLabel* const lastEvent;
    QLabel* const summary;
};

namespace {

QString ListCaption(const QMdiSubWindow& child, int position) {
    const QString title = child.windowTitle().replace('&', "&&");
    return (position < 10 ? QString("&%1 %2") : QString("%1 %2")).arg(position).arg(title);
}

void FillWindowList(QMdiArea& area, Menu& menu) {
    int position = 0;
    for (QMdiSubWindow* child : area.subWindowList()) {
        if (child->isHidden())
            continue;
        menu.Add(ListCaption(*child, ++position).toStdString(), "",
                 [&area, child] { area.setActiveSubWindow(child); });
    }
    if (position == 0)
        menu.Add("(No window is open)", "", [] {}).SetEnabled(false);
}

struct KeptChild {
    QString form;
    QRect place;
    WindowState state;
};

QMdiSubWindow* ChildNamed(const QMdiArea& area, const QString& form) {
    for (QMdiSubWindow* child : area.subWindowList())
        if (child->objectName() == form && !child->isHidden())
            return child;
    return nullptr;
}

void PutBack(const QMdiArea& area, const KeptChild& kept) {
    QMdiSubWindow* child = ChildNamed(area, kept.form);
    if (!child)
        return;
    SetStateOf(*child, kept.state);
    if (kept.state == WindowState::Normal)
        child->setGeometry(kept.place);
    child->raise();
}

}  // namespace

MdiWindow::MdiWindow(const std::string& caption) {
    SetWidget(new Window(*this));
    SetCaption(caption);
}

MdiWindow::~MdiWindow() {
    delete Widget();
}

MdiWindow::Window& MdiWindow::Inner() const {
    return *static_cast<Window*>(Widget());
}

QMdiArea& MdiWindow::Area() const {
    return *Inner().area;
}

std::string MdiWindow::Caption() const {
    return caption_;
}

void MdiWindow::SetCaption(const std::string& caption) {
    caption_ = caption;
    Inner().setWindowTitle(ShownText(caption));
}

int MdiWindow::ScaleWidth() const {
    return Area().width() * TwipsPerPixel;
}

int MdiWindow::ScaleHeight() const {
    return Area().height() * TwipsPerPixel;
}

int MdiWindow::ScreenWidth() {
    return QGuiApplication::primaryScreen()->availableGeometry().width() * TwipsPerPixel;
}

int MdiWindow::ScreenHeight() {
    return QGuiApplication::primaryScreen()->availableGeometry().height() * TwipsPerPixel;
}

void MdiWindow::AddKey(const std::string& key, std::function<void()> pressed) {
    auto* shortcut = new QShortcut(QKeySequence(QString::fromStdString(key)), &Inner());
    QObject::connect(shortcut, &QShortcut::activated, std::move(pressed));
}

Menu MdiWindow::AddMenu(const std::string& caption) {
    return {*Inner().menuBar(), caption};
}

Menu MdiWindow::AddWindowList(const std::string& caption) {
    Menu menu = AddMenu(caption);
    menu.SetFiller([area = &Area()](Menu& list) { FillWindowList(*area, list); });
    return menu;
}

std::function<void()> MdiWindow::KeptWindows() const {
    std::vector<KeptChild> kept;
    for (const QMdiSubWindow* child : Area().subWindowList(QMdiArea::StackingOrder))
        if (!child->isHidden())
            kept.push_back({child->objectName(), child->geometry(), StateOf(*child)});
    const QMdiSubWindow* active = Area().activeSubWindow();
    return [kept, area = &Area(), front = active ? active->objectName() : QString()] {
        for (const KeptChild& child : kept)
            PutBack(*area, child);
        if (QMdiSubWindow* child = ChildNamed(*area, front))
            area->setActiveSubWindow(child);
    };
}

void MdiWindow::SetEvent(const std::string& text) {
    Inner().lastEvent->setText(QString::fromStdString(text));
    Inner().lastEvent->setToolTip(Inner().lastEvent->text());
}

std::string MdiWindow::Event() const {
    return Inner().lastEvent->text().toStdString();
}

void MdiWindow::SetSummary(const std::string& text) {
    Inner().summary->setText(QString::fromStdString(text));
}

std::string MdiWindow::Summary() const {
    return Inner().summary->text().toStdString();
}

WindowState MdiWindow::State() const {
    return StateOf(Inner());
}

void MdiWindow::SetState(WindowState state) {
    SetStateOf(Inner(), state);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MdiWindow::Show() {
    Inner().show();
}

void MdiWindow::Close() {
    Inner().close();
}

}  // namespace trabeon
