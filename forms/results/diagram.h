// What the four diagram forms have in common: a chart with the sign of its option, the buttons Plot
// and Add To Report, and the members to choose from.
#pragma once

#include "core/analysis/diagram_curve.h"
#include "forms/settings/frmOptions.h"
#include "toolkit/chart/graph.h"

namespace trabeon {

/// What makes a moment diagram differ from a shear diagram.
struct DiagramKind {
    const char* title;
    const char* value;   // title of the value axis
    const char* symbol;  // the value in the readout
    StationField field;
    Label frmOptions::*option;  // its caption tells which way up to draw
    const char* sideA;          // the same in plain words
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

    /// "Member", `blanks` and the number, for each member of the beam.
    [[nodiscard]] std::vector<std::string> memberItems(const char* blanks) const;
    [[nodiscard]] std::size_t rowsPerMember() const;
    /// The result files as they are now.
    [[nodiscard]] DiagramCurve spanOf(std::size_t member) const;
    [[nodiscard]] DiagramCurve beamOf(const std::vector<std::size_t>& members) const;

    /// What the note begins with: the member, where the diagram is that of one.
    [[nodiscard]] virtual std::string subject() const { return {}; }

    /// Gives the chart the curve point by point, of which `count` were asked for, and calls
    /// `pointDone` with the points so far.
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
