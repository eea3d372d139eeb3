// How the beam answers its loads: a picture, and two lists with the values.
#pragma once

#include <optional>

#include "forms/check/beam_answer.h"
#include "forms/drawing/beam_picture.h"
#include "forms/shared/context.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/label.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/drawing/drawing_view.h"
#include "toolkit/windows/form.h"

namespace trabeon {

class frmReactions : public Form {
  public:
    static constexpr const char* Name = "frmReactions";

    explicit frmReactions(Context& context);

    /// Reads the rows again and shows the beam that they make, or why there are no results.
    void Refresh();

    DrawingView picBeam{*this};
    Label lblRefusal{*this, ""};  // in the picture's place
    ListView lvwJoints{*this,
                       {{"Joint", 555},
                        {"Type", 990},
                        {"x", 660, "Distance from the left end of the beam"},
                        {"Reaction", 885, "Upward positive"},
                        {"Moment", 885, "At a fixed end, sagging positive"},
                        {"Rotation", 1050, "Positive if the beam goes down to the right"}}};
    ListView lvwMembers{*this,
                        {{"Member", 675},
                         {"M left", 765, "Bending moment at the left joint, sagging positive"},
                         {"M right", 765, "Bending moment at the right joint, sagging positive"},
                         {"V left", 765, "Shear right of the left joint: minus its reaction"},
                         {"V right", 765, "Shear left of the right joint"},
                         {"M max", 765, "Greatest bending moment of the member"},
                         {"at x", 690, "Distance from the left joint of the member"},
                         {"M min", 765, "Least bending moment of the member"},
                         {"at x", 690, "Distance from the left joint of the member"},
                         {"Defl.", 990, "Greatest deflection of the member, downward positive"},
                         {"at x", 690, "Distance from the left joint of the member"},
                         {"L /", 810, "Length divided by the size of the deflection"}}};
    Button cmdReport{*this, "Add To Repor&t"};
    Label lblUnits;

  protected:
    void Form_Load() override;
    void Form_Resize() override;

  private:
    void fillJoints();
    void fillMembers();
    void highlight(const BeamPart& part);
    ListView& choose(const BeamPart& part);
    void picBeam_Click(double x, double y);
    void cmdReport_Click();
    [[nodiscard]] BeamPicture pictureOf(const BeamPart& selected) const;

    Context& context_;
    std::optional<BeamAnswer> answer_;
    BeamSketch sketch_;
    BeamPart selected_;
};

}  // namespace trabeon
