// The base class of the four diagram forms: the chart, its sign by the plotting option, the buttons
// Plot and Add To Report, and the members to select from.
#pragma once

#include "core/analysis/diagram_curve.h"
#include "forms/settings/frmOptions.h"
#include "toolkit/chart/graph.h"

namespace trabeon {

/// The differences between a moment diagram and a shear diagram.
struct DiagramKind {
    const char* title;
    const char* value;   // title of the value axis
    const char* symbol;  // the value in the readout
    StationField field;
    Label frmOptions::*option;  // its caption selects side A or B
    const char* sideA;          // the note on the chart for each side
    const char* sideB;
};

extern const DiagramKind momentDiagram;
extern const DiagramKind shearDiagram;

class Diagram : public Form {
  public:
    Button cmdPlot{*this, "&Plot"};
    Button cmdReport;

  protected:
    Diagram(Context& context, const char* caption, const DiagramKind& kind, const char* xTitle,
            const char* reportCaption);

    virtual void cmdPlot_Click() = 0;

    /// One text for each member of the beam: "Member", `blanks` and the number.
    [[nodiscard]] std::vector<std::string> memberItems(const char* blanks) const;
    [[nodiscard]] std::size_t rowsPerMember() const;
    /// Reads the result files. Members count from 1.
    [[nodiscard]] DiagramCurve spanOf(std::size_t member) const;
    [[nodiscard]] DiagramCurve beamOf(const std::vector<std::size_t>& members) const;

    /// The beginning of the note on the chart. A diagram of one member names the member.
    [[nodiscard]] virtual std::string subject() const { return {}; }

    /// Gives the curve to the chart point by point. `count` is the number of points that a complete
    /// curve has. Calls `pointDone` with the number of points drawn so far.
    void draw(const DiagramCurve& curve, std::size_t count,
              const std::function<void(std::size_t)>& pointDone = {});

    [[nodiscard]] const DiagramKind& kind() const { return kind_; }
    [[nodiscard]] Context& context() const { return context_; }

    Graph chart;

  private:
    void cmdReport_Click();
    [[nodiscard]] std::vector<GraphMark> marksOf(const DiagramCurve& curve) const;

    Context& context_;
    const DiagramKind& kind_;
};

}  // namespace trabeon
