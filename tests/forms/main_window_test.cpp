#include <QMdiArea>
#include <QMdiSubWindow>

#include <functional>

#include "core/store/folder_lock.h"
#include "core/store/working_files.h"
#include "forms/input/frmJoints.h"
#include "forms/input/frmMembers.h"
#include "forms/input/frmPoint.h"
#include "forms/main/frmTitle.h"
#include "forms/results/frmAnalysis.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

namespace fs = std::filesystem;

class StartUp : public ProgramTest {
  protected:
    void ExpectManual() { outside.ExpectDocument((folder / "Contents and Index.htm").string()); }
};

class MainWindow : public ProgramTest {
  protected:
    MainWindow() { Start(); }

    void Change() {
        forms().Get<frmTitle>().SetTitle({"Mill", "Me", "B" + std::to_string(++changes_)});
        ASSERT_EQ(context().dataChanged, 1);
    }
    void ExpectQuestion(Answer answer) {
        outside.ExpectMsgBox("Save changes to Trabeon Analysis?", answer);
    }
    void Open(const std::string& path) {
        outside.ExpectOpen("Open Trabeon File", path);
        Choose("&File|&Open");
    }
    void ExpectSave(const std::string& path) { outside.ExpectSave("Save Trabeon File", path); }
    bool Holds(const std::string& file, const std::string& text) {
        return folder.read(file).find(text) != std::string::npos;
    }
    /// What an entry of the middle menus brings to the front.
    QString ShownBy(QAction& entry) {
        static const QStringList others{
            "&New", "&Open", "&Save", "Save &As", "E&xit", "&Contents and Index", "&Example"};
        const auto* area = window().findChild<QMdiArea*>();
        const auto* before = area->activeSubWindow();
        if (entry.menu() == nullptr && !others.contains(entry.text()))
            entry.trigger();
        const auto* now = area->activeSubWindow();
        return now == before ? "" : ": " + now->windowTitle();
    }
    /// The menus, each entry with its key and the form that it shows.
    QString Tree(const QList<QAction*>& actions, const QString& indent) {
        QString text;
        for (auto* action : actions) {
            const auto key = action->shortcut().toString();
            text += indent + (action->isSeparator() ? "-" : action->text()) +
                    (key.isEmpty() ? "" : " [" + key + "]") +
                    (action->isEnabled() ? "" : " (off)") + ShownBy(*action) + '\n';
            if (action->menu() != nullptr && action->text() != "&Window")
                text += Tree(action->menu()->actions(), indent + "  ");
        }
        return text;
    }
    ProjectTitle Title() { return forms().Get<frmTitle>().Title(); }

    const std::string job = (folder / "Job.TB").string();

  private:
    int changes_ = 0;
};

TEST_F(MainWindow, MenuTreeIsToTheLetterAndItsEntriesShowTheirForms) {
    EXPECT_EQ(
        Tree(menuBar().actions(), "").toStdString(),
        "&File\n  &New [Ctrl+N]\n  &Open [Ctrl+O]\n  -\n  &Save [Ctrl+S]\n  Save &As\n  -\n"
        "  &Print... [Ctrl+P]\n  -\n  E&xit\n"
        "&Structure\n  &Title: Title\n  -\n  &Joints...: Joints\n  -\n  &Members...: Members\n  -\n"
        "  &Loading\n    &Point Load...: Point Load\n"
        "    &Uniformly Distributed Load...: Uniformly Distributed Load\n  -\n"
        "  &Analyse...: Trabeon Analysis\n"
        "&Diagram\n  &Continuous Beam Diagram (off)\n"
        "    &Bending Moment Diagram...: Continuous Bending Moment Diagram\n"
        "    &Shear Force Diagram...: Continuous Shear Force Diagram\n  -\n"
        "  &Single Span Diagram (off)\n    &Bending Moment Diagram...: Bending Moment Diagram\n"
        "    &Shear Force Diagram...: Shear Force Diagram\n  -\n"
        "  Plotting &Options...: Plotting Options\n"
        "&Design\n  Beam &Dimensions...: Beam Dimensions\n"
        "  &Miscellaneous Properties...: Miscellaneous Properties\n"
        "  &Design Beam...: Beam Design\n"
        "&Tools\n  &Table of Steel Reinforcement Areas: Area of Given Number of Bars\n"
        "  Table of &Shear Resistance For Links: Shear Resistance for Links\n"
        "&Report\n  &View Report...\n"
        "&Check\n  Reactions and &Deflections...: Reactions and Deflections\n"
        "&Window\n"
        "&Help\n  &Contents and Index [F1]\n  &Example\n");
}

