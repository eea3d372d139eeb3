#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <functional>
#include <thread>

#include "core/store/file_set.h"
#include "core/store/folder_lock.h"
#include "core/store/folder_record.h"
#include "core/store/new_project.h"
#include "core/store/project_file.h"
#include "core/store/replacing_file.h"
#include "core/store/row_editing.h"
#include "core/store/rows.h"
#include "core/store/working_files.h"
#include "tests/support/full_disk.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

using test::FullDisk;
using test::TemporaryFolder;

TEST(WorkingFiles, AreEmptiedCopiedAndDeletedWithoutAWord) {
    const TemporaryFolder folder;
    folder.write("Joint.txt", "1,Fixed,\"None\"\r\n");
    folder.write("DResult.txt", "kept");
    EXPECT_TRUE(CreateNFile(folder.path()).done());
    const std::map<std::string, std::string> emptied{
        {"Joint.txt", ""}, {"Member.txt", ""}, {"Point.txt", ""},   {"Udl.txt", ""},
        {"BM.txt", ""},    {"TB.txt", ""},     {"BeamDim.txt", ""}, {"DResult.txt", "kept"}};
    EXPECT_EQ(folder.contents(), emptied);

    EXPECT_TRUE(DuplicateFile(folder / "DResult.txt", folder / "Joint.txt").done());
    EXPECT_EQ(folder.read("Joint.txt"), "kept");
    EXPECT_TRUE(DuplicateFile(folder / "none.txt", folder / "Joint.txt").failed());
    EXPECT_EQ(folder.read("Joint.txt"), "kept");
    MurderFile(folder / "Joint.txt");
    MurderFile(folder / "Joint.txt");
    EXPECT_EQ(readWhole(folder / "Joint.txt"), "");
    EXPECT_EQ(folder.contents().count("Joint.txt"), 0u);
}

TEST(Rows, DescriptionsComeBackAsOneFieldFromEveryWriter) {
    for (const std::string description :
         {"None", "", "a, b", " both ends ", "say \"x\" here", "two\r\nlines"})
        for (const auto form : {Description::quoted, Description::bare}) {
            const auto text =
                textOf<PointRow>({{" 1", "1,5", "4", description}, {"2", "", "", "next"}}, form);
            const auto rows = rowsOf<PointRow>(text);
            ASSERT_EQ(rows.size(), 2u) << text;
            EXPECT_EQ(rows[0].a, "1,5");
            EXPECT_EQ(rows[0].description, description);
            EXPECT_EQ(rows[1].description, "next");
        }
    EXPECT_EQ(textOf<UdlRow>({{" 1", "0", "6", "12", "12", "Slab"}}, Description::bare),
              " 1,0,6,12,12,Slab\r\n");
    EXPECT_EQ(textOf<JointRow>({{" 1", "Fixed", ""}}, Description::quoted), " 1,Fixed,\"\"\r\n");
    EXPECT_EQ(
        textOf<BeamDimensionRow>({{" 1", " 2", "300", "500", "", "30", "460", "", "250", " 6"}},
                                 Description::quoted),
        " 1, 2,300,500,,30,460,,250, 6\r\n");
    const auto cut = rowsOf<MemberRow>("1,200,2,6,\"None\"\r\n2,200\r\n");  // reads empty texts
    ASSERT_EQ(cut.size(), 2u);
    EXPECT_EQ(cut[1].E + cut[1].L, "200");
}

