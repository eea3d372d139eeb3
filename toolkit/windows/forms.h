// The forms that are loaded, at most one of each kind. The first touch of a form loads it, and a
// loaded child comes up by itself unless it hides itself.
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

// A form class F tells its name as `static constexpr const char* Name = "frmTitle";`.
class Forms {
  public:
    explicit Forms(MdiWindow& window);
    ~Forms();
    Forms(const Forms&) = delete;
    Forms& operator=(const Forms&) = delete;

    // Says how F is made: by F(context). The context must outlive the registry.
    template <class F, class Context>
    void Register(Context& context) {
        makers_[F::Name] = [&context] { return std::make_unique<F>(context); };
    }
    bool IsRegistered(const std::string& name) const;

    // The form; loads it if it is not loaded.
    template <class F>
    F& Get() {
        return static_cast<F&>(Load(F::Name));
    }
    // The form, to be read: if it is loaded for this, its window does not come up.
    template <class F>
    F& InTheBackground() {
        const bool wasLoaded = IsLoaded(F::Name);
        F& form = Get<F>();
        if (!wasLoaded)
            form.Hide();
        return form;
    }
    // The form if it is loaded, else null.
    template <class F>
    F* Loaded() const {
        return static_cast<F*>(Find(F::Name));
    }

    // By name, for whoever needs no more of a form. A name that was never registered ends the
    // program in Show and is passed over by the others.
    void Show(const std::string& name);
    // In sight, while the window in front and its control keep the focus.
    void ShowWithoutFocus(const std::string& name);
    void Unload(const std::string& name);
    bool IsLoaded(const std::string& name) const;
    // Where it stands; null if it is not loaded.
    const Placement* PlaceOf(const std::string& name) const;

    // The frame that the forms stand in.
    MdiWindow& Window() const { return window_; }

    // The last loaded first, also those that are hidden.
    void UnloadAll();

  private:
    struct Entry {
        std::string name;
        std::unique_ptr<Form> form;
    };

    Form& Load(const std::string& name);
    Form* Find(const std::string& name) const;
    void Unload(const Form& form);
    // Takes the form out, and deletes it once no handler of it can be under way.
    void Bury(std::vector<Entry>::iterator entry);

    MdiWindow& window_;
    std::map<std::string, std::function<std::unique_ptr<Form>()>> makers_;
    std::vector<Entry> open_;  // in the order of loading
};

}  // namespace trabeon
