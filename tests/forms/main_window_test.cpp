#include <gtest/gtest.h>

#include "core/store/working_files.h"
#include "forms/main/frmTitle.h"
#include "forms/results/frmAnalysis.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

namespace fs = std::filesystem;
constexpr auto question = "Save changes to Trabeon Analysis?";
constexpr auto saveDialog = "Save Trabeon File";
constexpr auto openDialog = "Open Trabeon File";

class MainWindow : public ProgramTest {
  protected:
    std::string example(const std::string& name) const {
        return std::string(EXAMPLES) + "/" + name;
    }

    void Change() {
        auto& title = forms().Get<frmTitle>();
        title.SetTitle({"Mill", "Me", "B" + std::to_string(++changes_)});
        ASSERT_EQ(context().dataChanged, 1);
    }

  private:
    int changes_ = 0;
};

void appendMenu(const QMenu& menu, const QString& indent, QString& text) {
    for (const auto* action : menu.actions()) {
        text += indent + (action->isSeparator() ? "-" : action->text());
        if (!action->shortcut().isEmpty())
            text += " [" + action->shortcut().toString() + "]";
        if (!action->isEnabled())
            text += " (off)";
        text += '\n';
        if (action->menu() != nullptr)
            appendMenu(*action->menu(), indent + "  ", text);
    }
}

TEST_F(MainWindow, MenuTreeIsToTheLetter) {
    QString tree;
    for (const auto* action : menuBar().actions()) {
        tree += action->text() + '\n';
        if (action->text() != "&Window")
            appendMenu(*action->menu(), "  ", tree);
    }
    EXPECT_EQ(
        tree.toStdString(),
        "&File\n  &New [Ctrl+N]\n  &Open [Ctrl+O]\n  -\n  &Save [Ctrl+S]\n  Save &As\n  -\n"
        "  &Print... [Ctrl+P]\n  -\n  E&xit\n"
        "&Structure\n  &Title\n  -\n  &Joints...\n  -\n  &Members...\n  -\n  &Loading\n"
        "    &Point Load...\n    &Uniformly Distributed Load...\n  -\n  &Analyse...\n"
        "&Diagram\n  &Continuous Beam Diagram (off)\n    &Bending Moment Diagram...\n"
        "    &Shear Force Diagram...\n  -\n  &Single Span Diagram (off)\n    &Bending Moment "
        "Diagram...\n"
        "    &Shear Force Diagram...\n  -\n  Plotting &Options...\n"
        "&Design\n  Beam &Dimensions...\n  &Miscellaneous Properties...\n  &Design Beam...\n"
        "&Tools\n  &Table of Steel Reinforcement Areas\n  Table of &Shear Resistance For Links\n"
        "&Report\n  &View Report...\n"
        "&Window\n"
        "&Help\n  &Contents and Index [F1]\n  &Example\n");
}

TEST_F(MainWindow, StartOpensTheManualAndEmptiesTheSevenFiles) {
    folder.write("Joint.txt", "1,Fixed,\"left by a former run\"\r\n");
    folder.write("DResult.txt", "kept");
    Start();
    for (const auto name : projectFiles)
        EXPECT_EQ(folder.read(std::string(name)), "") << name;
    EXPECT_EQ(folder.read("DResult.txt"), "kept");
    EXPECT_EQ(caption(), "Trabeon - Untitled");
    EXPECT_EQ(context().dataChanged, 0);
    const auto middle = program.window().Left() + program.window().Width() / 2;
    EXPECT_NEAR(middle, MdiWindow::ScreenWidth() / 2, 2 * TwipsPerPixel);
    outside.ExpectDocument((folder / "Example1.htm").string(), false);  // no browser: nothing shows
    Choose("&Help|&Example");
    outside.ExpectDocument((folder / "Contents and Index.htm").string());
    QTest::keyClick(&window(), Qt::Key_F1);
}

TEST_F(MainWindow, StartKeepsTheRowsOfARunWithoutExit) {
    folder.write("Joint.txt", " 1,Fixed,\"left by a former run\"\r\n");
    fs::create_directory(folder / "Recovered.TB.new");
    outside.ExpectDocument((folder / "Contents and Index.htm").string());
    outside.ExpectCopyCheck(false);
    outside.ExpectMsgBox(
        "The rows of the last run, which ended without Exit, cannot be kept: \"" +
        (folder / "Recovered.TB").string() +
        "\" could not be written (Is a directory). What stood there before is unchanged; make room "
        "or choose another folder, then try again.");
    EXPECT_FALSE(program.Start());
    EXPECT_NE(folder.read("Joint.txt"), "");
    fs::remove(folder / "Recovered.TB.new");
    Start();
    EXPECT_EQ(folder.read("Joint.txt"), "");
    outside.ExpectOpen(openDialog, (folder / "Recovered.TB").string());
    Choose("&File|&Open");
    EXPECT_EQ(folder.read("Joint.txt"), "1,Fixed,left by a former run\r\n");
    EXPECT_EQ(context().dataChanged, 0);
}

