// The remark on results that do not match the current beam.
#pragma once

#include <string>

#include "forms/shared/context.h"
#include "toolkit/controls/label.h"

namespace trabeon {

/// The remark on the stations. Empty if they match the rows and the divisions of the options.
[[nodiscard]] std::string stationsRemark(Context& context);

/// The remark on the design. Empty if it matches the rows, the options and the properties.
[[nodiscard]] std::string designRemark(Context& context);

/// A strip below a list. It is visible only while it has a remark.
class RemarkStrip {
  public:
    explicit RemarkStrip(Container& parent);

    void Say(const std::string& remark);
    /// The height that the strip needs, in twips. 0 without a remark.
    [[nodiscard]] int Height() const;
    /// Moves the strip to the lower edge of a form of this inner size, in twips.
    void Place(int width, int height);

    Label lblRemark;
};

}  // namespace trabeon
