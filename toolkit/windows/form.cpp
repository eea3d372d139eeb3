#include "toolkit/windows/form.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QVBoxLayout>
#include <algorithm>

#include "toolkit/controls/control.h"
#include "toolkit/look/shown_text.h"
#include "toolkit/windows/mdi_window.h"

namespace trabeon {

// The inside of a form, with its controls.
class Form::Body : public QWidget {
  public:
    explicit Body(Form& form) : form_(form) {}

  protected:
    void resizeEvent(QResizeEvent*) override { form_.Resized(); }

  private:
    Form& form_;
};

class Form::ChildFrame : public QMdiSubWindow {
  public:
    explicit ChildFrame(Form& form) : form_(form) {
        const auto platform = QKeySequence::keyBindings(QKeySequence::Close);
        for (QAction* action : systemMenu()->actions())
            if (action->shortcuts() == platform)  // Ctrl+F4 is missing on some platforms
                action->setShortcuts({QKeySequence("Ctrl+F4"), QKeySequence("Ctrl+W")});
    }

  protected:
    void closeEvent(QCloseEvent* event) override {
        event->ignore();  // Unload closes the form
        form_.ClosedByUser();
        form_.Unload();
    }

  private:
    Form& form_;
};

class Form::DialogFrame : public QDialog {
  public:
    explicit DialogFrame(Form& form)
        : QDialog(nullptr, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                               Qt::WindowCloseButtonHint),
          form_(form) {}

    void reject() override { form_.Unload(); }

  private:
    Form& form_;
};

namespace {

Qt::WindowFlags ChildFlags(FormBorder border) {
    if (border == FormBorder::Sizable)
        return Qt::SubWindow;
    // Without the system menu hint there is no close button either.
    return Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
           Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
}

QVBoxLayout& EmptyLayout(QWidget& owner) {
    auto* layout = new QVBoxLayout(&owner);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return *layout;
}

// Activates the visible child that was used last before this one.
void ActivateNext(QMdiArea& area) {
    const QList<QMdiSubWindow*> children = area.subWindowList(QMdiArea::ActivationHistoryOrder);
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
        if (!(*child)->isHidden()) {
            area.setActiveSubWindow(*child);
            return;
        }
    }
}

// Moves a child into the area. It got its place before it had its size.
void BringInSight(QMdiSubWindow& child) {
    const QSize room = child.mdiArea()->viewport()->size() - child.size();
    child.move(std::clamp(child.x(), 0, std::max(0, room.width())),
               std::clamp(child.y(), 0, std::max(0, room.height())));
}

}  // namespace

Form::Form(const std::string& caption, FormBorder border)
    : border_(border), body_(new Body(*this)) {
    if (border == FormBorder::FixedDialog) {
        auto* frame = new DialogFrame(*this);
        EmptyLayout(*frame).addWidget(body_);
        SetWidget(frame);
    } else {
        auto* frame = new ChildFrame(*this);
        auto* host = new QWidget;
        EmptyLayout(*host).addWidget(body_);
        frame->setWidget(host);
        SetWidget(frame);
    }
    SetCaption(caption);
    Form::Resize(ToPixels(4800), ToPixels(3600));
}

Form::~Form() {
    delete Widget();
}

std::string Form::Caption() const {
    return Widget()->windowTitle().toStdString();
}

void Form::SetCaption(const std::string& caption) {
    Widget()->setWindowTitle(ShownText(caption));
}

QWidget* Form::Canvas() const {
    return body_;
}

int Form::ScaleWidth() const {
    return body_->width() * TwipsPerPixel;
}

int Form::ScaleHeight() const {
    return body_->height() * TwipsPerPixel;
}

void Form::SetScaleSize(int width, int height) {
    if (!Widget()->isVisible() && border_ != FormBorder::FixedDialog) {
        wantedInside_ = {width, height};  // a child has no border until it first shows
    }
    const QSize border = Widget()->size() - body_->size();
    Resize(ToPixels(width) + border.width(), ToPixels(height) + border.height());
}

void Form::SetSmallestScaleSize(int width, int height) {
    body_->setMinimumSize(ToPixels(width), ToPixels(height));
}

void Form::Resize(int pixelsWide, int pixelsHigh) {
    if (border_ == FormBorder::FixedToolWindow || border_ == FormBorder::FixedDialog)
        Widget()->setFixedSize(pixelsWide, pixelsHigh);
    else
        Placement::Resize(pixelsWide, pixelsHigh);
    // While a form is hidden, its layout would wait and its inner size would be the old one.
    Widget()->layout()->activate();
    if (QLayout* layout = body_->parentWidget()->layout())
        layout->activate();
}

void Form::Load(std::function<void()> unload, MdiWindow& window) {
    unload_ = std::move(unload);
    window_ = &window;
    if (border_ != FormBorder::FixedDialog)
        window.Area().addSubWindow(static_cast<ChildFrame*>(Widget()), ChildFlags(border_));
    Form_Load();
    loaded_ = true;
    if (!unload_)
        return;  // it was unloaded on the way
    Form_Resize();
    if (!hidden_ && border_ != FormBorder::FixedDialog)
        Show();
}

void Form::Resized() {
    if (loaded_ && unload_)
        Form_Resize();
}

void Form::Show() {
    if (!unload_)
        return;
    hidden_ = false;
    if (border_ == FormBorder::FixedDialog) {
        ShowDialog();
        return;
    }
    auto* frame = static_cast<ChildFrame*>(Widget());
    const bool comesUp = !frame->isVisible();
    if (frame->isMinimized())
        frame->showNormal();
    frame->show();
    if (const auto [width, height] = std::exchange(wantedInside_, {}); width > 0) {
        SetScaleSize(width, height);
        BringInSight(*frame);
    }
    window_->Area().setActiveSubWindow(frame);
    if (comesUp && first_)
        first_->Widget()->setFocus();  // hiding has moved the focus
}

// The form may be gone when the loop returns, so nothing of it is used after that.
void Form::ShowDialog() {
    QEventLoop loop;
    endDialog_ = [&loop] { loop.quit(); };
    Widget()->setWindowModality(Qt::ApplicationModal);
    Widget()->show();
    loop.exec();
}

void Form::Hide() {
    hidden_ = true;
    const bool wasActive = window_ && window_->Area().activeSubWindow() == Widget();
    Widget()->hide();
    if (wasActive)
        ActivateNext(window_->Area());
    if (endDialog_)
        std::exchange(endDialog_, nullptr)();
}

bool Form::Visible() const {
    return Widget()->isVisible();
}

WindowState Form::State() const {
    return StateOf(*Widget());
}

void Form::SetState(WindowState state) {
    SetStateOf(*Widget(), state);
}

void Form::Unload() {
    if (const auto unload = unload_)  // a copy, because Retire clears the member while it runs
        unload();
}

void Form::Retire() {
    unload_ = nullptr;
    Hide();
    if (border_ != FormBorder::FixedDialog)
        window_->Area().removeSubWindow(Widget());
}

void Form::SetTabOrder(std::initializer_list<const Control*> controls) {
    first_ = *controls.begin();
    const Control* former = nullptr;
    for (const Control* control : controls) {
        if (former)
            QWidget::setTabOrder(former->Widget(), control->Widget());
        former = control;
    }
}

Menu Form::AddMenu(const std::string& caption) {
    auto* host = static_cast<QVBoxLayout*>(body_->parentWidget()->layout());
    if (!host->menuBar())
        host->setMenuBar(new QMenuBar(body_->parentWidget()));
    return {*static_cast<QMenuBar*>(host->menuBar()), caption};
}

}  // namespace trabeon