TEST_F(MainWindow, SecondCopyEndsBeforeItTouchesAFile) {
    folder.write("Joint.txt", "1,Fixed,\"of the running copy\"\r\n");
    const auto before = folder.contents();
    outside.ExpectDocument((folder / "Contents and Index.htm").string());
    outside.ExpectCopyCheck(true);
    outside.ExpectMsgBox("Trabeon is already running.");
    EXPECT_FALSE(program.Start());
    EXPECT_EQ(outside.lastStyle, 48);
    EXPECT_EQ(outside.lastTitle, "Trabeon");
    EXPECT_EQ(folder.contents(), before);
}

TEST_F(MainWindow, UnwritableFolderIsToldAtTheStart) {
    fs::create_directory(folder / "Writable.tmp.new");
    outside.ExpectDocument((folder / "Contents and Index.htm").string());
    outside.ExpectCopyCheck(false);
    outside.ExpectMsgBox(
        "Trabeon keeps its working files in its own folder, \"" + folder.path().string() +
        "\", and cannot write there. Move the program to a folder of yours, or make room on its disk, then "
        "start it again.");
    EXPECT_FALSE(program.Start());
}

TEST_F(MainWindow, ExitWithoutChangesAsksNothingAndDeletesTheFifteenFiles) {
    Start();
    for (const auto name : filesDeletedAtExit)
        folder.write(std::string(name), "x");
    for (const auto* kept : {"BeamDim.txt", "DResult.txt", "BM.tmp"})
        folder.write(kept, "kept");
    outside.ExpectEnd();
    Choose("&File|E&xit");
    EXPECT_EQ(folder.contents(),
              (std::map<std::string, std::string>{
                  {"BeamDim.txt", "kept"}, {"DResult.txt", "kept"}, {"BM.tmp", "kept"}}));
}

TEST_F(MainWindow, FirstSaveAsksForAPathAndLaterOnesDoNot) {
    Start();
    const auto path = (folder / "Job.TB").string();
    outside.ExpectSave(saveDialog, path);
    QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(outside.lastQuestion.filter, "Trabeon File (*.TB) |*.TB");
    EXPECT_TRUE(outside.lastQuestion.asksBeforeOverwriting);
    EXPECT_EQ(caption(), "Trabeon - " + path.substr(1));  // what follows the leftmost separator
    EXPECT_NE(folder.read("Job.TB").find("\"Untitled\"\r\n\"Annonymous\"\r\n\"Beam Name\"\r\n"),
              std::string::npos);
    EXPECT_TRUE(forms().Get<frmTitle>().Visible());  // reading its boxes brought it up

    outside.ExpectOpen(openDialog, path);
    Choose("&File|&Open");
    EXPECT_EQ(context().dataChanged, 0);  // the default title is no change
    EXPECT_EQ(forms().Get<frmAnalysis>().txtTBResults.Text(), "");

    Change();
    Choose("&File|&Save");
    EXPECT_EQ(context().dataChanged, 0);
    EXPECT_NE(folder.read("Job.TB").find("\"Mill\"\r\n\"Me\"\r\n\"B1\"\r\n"), std::string::npos);
}

TEST_F(MainWindow, FailedSaveTellsWhyAndKeepsTheFlagAndTheOldFile) {
    Start();
    const auto path = (folder / "Job.TB").string();
    folder.write("Job.TB", "old");
    fs::create_directory(folder / "Job.TB.new");
    Change();
    outside.ExpectSave(saveDialog, path);
    outside.ExpectMsgBox("\"" + path +
                         "\" could not be written (Is a directory). What stood there before is "
                         "unchanged; make room or choose another folder, then try again.");
    Choose("&File|Save &As");
    EXPECT_EQ(context().dataChanged, 1);
    EXPECT_EQ(folder.read("Job.TB"), "old");
    EXPECT_EQ(caption(), "Trabeon - Untitled");
    EXPECT_EQ(context().CommonDialog1.FileName, "");
}

