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
#include "tests/report/report_fixture.h"

namespace trabeon::test {
namespace {

using ReportEditor = ReportTest;

TEST_F(ReportEditor, EveryInputFormWithASketchAddsIt) {
    Click(forms().Get<frmPoint>().cmdReport);
    EXPECT_EQ(RTB().PictureCount(), 1);
    EXPECT_TRUE(Report().Visible());
    Click(forms().Get<frmUDL>().cmdReport);
    EXPECT_EQ(RTB().PictureCount(), 2);
    Click(forms().Get<frmDiagram>().cmdReport);
    EXPECT_EQ(RTB().PictureCount(), 3);
    EXPECT_FALSE(forms().IsLoaded("frmDiagram"));
    EXPECT_TRUE(RTB().Locked());
}

TEST_F(ReportEditor, EveryDiagramAddsItsChartAndOpenLosesTheReport) {
    const std::string example = std::string(EXAMPLES) + "/five-span-with-cantilever.TB";
    const auto open = [&] {
        outside.ExpectOpen("Open Trabeon File", example);
        Choose("&File|&Open");
        context().dataChanged = 0;
    };
    open();
    Click(forms().Get<frmAnalysis>().cmdAnalyse);
    auto& moment = forms().Get<frmMoment1>();
    moment.cboMember.SetListIndex(1);
    Click(moment.cmdReport);
    auto& shear = forms().Get<frmShear1>();
    shear.cboMember.SetListIndex(1);
    Click(shear.cmdReport);
    auto& moments = forms().Get<frmContinuousTB>();
    auto& shears = forms().Get<frmContinuousS>();
    for (int i = 0; i < 5; ++i) {
        moments.List1.SetSelected(i, true);
        shears.List1.SetSelected(i, true);
    }
    Click(moments.cmdReport);
    Click(shears.cmdReport);
    EXPECT_EQ(RTB().PictureCount(), 4);
    Report().Hide();
    EXPECT_EQ(RTB().PictureCount(), 4);
    open();
    EXPECT_EQ(RTB().PictureCount(), 0);
}

TEST_F(ReportEditor, TheLockedBoxRefusesKeysAndPaste) {
    Add(100, 50);
    EXPECT_TRUE(RTB().Locked());
    RTB().SetFocus();
    Type(RTB(), "abc");
    Press(RTB(), Qt::Key_Backspace);
    outside.clipboardPicture = pictureOf(10, 10);
    RTB().Paste();
    QGuiApplication::clipboard()->setImage(pictureOf(10, 10));
    QTest::keyClick(RTB().Widget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(RTB().PictureCount(), 1);
    EXPECT_EQ(RTB().TextLength(), 1);
}

TEST_F(ReportEditor, AnUnlockedBoxTakesAPictureButNoText) {
    RTB().SetLocked(false);
    QGuiApplication::clipboard()->setText("text");
    QTest::keyClick(RTB().Widget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(RTB().TextLength(), 0);
    outside.clipboardPicture = pictureOf(10, 10);
    QGuiApplication::clipboard()->setImage(outside.clipboardPicture);
    QTest::keyClick(RTB().Widget(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(RTB().PictureCount(), 1);
    outside.clipboardPicture = QImage();
    RTB().Paste();
    EXPECT_EQ(RTB().PictureCount(), 1);
}

/// The widths of the pictures of a rich text, in the order of the text.
std::string Widths(const std::string& rtf) {
    std::string widths;
    for (auto at = rtf.find("\\picwgoal"); at != std::string::npos; at = rtf.find("\\picwgoal", at))
        widths += std::to_string(std::stoi(rtf.substr(at += 9)) / TwipsPerPixel) + " ";
    return widths;
}

TEST_F(ReportEditor, PicturesGoInAtTheCaretEachOnALineOfItsOwn) {
    const auto shown = [&] { return Widths(RTB().TextRTF(outside.paper, 1440)); };
    Add(100, 50);
    Add(200, 80);
    EXPECT_EQ(shown(), "100 200 ");
    EXPECT_EQ(RTB().TextLength(), 3);
    RTB().SetSelection(0, 0);
    Add(300, 20);
    EXPECT_EQ(shown(), "300 100 200 ");
    Add(310, 20);  // behind the one before
    EXPECT_EQ(shown(), "300 310 100 200 ");
    EXPECT_EQ(RTB().TextLength(), 7);
    RTB().SetSelection(0, 7);
    Add(320, 20);  // what is selected is not lost
    EXPECT_EQ(shown(), "300 310 100 200 320 ");
}

TEST_F(ReportEditor, CutRemovesTheSelectionAndLeavesTheClipboardAlone) {
    for (int wide : {100, 200, 300})
        Add(wide, 50);
    const auto clipboard = outside.clipboardPicture;
    Click(Report().cmdCut);
    EXPECT_EQ(RTB().TextLength(), 5) << "nothing was selected";
    RTB().SetSelection(2, 1);
    Click(Report().cmdCut);
    EXPECT_EQ(Widths(RTB().TextRTF(outside.paper, 1440)), "100 300 ");
    EXPECT_EQ(RTB().TextLength(), 3) << "the line went with its picture";
    EXPECT_EQ(outside.clipboardPicture, clipboard);
    RTB().SetFocus();
    QTest::keyClick(RTB().Widget(), Qt::Key_A, Qt::ControlModifier);
    Click(Report().cmdCut);
    EXPECT_EQ(RTB().TextLength(), 0);
}

TEST_F(ReportEditor, CopyTakesTheSelectedPicture) {
    Add(100, 50);
    Add(200, 50);
    RTB().SetSelection(2, 1);
    RTB().SetFocus();
    QTest::keyClick(RTB().Widget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(400, 100));
}

TEST_F(ReportEditor, CloseHidesAndKeepsAndNewLoses) {
    Add(100, 50);
    Report().mnufileexit.Choose();
    EXPECT_FALSE(Report().Visible());
    Add(100, 50);
    EXPECT_FALSE(Report().Visible()) << "it is loaded: adding leaves it out of sight";
    Choose("&Report|&View Report...");
    EXPECT_TRUE(Report().Visible());
    EXPECT_EQ(RTB().PictureCount(), 2);
    Choose("&File|&New");
    EXPECT_FALSE(forms().IsLoaded("frmReport"));
    EXPECT_EQ(RTB().PictureCount(), 0);
}

TEST_F(ReportEditor, TheControlsFollowTheSize) {
    Report().SetScaleSize(9000, 6000);
    Settle();
    const int w = Report().ScaleWidth() - 650;
    EXPECT_EQ(RTB().Left(), 105);  // 100, on a whole pixel
    EXPECT_EQ(RTB().Top(), 600);
    EXPECT_NEAR(RTB().Width(), w, 8);
    EXPECT_NEAR(RTB().Height(), Report().ScaleHeight() - 600, 8);
    EXPECT_NEAR(Report().cmdCut.Left(), w + 250, 8);
    EXPECT_NEAR(Report().cmdWP.Left(), w + 150, 8);
    EXPECT_EQ(Report().cmdWP.Top(), 1500);
    for (const auto* button : {&Report().cmdCut, &Report().cmdWP})
        EXPECT_LE(button->Left() + button->Width(), Report().ScaleWidth());
    EXPECT_LE(Report().cmdCut.Top() + Report().cmdCut.Height(), Report().cmdWP.Top());
    Report().SetScaleSize(0, 0);
    EXPECT_GE(Report().ScaleHeight(), Report().cmdWP.Top() + Report().cmdWP.Height());
}

TEST_F(ReportEditor, SavesPicturesSharpAtTheSizeTheyHaveOnPaper) {
    Add(400, 100);
    Add(1200, 100);  // wider than the paper
    const auto path = (folder / "beam.rtf").string();
    SaveReport(path);
    EXPECT_EQ(outside.lastQuestion.filter, "Rich Text Format (*.RTF) |*.RTF");
    EXPECT_TRUE(outside.lastQuestion.asksBeforeOverwriting);
    const auto rtf = folder.read("beam.rtf");
    EXPECT_EQ(rtf.substr(0, 6), "{\\rtf1");
    EXPECT_NE(rtf.find("\\paperw11900\\paperh16840\\margl1440"), std::string::npos);
    EXPECT_EQ(Count(rtf, "\\pngblip"), 2);
    EXPECT_EQ(Count(rtf, "\n89504e470d0a1a0a"), 2);
    EXPECT_NE(rtf.find("\\picw800\\pich200\\picwgoal6000\\pichgoal1500"), std::string::npos);
    EXPECT_NE(rtf.find("\\picw2400\\pich200\\picwgoal9020\\pichgoal752"), std::string::npos);
    EXPECT_EQ(Count(rtf, "{"), Count(rtf, "}"));
}

TEST_F(ReportEditor, SavingLeavesTheProjectsPathAlone) {
    context().CommonDialog1.FileName = (folder / "beam.TB").string();
    Add(100, 50);
    SaveReport((folder / "other.rtf").string());
    EXPECT_EQ(outside.lastQuestion.fileName, (folder / "beam.rtf").string());
    EXPECT_EQ(context().CommonDialog1.FileName, (folder / "beam.TB").string());
    SaveReport("");
    EXPECT_EQ(outside.lastQuestion.fileName, (folder / "other.rtf").string());
    EXPECT_EQ(context().CommonDialog1.FileName, (folder / "beam.TB").string());
}

TEST_F(ReportEditor, ACancelWritesNothingAndAFailureLeavesTheOldFile) {
    Add(100, 50);
    const auto before = folder.contents();
    SaveReport("");
    EXPECT_EQ(folder.contents(), before);
    folder.write("old.rtf", "old");
    std::filesystem::create_directory(folder / "old.rtf.new");
    outside.ExpectSave("Save Trabeon Report File", (folder / "old.rtf").string());
    outside.ExpectMsgBox("\"" + (folder / "old.rtf").string() +
                         "\" could not be written (Is a directory). What stood there before is "
                         "unchanged; make room or choose another folder, then try again.");
    Report().mnuSave.Choose();
    EXPECT_EQ(folder.read("old.rtf"), "old");
}

TEST_F(ReportEditor, ADiskThatFillsUpIsTold) {
    Add(100, 50);
    std::filesystem::create_symlink("/dev/full", folder / "report.rtf.new");
    outside.ExpectSave("Save Trabeon Report File", (folder / "report.rtf").string());
    outside.ExpectMsgBox(
        "\"" + (folder / "report.rtf").string() +
        "\" could not be written (No space left on device). What stood there "
        "before is unchanged; make room or choose another folder, then try again.");
    Report().mnuSave.Choose();
    EXPECT_FALSE(std::filesystem::exists(folder / "report.rtf"));
}

TEST_F(ReportEditor, TheWordProcessorGetsThePictureThatWasAddedLast) {
    outside.ExpectMsgBox(
        "There is no picture in the report. Put one there with Add To Report, then try again.");
    Click(Report().cmdWP);
    Add(100, 50);
    RTB().SetSelection(0, 0);
    Add(200, 50);
    const auto first = folder / "Picture 1.rtf";
    outside.ExpectDocument(first.string());
    Click(Report().cmdWP);
    EXPECT_EQ(Widths(folder.read("Picture 1.rtf")), "200 ");
    RTB().SetSelection(0, 1);
    Click(Report().cmdCut);
    outside.ExpectDocument((folder / "Picture 2.rtf").string(), false);
    outside.ExpectMsgBox("The desktop has no program for rich text. The picture is in \"" +
                         (folder / "Picture 2.rtf").string() + "\": open it in a word processor.");
    Click(Report().cmdWP);
    EXPECT_EQ(Widths(folder.read("Picture 2.rtf")), "100 ");
}

}  // namespace
}  // namespace trabeon::test