TEST(RowEditing, AddsBehindARowAndRemovesWithOrWithoutNewNumbers) {
    const TemporaryFolder folder;
    folder.write("Joint.txt", "");
    const auto add = [&](std::size_t position, const JointRow& row) {
        EXPECT_TRUE(addRow(folder.path(), position, row).done());
        EXPECT_EQ(folder.read("Joint.txt"), folder.read("Joint.tmp"));
        return folder.read("Joint.txt");
    };
    EXPECT_EQ(add(0, {" 1", "Fixed", "None"}), " 1,Fixed,\"None\"\r\n");
    EXPECT_EQ(add(1, {" 2", "Continuous", "a, b"}),
              "1,Fixed,\"None\"\r\n 2,Continuous,\"a, b\"\r\n");
    EXPECT_EQ(add(1, {" 3", "Pin Jointed", "x"}),
              "1,Fixed,\"None\"\r\n 3,Pin Jointed,\"x\"\r\n2,Continuous,\"a, b\"\r\n");
    EXPECT_TRUE(removeRow<JointRow>(folder.path(), 4, Numbering::fromOne)
                    .done());  // no such row: nothing changes
    EXPECT_TRUE(removeRow<JointRow>(folder.path(), 1, Numbering::fromOne).done());
    EXPECT_EQ(folder.read("Joint.txt"), " 1,Pin Jointed,\"x\"\r\n 2,Continuous,\"a, b\"\r\n");

    folder.write("Point.txt", "2,1,5,\"None\"\r\n 1,0,3,\"x\"\r\n");
    EXPECT_TRUE(removeRow<PointRow>(folder.path(), 1, Numbering::asRead).done());
    EXPECT_EQ(folder.read("Point.txt"), "1,0,3,\"x\"\r\n");
    EXPECT_TRUE(removeRow<PointRow>(folder.path(), 1, Numbering::asRead).done());
    EXPECT_EQ(folder.read("Point.txt"), "");
}

TEST(RowEditing, AFailureLeavesTheUsersRows) {
    const TemporaryFolder folder;
    const std::string rows =
        "1,Fixed,\"None\"\r\n2,Continuous,\"" + std::string(200, 'd') + "\"\r\n";
    folder.write("Joint.txt", rows);
    Status status;
    {
        const FullDisk disk(64);
        status = addRow<JointRow>(folder.path(), 2, {" 3", "Fixed", "None"});
    }
    ASSERT_TRUE(status.failed());
    EXPECT_NE(status.refusal().sentence.find("Joint.tmp\" could not be written (File too large)"),
              std::string::npos)
        << status.refusal().sentence;
    EXPECT_EQ(folder.contents(), (std::map<std::string, std::string>{{"Joint.txt", rows}}));
    folder.protect("Joint.txt");  // the scratch twin can be written, the file cannot
    status = addRow<JointRow>(folder.path(), 1, {" 2", "Fixed", "None"});
    ASSERT_TRUE(status.failed());
    EXPECT_NE(status.refusal().sentence.find("Joint.txt\" is write-protected"), std::string::npos);
    EXPECT_EQ(folder.read("Joint.txt"), rows);
    std::filesystem::remove(folder / "Joint.txt");
    for (const auto* reason :
         {"Joint.txt\" is missing", "Joint.txt\" cannot be read (it is a folder"}) {
        status = addRow<JointRow>(folder.path(), 0, {" 1", "Fixed", "None"});
        ASSERT_TRUE(status.failed());
        EXPECT_NE(status.refusal().sentence.find(reason), std::string::npos)
            << status.refusal().sentence;
        std::filesystem::create_directory(folder / "Joint.txt");
    }
}

TEST(FileSet, ReplacesNoFileIfOneOfThemFails) {
    const TemporaryFolder folder;
    folder.write("BM.txt", "old");
    folder.protect("TB.txt");
    auto files = FileSet::begin(folder.path());
    files.add("BM.txt").write("new");
    files.add("TB.txt").write("new");
    const auto status = files.commit();
    ASSERT_TRUE(status.failed());
    EXPECT_NE(status.refusal().sentence.find("TB.txt\" is write-protected"), std::string::npos);
    EXPECT_EQ(folder.read("BM.txt"), "old");
}

const std::string token = ".0123456789abcdef.new";

TEST(FileSet, OneThatWasKilledWhileItsFilesTookTheirPlacesIsFinished) {
    const TemporaryFolder folder, elsewhere;
    folder.write("BM.txt", "new");  // has its place already
    folder.write("TB.txt", "old");
    folder.write("TB.txt" + token, "new");
    folder.write("Udl.txt" + token, "of a killed run, never finished");
    elsewhere.write("victim", "kept");
    folder.write("victim", "kept");
    folder.write("victim" + token, "evil");
    std::filesystem::create_symlink(folder / "victim", folder / ("Member.txt" + token));
    folder.write("Unfinished.set", "BM.txt" + token + "\nTB.txt" + token + "\nvictim" + token +
                                       "\n../" + elsewhere.path().filename().string() + "/victim" +
                                       token + "\nJoint.txt\nMember.txt" + token + "\n");
    const auto next = FileSet::begin(folder.path());
    EXPECT_EQ(
        folder.contents(),
        (std::map<std::string, std::string>{
            {"BM.txt", "new"}, {"TB.txt", "new"}, {"victim", "kept"}, {"victim" + token, "evil"}}));
    EXPECT_EQ(elsewhere.read("victim"), "kept");
}

