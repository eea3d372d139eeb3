// The chart forms as an output uses them. Each Copy function puts a picture on the clipboard.
#pragma once

namespace trabeon {

class ChartForms {
  public:
    ChartForms() = default;
    virtual ~ChartForms() = default;
    ChartForms(const ChartForms&) = delete;
    ChartForms& operator=(const ChartForms&) = delete;

    /// Shows frmMoment1 and frmShear1. Returns the number of members in their lists.
    virtual int ShowSingleSpan() = 0;
    /// Plots a member, numbered from 0, and copies the chart.
    virtual void CopyMoment(int member) = 0;
    virtual void CopyShear(int member) = 0;

    /// Maximises the main window and selects all members on both continuous forms.
    virtual void PlotContinuous() = 0;
    /// Maximises a continuous form and copies its chart.
    virtual void CopyContinuousMoment() = 0;
    virtual void CopyContinuousShear() = 0;
    /// Restores the former sizes of the windows.
    virtual void RestoreWindows() = 0;
};

}  // namespace trabeon
