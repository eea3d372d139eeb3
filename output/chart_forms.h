// The chart forms as an output drives them: each call leaves a picture on the clipboard.
#pragma once

namespace trabeon {

class ChartForms {
  public:
    ChartForms() = default;
    virtual ~ChartForms() = default;
    ChartForms(const ChartForms&) = delete;
    ChartForms& operator=(const ChartForms&) = delete;

    /// Shows frmMoment1 and frmShear1; the number of members that they offer.
    virtual int ShowSingleSpan() = 0;
    /// Plots a member, counted from 0, and copies the chart.
    virtual void CopyMoment(int member) = 0;
    virtual void CopyShear(int member) = 0;

    /// Enlarges the main window and selects all members on both continuous forms.
    virtual void PlotContinuous() = 0;
    /// Enlarges a continuous form and copies its chart.
    virtual void CopyContinuousMoment() = 0;
    virtual void CopyContinuousShear() = 0;
    /// The windows go back to their former size.
    virtual void RestoreWindows() = 0;
};

}  // namespace trabeon
