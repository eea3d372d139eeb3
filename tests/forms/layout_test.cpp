// The layout of all windows: at their size, larger, and at none.
#include <QLabel>
#include <QTreeWidget>

#include "forms/check/frmReactions.h"
#include "forms/design/frmBeamDesign.h"
#include "forms/design/frmBeamDimensions.h"
#include "forms/design/frmShearResistance.h"
#include "forms/design/frmSteelArea.h"
#include "forms/input/frmDiagram.h"
#include "forms/input/frmJoints.h"
#include "forms/input/frmMembers.h"
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "forms/main/frmTitle.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmBMData.h"
#include "forms/results/frmContinuousS.h"
#include "forms/results/frmMoment1.h"
#include "forms/settings/frmMisc.h"
#include "forms/settings/frmOptions.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

class Layout : public ProgramTest {
  protected:
    Layout() { Start(); }

    /// Every control is inside its form and none on another; captions are not cut.
    static void ExpectTidy(const Form& form) {
        SCOPED_TRACE(form.Caption());
        ExpectTidy(*form.Canvas());
        for (const auto* label : form.Canvas()->findChildren<QLabel*>())
            EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
    }
    static void ExpectTidy(const QWidget& canvas) {
        const auto placed = canvas.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (const auto* widget : placed) {
            const std::string name = widget->metaObject()->className();
            if (name == "QGroupBox" || name == "QFrame")
                ExpectTidy(*widget);
            EXPECT_TRUE(canvas.rect().contains(widget->geometry())) << name;
            for (const auto* other : placed)
                EXPECT_TRUE(widget == other || widget->isHidden() || other->isHidden() ||
                            !widget->geometry().intersects(other->geometry()))
                    << name << " on " << other->metaObject()->className();
        }
    }
    /// The list takes all the room that a larger window gives, and stays there in a small one.
    static void ExpectListFollows(Form& form) {
        const auto* list = form.Canvas()->findChild<QTreeWidget*>();
        const QSize before = list == nullptr ? QSize() : list->size();
        form.Move(0, 0, form.Width() + 1500, form.Height() + 900);
        ExpectTidy(form);
        if (list != nullptr) {
            EXPECT_NEAR(list->width(), before.width() + 100, 1) << form.Caption();
            EXPECT_NEAR(list->height(), before.height() + 60, 1) << form.Caption();
        }
        form.Move(0, 0, 0, 0);
        for (const auto* widget : form.Canvas()->findChildren<QWidget*>())
            EXPECT_GE(std::min(widget->width(), widget->height()), 0) << form.Caption();
    }
    template <class... Fs>
    void ExpectAll() {
        (ExpectTidy(forms().Get<Fs>()), ...);
        (ExpectListFollows(forms().Get<Fs>()), ...);
    }
};

TEST_F(Layout, ControlsFollowTheWindowAndNoneCoversAnother) {
    folder.write("Member.txt", "1,200,2,6,a\r\n");
    ExpectAll<frmJoints, frmMembers, frmPoint, frmUDL, frmBeamDimensions, frmDiagram, frmAnalysis,
              frmContinuousS, frmMoment1, frmBMData, frmBeamDesign, frmSteelArea,
              frmShearResistance, frmTitle, frmOptions, frmMisc>();
    ExpectTidy(forms().Get<frmReactions>());
}

TEST_F(Layout, TheColumnsOfATableFitItsWindow) {
    for (const auto* list :
         {&forms().Get<frmBeamDimensions>().ListView1, &forms().Get<frmBeamDesign>().ListView1,
          &forms().Get<frmSteelArea>().ListView1, &forms().Get<frmShearResistance>().ListView1}) {
        const auto& tree = *static_cast<const QTreeWidget*>(list->Widget());
        int width = 0;
        for (int column = 0; column < tree.columnCount(); ++column)
            width += tree.columnWidth(column);
        EXPECT_LE(width, tree.viewport()->width());
    }
}

}  // namespace
}  // namespace trabeon::test