TEST_F(StartUp, OpensTheManualAndEmptiesTheSevenFiles) {
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

TEST_F(StartUp, KeepsTheRowsOfARunWithoutExit) {
    folder.write("Joint.txt", " 1,Fixed,\"left by a former run\"\r\n");
    folder.write("Title.txt", "\"Mill\"\r\n\"Me\"\r\n\"B1\"\r\n");
    for (const auto* inTheWay :
         {"Udl.txt", "BeamDim.txt"}) {  // nothing is emptied if one cannot be
        folder.protect(inTheWay);
        ExpectManual();
        ExpectUnwritten(inTheWay, "The rows of the last run cannot be emptied: ");
        EXPECT_FALSE(program.Start());
        EXPECT_NE(folder.read("Joint.txt"), "");
        folder.protect(inTheWay, false);
    }
    Start();
    EXPECT_EQ(folder.read("Joint.txt"), "");
    outside.ExpectOpen("Open Trabeon File", (folder / "Recovered.TB").string());
    Choose("&File|&Open");
    EXPECT_EQ(folder.read("Joint.txt"), "1,Fixed,left by a former run\r\n");
    EXPECT_EQ(forms().Get<frmTitle>().txtProject.Text(), "Mill");
    EXPECT_FALSE(fs::exists(folder / "Recovered 2.TB"));
}

TEST_F(StartUp, SecondCopyEndsBeforeItTouchesAFile) {
    folder.write("Joint.txt", "1,Fixed,\"of the running copy\"\r\n");
    const auto before = folder.contents();
    FolderLock otherCopy;
    ASSERT_TRUE(otherCopy.take(folder.path(), std::chrono::seconds(0)).done());
    ExpectManual();
    outside.ExpectMsgBox("Trabeon is already running.");
    EXPECT_FALSE(program.Start());
    EXPECT_EQ(outside.lastStyle, 48);
    EXPECT_EQ(outside.lastTitle, "Trabeon");
    EXPECT_EQ(folder.contents(), before);
}

TEST_F(StartUp, UnwritableFolderIsTold) {
    fs::create_directory(folder / "Writable.tmp");
    ExpectManual();
    outside.ExpectMsgBox(
        "Trabeon keeps its working files in its own folder, \"" + folder.path().string() +
        "\", and cannot write there. Move the program to a folder of yours, or make room on its disk, "
        "then start it again.");
    EXPECT_FALSE(program.Start());
}

TEST_F(MainWindow, ExitWithoutChangesAsksNothingAndDeletesTheFifteenFiles) {
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
    ExpectSave(job);
    QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(outside.lastQuestion.filter, "Trabeon File (*.TB) |*.TB");
    EXPECT_TRUE(outside.lastQuestion.asksBeforeOverwriting);
    EXPECT_EQ(caption(), "Trabeon - " + job.substr(1));  // what follows the leftmost separator
    EXPECT_TRUE(Holds("Job.TB", "\"Untitled\"\r\n\"Annonymous\"\r\n\"Beam Name\"\r\n"));
    EXPECT_TRUE(forms().Get<frmTitle>().Visible());  // reading its boxes brought it up
    Open(job);
    EXPECT_EQ(context().dataChanged, 0);  // the default title is no change
    EXPECT_EQ(forms().Get<frmAnalysis>().txtTBResults.Text(), "");
    Change();
    Choose("&File|&Save");
    EXPECT_EQ(context().dataChanged, 0);
    EXPECT_TRUE(Holds("Job.TB", "\"Mill\"\r\n\"Me\"\r\n\"B1\"\r\n"));
}

TEST_F(MainWindow, FailedSaveTellsWhyAndKeepsTheFlagAndTheOldFile) {
    folder.write("Job.TB", "old");
    Change();
    ExpectSave(job);
    BlockWriting("Job.TB");
    Choose("&File|Save &As");
    EXPECT_EQ(context().dataChanged, 1);
    EXPECT_EQ(folder.read("Job.TB"), "old");
    EXPECT_EQ(caption(), "Trabeon - Untitled");
    EXPECT_EQ(context().CommonDialog1.FileName, "");
}

TEST_F(MainWindow, NewAsksClosesAllFormsAndForgetsTheName) {
    Change();
    ExpectQuestion(Answer::Cancel);
    Choose("&File|&New");
    EXPECT_EQ(outside.lastStyle, 51);
    EXPECT_EQ(Title().project, "Mill");
    ExpectQuestion(Answer::Yes);
    ExpectSave("");  // a cancelled Save As counts as cancelled too
    Choose("&File|&New");
    EXPECT_EQ(context().dataChanged, 1);
    ExpectQuestion(Answer::Yes);
    ExpectSave(job);
    folder.write("Joint.txt", "1,Fixed,\"None\"\r\n");
    QTest::keyClick(&window(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_TRUE(Holds("Job.TB", "1,Fixed,\"None\"\r\n"));
    EXPECT_EQ(folder.read("Joint.txt"), "");
    EXPECT_EQ(caption(), "Trabeon - Untitled");
    EXPECT_FALSE(forms().IsLoaded("frmTitle"));
    EXPECT_EQ(Title().project, "Untitled");
    ExpectSave("");
    Choose("&File|&Save");
}

TEST_F(MainWindow, OpenUnpacksShowsTheTableAndCountsAnOwnTitleAsAChange) {
    const std::string path = EXAMPLES "/two-span-floor-beam.TB";
    outside.ExpectOpen("Open Trabeon File", path);
    QTest::keyClick(&window(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(caption(), "Trabeon - " + path.substr(1));
    EXPECT_EQ(Title().project, "Library extension");
    EXPECT_FALSE(forms().Get<frmTitle>().Visible());
    EXPECT_TRUE(forms().Get<frmAnalysis>().Visible());
    EXPECT_EQ(forms().Get<frmAnalysis>().txtTBResults.Text(), folder.read("TB.txt"));
    EXPECT_TRUE(Holds("TB.txt", "Final     +0.00E+00     +5.40E+01"));
    EXPECT_EQ(context().dataChanged, 1);
    ExpectQuestion(Answer::Yes);
    context().CommonDialog1.FileName = job;  // saved there, not over the example
    Open(EXAMPLES "/five-span-with-cantilever.TB");
    EXPECT_EQ(folder.read("Job.TB"), TemporaryFolder::readFile(path));  // the same lines
}

TEST_F(MainWindow, TextsThatAreNoUtf8KeepTheirBytesFromOpenToSave) {
    auto text = TemporaryFolder::readFile(EXAMPLES "/two-span-floor-beam.TB");
    text.replace(text.find("Library"), 7, "Tr\xE4ger");
    text.replace(text.find("Wall A"), 1, "\xDC");
    folder.write("Job.TB", text);
    Open(job);
    EXPECT_EQ(forms().Get<frmJoints>().ListView1.ListItems(1).SubItems(2).substr(0, 2), "Ü");
    Choose("&File|&Save");
    EXPECT_EQ(folder.read("Job.TB"), text);
}

TEST_F(MainWindow, CancelledOrRefusedOpenLeavesTheProjectAsItWas) {
    Change();
    ExpectSave(job);
    Choose("&File|&Save");
    const auto name = caption();
    folder.write("bad.TB", "WARNNING!\r\nTITLE\r\n\"a\"\r\n");
    const auto bad = (folder / "bad.TB").string();
    const auto before = folder.contents();
    Open("");
    outside.ExpectOpen("Open Trabeon File", bad);
    outside.ExpectMsgBox("\"" + bad +
                         "\" is not a whole project file: line 4: the file ends where the designer "
                         "was expected. Correct that line; nothing was changed.");
    Choose("&File|&Open");
    EXPECT_EQ(folder.contents(), before);
    EXPECT_EQ(caption(), name);
    EXPECT_EQ(context().dataChanged, 0);
    EXPECT_FALSE(forms().IsLoaded("frmAnalysis"));
    EXPECT_EQ(Title().project, "Mill");
    Change();
    Choose("&File|&Save");  // goes to Job.TB still
    EXPECT_TRUE(Holds("Job.TB", "\"B2\""));
    EXPECT_EQ(folder.read("bad.TB"), before.at("bad.TB"));
}

TEST_F(MainWindow, SaveAsksBeforeItReplacesWhatAnotherProgramChanged) {
    Change();
    ExpectSave(job);
    Choose("&File|&Save");
    const std::string changed = '"' + job +
                                "\" was changed by another program since it was opened or saved "
                                "here. Replace it?";
    for (const bool gone : {false, true}) {
        const auto question =
            gone
                ? '"' + job +
                      "\" is no longer there: it was moved or deleted. Save the project there again?"
                : changed;
        if (gone)
            fs::remove(job);
        else
            folder.write("Job.TB", "of a colleague");
        Change();
        outside.ExpectReplace(question, Answer::No);
        Choose("&File|&Save");
        EXPECT_EQ(context().dataChanged, 1);
        EXPECT_FALSE(Holds("Job.TB", "\"Mill\""));
        outside.ExpectReplace(question, Answer::Other);
        ExpectSave((folder / "Mine.TB").string());
        Choose("&File|&Save");
        EXPECT_TRUE(Holds("Mine.TB", "\"Mill\""));
        EXPECT_FALSE(Holds("Job.TB", "\"Mill\""));
        folder.write("Job.TB", folder.read("Mine.TB"));
        Open(job);
        EXPECT_EQ(context().dataChanged, 1);
        ExpectQuestion(Answer::Yes);  // the same bytes as it was opened with
        outside.ExpectOpen("Open Trabeon File", "");
        Choose("&File|&Open");
    }
    folder.write("Job.TB", "of a colleague");
    Change();
    outside.ExpectReplace(changed, Answer::Yes);
    Choose("&File|&Save");
    EXPECT_TRUE(Holds("Job.TB", "\"Mill\""));
}

TEST_F(MainWindow, RowsThatWereTakenAwayAreNotTakenForNone) {
    Open(EXAMPLES "/two-span-floor-beam.TB");
    context().CommonDialog1.FileName = job;
    const auto rows = folder.read("Joint.txt");
    const auto gone = '"' + (folder / "Joint.txt").string() +
                      "\" is missing: another program removed rows of the open project. Put the "
                      "file back, or choose New; nothing was changed.";
    fs::remove(folder / "Joint.txt");
    auto& joints = forms().Get<frmJoints>();
    for (const std::function<void()>& step : std::initializer_list<std::function<void()>>{
             [&] { Choose("&File|&Save"); }, [&] { forms().Get<frmAnalysis>().cmdAnalyse.Press(); },
             [&] { joints.cmdAddJoint.Press(); }}) {
        outside.ExpectMsgBox(gone);
        step();
        EXPECT_FALSE(fs::exists(folder / "Joint.txt"));
        EXPECT_FALSE(fs::exists(job));
    }
    folder.write("Joint.txt", rows);
    Choose("&File|&Save");
    EXPECT_EQ(folder.read("Job.TB"), TemporaryFolder::readFile(EXAMPLES "/two-span-floor-beam.TB"));
    fs::remove(folder / "Joint.txt");
    Choose("&File|&New");
    EXPECT_EQ(folder.read("Joint.txt"), "");
}

TEST_F(MainWindow, ANewThatCannotEmptyTheRowsKeepsTheProject) {
    Open(EXAMPLES "/two-span-floor-beam.TB");
    const auto before = folder.contents();
    folder.protect("BeamDim.txt");
    ExpectQuestion(Answer::No);
    ExpectUnwritten("BeamDim.txt");
    Choose("&File|&New");
    EXPECT_EQ(folder.contents(), before);
    EXPECT_EQ(Title().project, "Library extension");
    EXPECT_EQ(context().dataChanged, 1);
}

TEST_F(MainWindow, StatusLineTellsWhatHappenedAndWhatTheProjectHolds) {
    auto& status = program.window();
    EXPECT_EQ(status.Summary(), "0 joints    0 members    length 0");
    Open(EXAMPLES "/two-span-floor-beam.TB");
    EXPECT_EQ(status.Summary(), "3 joints    2 members    length 12    Changed");
    auto& joints = forms().Get<frmJoints>();
    joints.cmdAddJoint.Press();
    EXPECT_EQ(status.Event(), "Joint 4 added after Joint 3");
    joints.cmdRemove.SetEnabled(true);
    joints.cmdRemove.Press();
    EXPECT_EQ(status.Event(), "Joint 4 removed");
    auto& members = forms().Get<frmMembers>();
    Type(members.txtYM, "e");
    EXPECT_EQ(status.Event(), "E accepts digits and a point");
    members.cmdAddJoint.Press();
    EXPECT_EQ(status.Event(), "No member added: E, I and L must all be numbers above 0");
    auto& point = forms().Get<frmPoint>();
    Type(point.txtPtLoad, "x");
    EXPECT_EQ(status.Event(), "P accepts digits, a point and a minus sign");
    point.cmdAdd.Press();
    EXPECT_EQ(status.Event(), "No load added: P is 0");
    Type(point.txtPtA, "7");
    Type(point.txtPtLoad, "5");
    point.cmdAdd.Press();
    EXPECT_EQ(status.Event(), "Point load added after row 2");
    forms().Get<frmAnalysis>().cmdAnalyse.Press();
    EXPECT_EQ(
        status.Event(),
        "Analysed. Row 3 of the point loads, on member 1: a is 7, beyond the member's end at 6. "
        "It was analysed as entered; correct the row if that is not intended.");
    context().CommonDialog1.FileName = job;
    Choose("&File|&Save");
    EXPECT_EQ(status.Summary(), "3 joints    2 members    length 12");
}

TEST_F(MainWindow, AClosedTitleComesBack) {
    Change();
    Choose("&Structure|&Title");
    QTest::keyClick(&window(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(program.window().Event(),
              "The title was emptied, because its window was closed. Ctrl+Z brings it back");
    EXPECT_EQ(Title().project, "Untitled");
    QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(Title().project, "Mill");
    EXPECT_EQ(program.window().Event(), "The title is back");
}

TEST_F(MainWindow, ClosingAsksAgainAfterACancel) {
    Change();
    ExpectQuestion(Answer::Cancel);
    ExpectQuestion(Answer::Cancel);
    EXPECT_FALSE(window().close());
    EXPECT_TRUE(fs::exists(folder / "Joint.txt"));
    ExpectQuestion(Answer::Cancel);
    ExpectQuestion(Answer::No);
    outside.ExpectEnd();
    window().close();
    EXPECT_FALSE(fs::exists(folder / "Joint.txt"));
    Change();
    ExpectQuestion(Answer::No);
    outside.ExpectEnd();
    window().close();
}

TEST_F(MainWindow, TypedTitlesSetTheFlagAndStayWhenHidden) {
    Choose("&Structure|&Title");
    auto& title = forms().Get<frmTitle>();
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
    Press(title.cmdOK, Qt::Key_Space);
    EXPECT_FALSE(title.Visible());
    Choose("&Structure|&Title");
    EXPECT_EQ(Title().designer, "Ann");
    title.Move(0, 0, 3000, 1500);
    CenterForm(title, &program.window());
    EXPECT_EQ(title.Width(), 3000);
    EXPECT_EQ(title.Left(),
              (program.window().Left() + (program.window().Width() - 3000) / 2) / 15 * 15);
}

}  // namespace
}  // namespace trabeon::test
