// The loaded forms, at most one of each kind. The first use of a form loads it. A loaded child
// window comes up, unless it hides itself.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace trabeon {

class Form;
class MdiWindow;
class Placement;

/// A form class F has its name as `static constexpr const char* Name = "frmTitle";`.
class Forms {
  public:
    explicit Forms(MdiWindow& window);
    ~Forms();
    Forms(const Forms&) = delete;
    Forms& operator=(const Forms&) = delete;

    /// From now on F can be loaded; it is made as F(context). The context must outlive the
    /// registry.
    template <class F, class Context>
    void Register(Context& context) {
        makers_[F::Name] = [&context] { return std::make_unique<F>(context); };
    }
    [[nodiscard]] bool IsRegistered(const std::string& name) const;

    /// The form. Loads it if it is not loaded.
    template <class F>
    F& Get() {
        return static_cast<F&>(Load(F::Name));
    }
    /// The form, for reading. If this loads it, its window does not come up.
    template <class F>
    [[nodiscard]] F& InTheBackground() {
        const bool wasLoaded = IsLoaded(F::Name);
        F& form = Get<F>();
        if (!wasLoaded)
            form.Hide();
        return form;
    }
    /// The form if it is loaded, otherwise null.
    template <class F>
    [[nodiscard]] F* Loaded() const {
        return static_cast<F*>(Find(F::Name));
    }

    /// These take a form by its name, so that the caller need not include it. Show ends the program
    /// if no form has this name; the others do nothing.
    void Show(const std::string& name);
    /// Shows the form. The window in front and its control keep the focus.
    void ShowWithoutFocus(const std::string& name);
    void Unload(const std::string& name);
    [[nodiscard]] bool IsLoaded(const std::string& name) const;
    /// The place of the form; null if it is not loaded.
    [[nodiscard]] const Placement* PlaceOf(const std::string& name) const;

    /// The main window.
    [[nodiscard]] MdiWindow& Window() const { return window_; }

    /// Unloads all forms, also hidden ones. The form loaded last comes first.
    void UnloadAll();

  private:
    struct Entry {
        std::string name;
        std::unique_ptr<Form> form;
    };

    Form& Load(const std::string& name);
    Form* Find(const std::string& name) const;
    void Unload(const Form& form);
    /// Removes the form, and deletes it when no handler of it can be running any more.
    void Remove(std::vector<Entry>::iterator entry);

    MdiWindow& window_;
    std::map<std::string, std::function<std::unique_ptr<Form>()>> makers_;
    std::vector<Entry> open_;  // in the order of loading
};

}  // namespace trabeon
