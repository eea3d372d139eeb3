// Drives the program's own chart forms, and leaves them as it found them.
#pragma once

#include <functional>
#include <vector>

#include "output/chart_forms.h"
#include "toolkit/look/placement.h"

namespace trabeon {

struct Context;

class ChartDriver : public ChartForms {
  public:
    explicit ChartDriver(Context& context);
    /// Forms that it loaded are unloaded; the others show again what they showed, where they stood.
    ~ChartDriver() override;

    int ShowSingleSpan() override;
    void CopyMoment(int member) override;
    void CopyShear(int member) override;
    void PlotContinuous() override;
    void CopyContinuousMoment() override;
    void CopyContinuousShear() override;
    void RestoreWindows() override;

  private:
    template <class Form>
    Form& take();
    template <class Form>
    void takeSingleSpan();
    template <class Form>
    void selectAll();

    Context& context_;
    std::vector<std::function<void()>> restores_;  // the last one first
    WindowState frame_ = WindowState::Normal;
};

}  // namespace trabeon
