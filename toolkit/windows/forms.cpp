#include "toolkit/windows/forms.h"

#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QObject>
#include <QPointer>
#include <algorithm>

#include "toolkit/windows/form.h"
#include "toolkit/windows/mdi_window.h"

namespace trabeon {

namespace {

// Keeps an unloaded form until the event loop in which it was unloaded continues. Until then a
// handler of the form may still run. Qt delays deleteLater past the inner loops of message boxes.
class DeferredDelete : public QObject {
  public:
    DeferredDelete(QObject* parent, std::unique_ptr<Form> form)
        : QObject(parent), form_(std::move(form)) {
        deleteLater();
    }

  private:
    std::unique_ptr<Form> form_;
};

}  // namespace

Forms::Forms(MdiWindow& window) : window_(window) {}

// Not UnloadAll, because at the end of the program no form must come to the front.
Forms::~Forms() = default;

bool Forms::IsRegistered(const std::string& name) const {
    return makers_.count(name) > 0;
}

Form* Forms::Find(const std::string& name) const {
    for (const Entry& entry : open_)
        if (entry.name == name)
            return entry.form.get();
    return nullptr;
}

Form& Forms::Load(const std::string& name) {
    if (Form* form = Find(name))
        return *form;
    std::unique_ptr<Form> made = makers_.at(name)();
    Form& form = *made;
    // It is in the registry before its load event runs, because that may use it through other
    // forms.
    open_.push_back({name, std::move(made)});
    form.Widget()->setObjectName(QString::fromStdString(name));
    form.Load([this, &form] { Unload(form); }, window_);
    return form;
}

void Forms::Show(const std::string& name) {
    Form* form = Find(name);
    const bool cameUp = !form;
    if (!form)
        form = &Load(name);
    if (!cameUp || !form->Visible())
        form->Show();
}

void Forms::ShowWithoutFocus(const std::string& name) {
    const QPointer<QMdiSubWindow> front = window_.Area().activeSubWindow();
    const QPointer<QWidget> focus = QApplication::focusWidget();
    Show(name);
    Form* form = Find(name);
    if (!front || !form || front == form->Widget())
        return;
    window_.Area().setActiveSubWindow(front);
    if (focus)
        focus->setFocus(Qt::ActiveWindowFocusReason);
    form->Widget()->raise();
}

bool Forms::IsLoaded(const std::string& name) const {
    return Find(name) != nullptr;
}

const Placement* Forms::PlaceOf(const std::string& name) const {
    return Find(name);
}

void Forms::Unload(const std::string& name) {
    const auto entry = std::find_if(open_.begin(), open_.end(),
                                    [&](const Entry& each) { return each.name == name; });
    if (entry != open_.end())
        Remove(entry);
}

void Forms::Unload(const Form& form) {
    const auto entry = std::find_if(open_.begin(), open_.end(),
                                    [&](const Entry& each) { return each.form.get() == &form; });
    if (entry != open_.end())
        Remove(entry);
}

void Forms::UnloadAll() {
    while (!open_.empty())
        Remove(open_.end() - 1);
}

void Forms::Remove(std::vector<Entry>::iterator entry) {
    std::unique_ptr<Form> form = std::move(entry->form);
    open_.erase(entry);
    form->Retire();
    new DeferredDelete(&window_.Area(), std::move(form));
}

}  // namespace trabeon