TEST(ReplacingFile, HoldsALongFileThatCameInPieces) {
    const TemporaryFolder folder;
    ReplacingFile file(folder / "BM.txt");
    std::string whole;
    for (int i = 0; i < 50'000; ++i) {
        const auto piece = std::to_string(i) + "\r\n";
        file.advance(std::copy(piece.begin(), piece.end(), file.room(piece.size())));
        whole += piece;
    }
    const std::string large(300'001, 'x');  // more than the buffer holds
    file.write(large);
    ASSERT_TRUE(file.commit().done());
    EXPECT_EQ(readWhole(folder / "BM.txt"), whole + large);
}

TEST(ReplacingFile, KeepsLinksAndPermissionsFromTheFirstByteOn) {
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    folder.write("real.TB", "old");
    const auto owner = geteuid() == 0 ? 12345U : geteuid();
    ASSERT_EQ(chown((folder / "real.TB").c_str(), owner, getegid()), 0);
    for (const mode_t mode : {0600U, 0640U, 0664U}) {
        ASSERT_EQ(chmod((folder / "real.TB").c_str(), mode), 0);
        fs::remove(folder / "link.TB");
        fs::create_symlink(folder / "real.TB", folder / "link.TB");
        ReplacingFile file(folder / "link.TB");
        for (const bool committed : {false, true}) {
            if (committed) {
                ASSERT_TRUE(file.commit().done());
            }
            struct stat status {};
            const auto written = committed ? folder / "real.TB" : file.temporary().path();
            ASSERT_EQ(stat(written.c_str(), &status), 0);
            EXPECT_EQ(status.st_mode & 0777U, mode);
            EXPECT_EQ(status.st_uid, owner);
        }
        EXPECT_TRUE(fs::is_symlink(folder / "link.TB"));
    }
}

TEST(ReplacingFile, WritesThroughNothingThatWasPlanted) {
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    folder.write("victim", "kept");
    folder.write("a.TB", "old");
    fs::create_hard_link(folder / "a.TB", folder / "other name");
    fs::create_symlink(folder / "victim", folder / "a.TB.new");
    fs::create_symlink(folder / "gone", folder / "dangling.TB");
    fs::create_directory(folder / "folder.TB");
    ASSERT_EQ(mkfifo((folder / "pipe.TB").c_str(), 0600), 0);
    folder.protect("protected.TB");
    ASSERT_TRUE(replaceFile(folder / "a.TB", "new").done());
    EXPECT_EQ(folder.read("victim") + folder.read("other name"), "keptold");
    const std::pair<const char*, const char*> refused[] = {
        {"dangling.TB", "is a link to a file that does not exist"},
        {"folder.TB", "is a folder, not a file"},
        {"pipe.TB", "is a device, not a file"},
        {"protected.TB", "is write-protected"},
        {"none/a.TB", "could not be written (No such file or directory)"}};
    for (const auto& [name, reason] : refused) {
        const auto status = replaceFile(folder / name, "new");
        ASSERT_TRUE(status.failed()) << name;
        EXPECT_NE(status.refusal().sentence.find(name + std::string("\" ") + reason),
                  std::string::npos)
            << status.refusal().sentence;
    }
    EXPECT_FALSE(fs::exists(folder / "gone"));
    EXPECT_TRUE(fs::is_fifo(folder / "pipe.TB"));
    const auto pipe = readFile(folder / "pipe.TB");  // comes back at once
    EXPECT_FALSE(pipe);
    if (mknod((folder / "null").c_str(), S_IFCHR | 0666, makedev(1, 3)) == 0) {
        EXPECT_TRUE(replaceFile(folder / "null", "new").failed());
        EXPECT_FALSE(readFile(folder / "null"));
    }
}

TEST(ReplacingFile, NamesThatAreAsLongAsTheyMayBeAreWritten) {
    const TemporaryFolder folder;
    const std::string longest(255, 'n');
    ASSERT_TRUE(replaceFile(folder / longest, "new").done());
    EXPECT_EQ(folder.contents(), (std::map<std::string, std::string>{{longest, "new"}}));
}

/// Runs in a separate process; returns its wait status.
int statusOf(const std::function<void()>& run) {
    const pid_t child = fork();
    if (child == 0) {
        for (const int signal : {SIGTERM, SIGINT, SIGHUP})
            std::signal(signal, SIG_DFL);  // whoever started the tests may ignore them
        prepareSignals();
        run();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

TEST(Signals, RemoveWhatWasBeingWrittenAndWaitWhileASetTakesItsPlace) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const TemporaryFolder folder;
        auto status = statusOf([&] {
            ReplacingFile file(folder / "a.TB"), other(folder / "b.TB");
            const RemovedAtSignal swept(folder / "swept");
            std::filesystem::create_directory(folder / "swept");
            std::raise(signal);
        });
        EXPECT_EQ(WIFSIGNALED(status) ? WTERMSIG(status) : 0, signal);
        EXPECT_TRUE(std::filesystem::is_empty(folder.path()));
        status = statusOf([&] {
            const SignalsWait wait;
            std::raise(signal);
            static_cast<void>(replaceFile(folder / "a.TB", "whole"));
        });
        EXPECT_EQ(WIFSIGNALED(status) ? WTERMSIG(status) : 0, signal);
        EXPECT_EQ(folder.contents(), (std::map<std::string, std::string>{{"a.TB", "whole"}}));
    }
}

TEST(Signals, ThatReachAnotherThreadWaitForTheMainOne) {
    const TemporaryFolder folder;
    const auto status = statusOf([&] {
        std::thread idle([] { pause(); });
        idle.detach();
        const SignalsWait wait;
        kill(getpid(), SIGTERM);  // reaches the thread that does not wait
        for (int i = 0; i < 200; ++i)
            static_cast<void>(replaceFile(folder / "a.TB", std::to_string(i)));
    });
    EXPECT_EQ(WIFSIGNALED(status) ? WTERMSIG(status) : 0, SIGTERM);
    EXPECT_EQ(folder.contents(), (std::map<std::string, std::string>{{"a.TB", "199"}}));
}

TEST(FolderLock, IsHeldByOneAndFreeOnceItsProcessHasDied) {
    using namespace std::chrono_literals;
    const TemporaryFolder folder;
    std::array<int, 2> taken{};
    ASSERT_EQ(pipe(taken.data()), 0);
    const pid_t child = fork();
    if (child == 0) {
        FolderLock lock;
        const char outcome = lock.take(folder.path(), 0s).failed() ? 'n' : 'y';
        static_cast<void>(write(taken[1], &outcome, 1));
        pause();
    }
    char outcome = 0;
    ASSERT_EQ(read(taken[0], &outcome, 1), 1);
    ASSERT_EQ(outcome, 'y');
    FolderLock lock;
    const auto status = lock.take(folder.path(), 0s);
    ASSERT_TRUE(status.failed());
    EXPECT_EQ(
        status.refusal().sentence,
        "The folder \"" + folder.path().string() + "\" is in use by core_test (process " +
            std::to_string(child) +
            "). Wait until it has finished or close it, then try again; nothing was changed.");
    EXPECT_TRUE(lock.holder().runsThisProgram);
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    EXPECT_TRUE(lock.take(folder.path(), 0s).done());
    EXPECT_TRUE(folder.contents().empty());
}

TEST(FolderRecord, KnowsWhichRowsExistNowhereElse) {
    const TemporaryFolder folder;
    const auto refused = [&] {
        const auto objection = holdsOtherRows(folder.path());
        return objection ? objection->sentence : "";
    };
    EXPECT_EQ(refused(), "");
    folder.write("Udl.txt", "1,0,6,12,12,\"typed\"\r\n");
    EXPECT_NE(refused().find("contains rows (Udl.txt)"), std::string::npos);
    Project project;
    project.joints = "1,Fixed,\"None\"\r\n";
    project.beamDimensions = "1,1,300,500,450,30,460,200000,250,6\r\n";
    ASSERT_TRUE(writeWorkingFiles(project, folder.path()).done());
    EXPECT_EQ(refused(), "");
    for (const auto* name : {"Joint.txt", "BeamDim.txt"}) {
        const auto text = folder.read(name);
        folder.write(name, text + "\r\n");
        EXPECT_NE(refused(), "") << name;
        folder.write(name, text);
        EXPECT_EQ(refused(), "");
    }
}

}  // namespace
}  // namespace trabeon
