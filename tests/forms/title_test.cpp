#include <gtest/gtest.h>

#include "forms/main/frmTitle.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

class Title : public ProgramTest {};

TEST_F(Title, TypedTextsSetTheFlagAndStayWhenHidden) {
    Start();
    Choose("&Structure|&Title");
    auto& title = forms().Get<frmTitle>();
    EXPECT_EQ(title.ScaleHeight(), 2190);
    EXPECT_LT(title.cmdOK.Top() + title.cmdOK.Height(), title.ScaleHeight());
    EXPECT_TRUE(title.txtProject.HasFocus());
    EXPECT_EQ(title.txtProject.SelLength(), 8);  // the whole text, on entry
    EXPECT_EQ(context().dataChanged, 0);
    Type(title.txtProject, "Mill \"west\"");  // a double quote would cut the field in the file
    EXPECT_EQ(title.txtProject.Text(), "Mill west");
    EXPECT_EQ(context().dataChanged, 1);
    Press(title.txtProject, Qt::Key_Tab);
    Type(title.txtDesigner, "Ann");
    Press(title.txtDesigner, Qt::Key_Tab);
    EXPECT_TRUE(title.txtBeamName.HasFocus());
    Press(title.txtBeamName, Qt::Key_Tab);
    EXPECT_TRUE(title.cmdOK.HasFocus());
    Press(title.cmdOK, Qt::Key_Space);
    EXPECT_FALSE(title.Visible());
    Choose("&Structure|&Title");
    EXPECT_EQ(&forms().Get<frmTitle>(), &title);
    EXPECT_EQ(title.Title().designer, "Ann");
}

}  // namespace
}  // namespace trabeon::test