TEST_F(MainWindow, NewAsksClosesAllFormsAndForgetsTheName) {
    Start();
    Change();
    outside.ExpectMsgBox(question, Answer::Cancel);
    Choose("&File|&New");
    EXPECT_EQ(outside.lastStyle, 51);
    EXPECT_EQ(forms().Get<frmTitle>().Title().project, "Mill");
    outside.ExpectMsgBox(question, Answer::Yes);
    outside.ExpectSave(saveDialog, "");  // a cancelled Save As counts as cancelled too
    Choose("&File|&New");
    EXPECT_EQ(context().dataChanged, 1);
    outside.ExpectMsgBox(question, Answer::Yes);
    outside.ExpectSave(saveDialog, (folder / "Job.TB").string());
    folder.write("Joint.txt", "1,Fixed,\"None\"\r\n");
    QTest::keyClick(&window(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_NE(folder.read("Job.TB").find("1,Fixed,\"None\"\r\n"), std::string::npos);
    EXPECT_EQ(folder.read("Joint.txt"), "");
    EXPECT_EQ(caption(), "Trabeon - Untitled");
    EXPECT_FALSE(forms().IsLoaded("frmTitle"));
    EXPECT_EQ(forms().Get<frmTitle>().Title().project, "Untitled");
    outside.ExpectSave(saveDialog, "");
    Choose("&File|&Save");
}

TEST_F(MainWindow, OpenUnpacksShowsTheTableAndCountsAnOwnTitleAsAChange) {
    Start();
    const auto path = example("two-span-floor-beam.TB");
    outside.ExpectOpen(openDialog, path);
    QTest::keyClick(&window(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(caption(), "Trabeon - " + path.substr(1));
    EXPECT_EQ(forms().Get<frmTitle>().Title().project, "Library extension");
    EXPECT_FALSE(forms().Get<frmTitle>().Visible());
    EXPECT_TRUE(forms().Get<frmAnalysis>().Visible());
    EXPECT_EQ(forms().Get<frmAnalysis>().txtTBResults.Text(), folder.read("TB.txt"));
    EXPECT_NE(folder.read("TB.txt").find("Final     +0.00E+00     +5.40E+01"), std::string::npos);
    EXPECT_EQ(context().dataChanged, 1);

    outside.ExpectMsgBox(question, Answer::Yes);
    outside.ExpectOpen(openDialog, example("five-span-with-cantilever.TB"));
    context().CommonDialog1.FileName =
        (folder / "copy.TB").string();  // saved there, not over the example
    Choose("&File|&Open");
    EXPECT_EQ(folder.read("copy.TB"),
              TemporaryFolder::readFile(path));  // open then save: the same lines
}

TEST_F(MainWindow, CancelledOrRefusedOpenLeavesTheProjectAsItWas) {
    Start();
    Change();
    outside.ExpectSave(saveDialog, (folder / "Job.TB").string());
    Choose("&File|&Save");
    const auto name = caption();
    folder.write("bad.TB", "WARNNING!\r\nTITLE\r\n\"a\"\r\n");
    const auto before = folder.contents();
    outside.ExpectOpen(openDialog, "");
    Choose("&File|&Open");
    outside.ExpectOpen(openDialog, (folder / "bad.TB").string());
    outside.ExpectMsgBox("\"" + (folder / "bad.TB").string() +
                         "\" is not a whole project file: line 4: the file ends where the designer "
                         "was expected. Mend that line; nothing was changed.");
    Choose("&File|&Open");
    EXPECT_EQ(folder.contents(), before);
    EXPECT_EQ(caption(), name);
    EXPECT_EQ(context().dataChanged, 0);
    EXPECT_FALSE(forms().IsLoaded("frmAnalysis"));
    EXPECT_EQ(forms().Get<frmTitle>().Title().project, "Mill");
    Change();
    Choose("&File|&Save");  // goes to Job.TB still
    EXPECT_NE(folder.read("Job.TB"), before.at("bad.TB"));
    EXPECT_EQ(folder.read("bad.TB"), before.at("bad.TB"));
}

TEST_F(MainWindow, ClosingAsksAgainAfterACancel) {
    Start();
    Change();
    outside.ExpectMsgBox(question, Answer::Cancel);
    outside.ExpectMsgBox(question, Answer::Cancel);
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(fs::exists(folder / "Joint.txt"));
    outside.ExpectMsgBox(question, Answer::Cancel);
    outside.ExpectMsgBox(question, Answer::No);
    outside.ExpectEnd();
    window().close();
    EXPECT_FALSE(fs::exists(folder / "Joint.txt"));

    Change();
    outside.ExpectMsgBox(question, Answer::No);
    outside.ExpectEnd();
    window().close();
}

TEST_F(MainWindow, CenterFormKeepsTheSize) {
    Start();
    auto& title = forms().Get<frmTitle>();
    title.Move(0, 0, 3000, 1500);
    CenterForm(title, &program.window());
    EXPECT_EQ(title.Width(), 3000);
    EXPECT_EQ(title.Left(),
              (program.window().Left() + (program.window().Width() - 3000) / 2) / 15 * 15);
}

TEST_F(MainWindow, TypedTitlesSetTheFlagAndStayWhenHidden) {
    Start();
    Choose("&Structure|&Title");
    auto& title = forms().Get<frmTitle>();
    EXPECT_EQ(title.ScaleHeight(), 2190);
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
