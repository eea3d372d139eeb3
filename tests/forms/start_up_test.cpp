// How the program starts: what it finds in its folder, and what it must not touch.
#include <QProcess>

#include "core/store/folder_lock.h"
#include "core/store/working_files.h"
#include "forms/main/frmTitle.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

namespace fs = std::filesystem;

class StartUp : public ProgramTest {
  protected:
    void ExpectManual() { outside.ExpectDocument((folder / "Contents and Index.htm").string()); }
};

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
    EXPECT_NEAR(middle, MdiWindow::ScreenWidth() / 2.0, 2 * TwipsPerPixel);
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
        ExpectUnwritten(inTheWay, "The working files of the last run cannot be emptied: ");
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

TEST_F(StartUp, AFolderThatAnotherProgramUsesIsLeftAlone) {
    QProcess other;
    other.start("flock", {QString::fromStdString(folder.path().string()), "cat"});
    other.write("taken\n");
    ASSERT_TRUE(other.waitForReadyRead(-1));
    ExpectManual();
    outside.ExpectMsgBox("The folder \"" + folder.path().string() +
                         "\" is in use by flock (process " + std::to_string(other.processId()) +
                         "). Wait until it has finished or close it, then try again; nothing was "
                         "changed.");
    EXPECT_FALSE(program.Start());
    other.closeWriteChannel();
    other.waitForFinished(-1);
    EXPECT_TRUE(folder.contents().empty());
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

}  // namespace
}  // namespace trabeon::test
