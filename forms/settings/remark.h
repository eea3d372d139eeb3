// What the result windows say beside results that do not belong to the beam as it is now.
#pragma once

#include <string>

#include "forms/shared/context.h"
#include "toolkit/controls/label.h"

namespace trabeon {

/// Of the stations, with the divisions of the options; empty if they are current.
[[nodiscard]] std::string stationsRemark(Context& context);

/// Of the design, with the options and the properties that are set now.
[[nodiscard]] std::string designRemark(Context& context);

/// A strip below a list, seen only while it says something.
class RemarkStrip {
  public:
    explicit RemarkStrip(Container& parent);

    void Say(const std::string& remark);
    /// The height to leave free at the lower edge, in twips: 0 while there is no remark.
    [[nodiscard]] int Height() const;
    /// To the lower edge of a form of this inner size, in twips.
    void Place(int width, int height);

    Label lblRemark;
};

}  // namespace trabeon
