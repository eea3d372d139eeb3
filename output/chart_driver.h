// Operates the chart forms of the program and restores them afterwards.
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
    /// Unloads the forms that it loaded. Restores the content and the place of the others.
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
    std::vector<std::function<void()>> restores_;  // run in reverse order
    WindowState frame_ = WindowState::Normal;
};

}  // namespace trabeon
