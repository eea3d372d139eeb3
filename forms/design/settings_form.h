// Reading the settings that other forms keep in their controls.
#pragma once

#include "toolkit/forms.h"

namespace trabeon {

/// The form whose controls are to be read. One that is loaded only for that stays out of sight.
template <class F>
F& settingsForm(Forms& forms) {
    if (auto* loaded = forms.Loaded<F>())
        return *loaded;
    auto& form = forms.Get<F>();
    form.Hide();
    return form;
}

}  // namespace trabeon
