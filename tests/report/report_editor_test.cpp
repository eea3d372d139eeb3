#include <QClipboard>
#include <QMimeData>

#include "forms/input/frmDiagram.h"
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmContinuousS.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmMoment1.h"
#include "forms/results/frmShear1.h"
#include "report/sent_pictures.h"
#include "tests/report/report_fixture.h"

namespace trabeon::test {
namespace {

using ReportEditor = ReportTest;

TEST_F(ReportEditor, EveryFormWithADiagramAddsItSharpAndOpenLosesTheReport) {
    const auto open = [&] {
        outside.ExpectOpen("Open Trabeon File", EXAMPLES "/five-span-with-cantilever.TB");
        Choose("&File|&Open");
        context().dataChanged = 0;
    };
    open();
    Click(forms().Get<frmAnalysis>().cmdAnalyse);
    Click(forms().Get<frmPoint>().cmdReport);
    EXPECT_TRUE(Report().Visible());
    Report().Hide();
    Click(forms().Get<frmUDL>().cmdReport);
    Click(forms().Get<frmDiagram>().cmdReport);
    EXPECT_FALSE(forms().IsLoaded("frmDiagram"));
    auto& moments = forms().Get<frmContinuousTB>();
    moments.SetScaleSize(20000, 9000);
    Click(forms().Get<frmMoment1>().cmdReport);
    Click(forms().Get<frmShear1>().cmdReport);
    Click(moments.cmdReport);
    Click(forms().Get<frmContinuousS>().cmdReport);
    EXPECT_FALSE(Report().Visible()) << "it is loaded: adding leaves it out of sight";
    EXPECT_TRUE(RTB().Locked());
    const auto dots = Numbers(Rtf(), "\\pngblip\\picw"), twips = Numbers(Rtf(), "\\picwgoal");
    ASSERT_EQ(twips.size(), 7U);
    for (std::size_t i = 0; i < twips.size(); ++i)
        EXPECT_GE(1440.0 * dots[i] / twips[i], 300) << "dots an inch on paper, picture " << i;
    open();
    EXPECT_EQ(RTB().PictureCount(), 0);
}

TEST_F(ReportEditor, TheLockedBoxRefusesKeysAndPasteAnUnlockedOneTakesAPictureAlone) {
    Add(100, 50);
    RTB().SetFocus();
    for (const bool locked : {true, false}) {
        RTB().SetLocked(locked);
        QGuiApplication::clipboard()->setText("text");
        Keys(Qt::Key_V);
        if (locked)
            Type(RTB(), "abc\b");
        EXPECT_EQ(RTB().TextLength(), 1);
        outside.clipboardPicture = pictureOf(10, 10);
        QGuiApplication::clipboard()->setImage(outside.clipboardPicture);
        Keys(Qt::Key_V);
        RTB().Paste();
        EXPECT_EQ(RTB().PictureCount(), locked ? 1 : 3);
        outside.clipboardPicture = QImage();
        RTB().Paste();
        EXPECT_EQ(RTB().PictureCount(), locked ? 1 : 3) << "there is no picture";
    }
}

TEST_F(ReportEditor, PicturesGoInAtTheCaretEachOnALineOfItsOwn) {
    using Shown = std::vector<int>;
    Add(100, 50);
    Add(200, 80);
    EXPECT_EQ(Widths(Rtf()), (Shown{100, 200}));
    EXPECT_EQ(RTB().TextLength(), 3);
    Select(0, 0);
    Add(300, 20);
    Add(310, 20);  // behind the one before
    EXPECT_EQ(Widths(Rtf()), (Shown{300, 310, 100, 200}));
    EXPECT_EQ(RTB().TextLength(), 7);
    Select(0, 7);
    Add(320, 20);  // what is selected is not lost
    EXPECT_EQ(Widths(Rtf()), (Shown{300, 310, 100, 200, 320}));
}

TEST_F(ReportEditor, CutRemovesTheSelectionAndLeavesTheClipboardAlone) {
    for (const int wide : {100, 200, 300})
        Add(wide, 50);
    const auto clipboard = outside.clipboardPicture;
    Cut();
    EXPECT_EQ(RTB().TextLength(), 5) << "nothing was selected";
    Select(2, 1);
    RTB().SetFocus();
    Keys(Qt::Key_C);
    EXPECT_EQ(QGuiApplication::clipboard()->image(), pictureOf(200, 50));
    EXPECT_EQ(QGuiApplication::clipboard()->image().devicePixelRatio(), 4);
    Cut();
    EXPECT_EQ(Widths(Rtf()), (std::vector<int>{100, 300}));
    EXPECT_EQ(RTB().TextLength(), 3) << "the line went with its picture";
    EXPECT_EQ(outside.clipboardPicture, clipboard);
    RTB().SetFocus();
    Keys(Qt::Key_A);
    Cut();
    EXPECT_EQ(RTB().TextLength(), 0);
}

TEST_F(ReportEditor, CloseHidesAndKeepsAndNewLoses) {
    Add(100, 50);
    Report().mnufileexit.Choose();
    EXPECT_FALSE(Report().Visible());
    Choose("&Report|&View Report...");
    EXPECT_TRUE(Report().Visible());
    EXPECT_EQ(RTB().PictureCount(), 1);
    Choose("&File|&New");
    EXPECT_FALSE(forms().IsLoaded("frmReport"));
    EXPECT_EQ(RTB().PictureCount(), 0);
}

TEST_F(ReportEditor, TheControlsFollowTheSizeAndTheWindowComesUpInSight) {
    forms().Show("frmContinuousTB");
    const QRect frame = Report().Widget()->geometry();
    EXPECT_TRUE(Report().Widget()->parentWidget()->rect().contains(frame));
    Report().SetScaleSize(9000, 6000);
    Settle();
    const auto& cut = Report().cmdCut;
    const auto& wp = Report().cmdWP;
    const int w = Report().ScaleWidth() - 650;
    const auto expectAt = [](const Control& control, int left, int top) {
        EXPECT_NEAR(control.Left(), left, 8);  // on a whole pixel
        EXPECT_NEAR(control.Top(), top, 8);
    };
    expectAt(RTB(), 100, 600);
    expectAt(cut, w + 250, 600);
    expectAt(wp, w + 150, 1500);
    EXPECT_NEAR(RTB().Width(), w, 8);
    EXPECT_NEAR(RTB().Height(), Report().ScaleHeight() - 600, 8);
    EXPECT_LE(cut.Left() + cut.Width(), Report().ScaleWidth());
    EXPECT_LE(cut.Top() + cut.Height(), wp.Top());
    Report().SetScaleSize(0, 0);
    EXPECT_GE(Report().ScaleHeight(), wp.Top() + wp.Height());
}

TEST_F(ReportEditor, SavesPicturesSharpAtTheSizeTheyHaveOnPaper) {
    Add(400, 100);
    Add(1200, 100);  // wider than the paper
    context().CommonDialog1.FileName = (folder / "beam.TB").string();
    SaveReport((folder / "other.rtf").string());
    EXPECT_EQ(outside.lastQuestion.filter, "Rich Text Format (*.RTF) |*.RTF");
    EXPECT_EQ(outside.lastQuestion.fileName, (folder / "beam.rtf").string());
    EXPECT_TRUE(outside.lastQuestion.asksBeforeOverwriting);
    const auto rtf = folder.read("other.rtf");
    EXPECT_EQ(rtf.substr(0, 6), "{\\rtf1");
    EXPECT_NE(rtf.find("\\paperw11900\\paperh16840\\margl1440"), std::string::npos);
    EXPECT_EQ(Count(rtf, "\\pngblip"), 2);
    EXPECT_EQ(Count(rtf, "\n89504e470d0a1a0a"), 2);
    EXPECT_NE(rtf.find("\\picw1600\\pich400\\picwgoal6000\\pichgoal1500"), std::string::npos);
    EXPECT_NE(rtf.find("\\picw4800\\pich400\\picwgoal9020\\pichgoal752"), std::string::npos);
    EXPECT_EQ(Count(rtf, "{"), Count(rtf, "}"));
    const auto before = folder.contents();
    SaveReport("");
    EXPECT_EQ(folder.contents(), before) << "the user drew back";
    EXPECT_EQ(outside.lastQuestion.fileName, (folder / "other.rtf").string());
    EXPECT_EQ(context().CommonDialog1.FileName, (folder / "beam.TB").string()) << "the project's";
}

TEST_F(ReportEditor, ASaveThatFailsIsToldAndLeavesTheOldFile) {
    Add(100, 50);
    folder.write("old.rtf", "old");
    folder.protect("old.rtf");
    const auto path = (folder / "old.rtf").string();
    outside.ExpectSave("Save Trabeon Report File", path);
    ExpectUnwritten("old.rtf");
    Report().mnuSave.Choose();
    EXPECT_EQ(folder.read("old.rtf"), "old");
}

TEST_F(ReportEditor, TheWordProcessorGetsThePictureThatWasAddedLast) {
    outside.ExpectMsgBox("The report has no picture. Add one with Add To Report, then try again.");
    Click(Report().cmdWP);
    Add(100, 50);
    Select(0, 0);
    Add(200, 50);
    outside.ExpectDocument((folder / "Picture 1.rtf").string());
    Click(Report().cmdWP);
    EXPECT_EQ(Widths(folder.read("Picture 1.rtf")), (std::vector<int>{200}));
    Select(0, 1);
    Cut();
    const auto second = (folder / "Picture 2.rtf").string();
    outside.ExpectDocument(second, false);
    outside.ExpectMsgBox("The desktop has no program for rich text. The picture is in \"" + second +
                         "\": open it in a word processor.");
    Click(Report().cmdWP);
    EXPECT_EQ(Widths(folder.read("Picture 2.rtf")), (std::vector<int>{100}));
}

TEST_F(ReportEditor, PicturesThatWereSentGoWhenTheWordProcessorHasReadThem) {
    Add(200, 50);
    for (const auto* name : {"Picture 1.rtf", "Picture 2.rtf", "Picture 3.rtf"}) {
        outside.ExpectDocument((folder / name).string());
        Click(Report().cmdWP);
    }
    folder.write("Picture 4.rtf", "the user's own");
    std::filesystem::permissions(folder / "Picture 3.rtf", std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::add);  // and saved
    const auto left = [this] {
        std::string numbers;
        for (const auto& [name, text] : folder.contents())
            if (name.starts_with("Picture"))
                numbers += name[8];
        return numbers;
    };
    const auto longAgo = std::filesystem::file_time_type::clock::now() - std::chrono::hours(2);
    for (const auto* name : {"Picture 1.rtf", "Picture 3.rtf", "Picture 4.rtf"})
        std::filesystem::last_write_time(folder / name, longAgo);
    removeLentPictures(folder.path());
    EXPECT_EQ(left(), "234") << "the second may not be read yet, the others are the user's";
    std::filesystem::last_write_time(folder / "Picture 2.rtf", longAgo);
    removeLentPictures(folder.path());
    EXPECT_EQ(left(), "34");
}

}  // namespace
}  // namespace trabeon::test
