#include <grp.h>
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
#include "core/store/replacing_file.h"
#include "core/store/rows.h"
#include "core/store/working_files.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

using test::TemporaryFolder;

TEST(WorkingFiles, AreCopiedAndDeletedWithoutAWord) {
    const TemporaryFolder folder;
    folder.write("DResult.txt", "kept");
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
    folder.protect("TB.txt", false);
    auto late = FileSet::begin(folder.path());
    auto& first = late.add("BM.txt");
    first.write("new");
    const auto fresh = first.temporary().path();
    late.add("TB.txt").write("new");
    std::filesystem::remove(fresh);  // which only a rename finds out
    EXPECT_TRUE(late.commit().failed());
    EXPECT_EQ(folder.read("TB.txt"), "");
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
            std::signal(signal, SIG_DFL);  // the caller of the tests may ignore them
        prepareSignals();
        run();
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return status;
}

TEST(ReplacingFile, AGroupThatCannotBeKeptGetsNoMoreRightsThanEverybody) {
    if (geteuid() != 0)
        GTEST_SKIP() << "needs another user";
    const TemporaryFolder folder;
    const auto file = folder / "a.TB";
    folder.write("a.TB", "old");
    ASSERT_EQ(chown(file.c_str(), 12345, 12345), 0);
    ASSERT_EQ(chmod(file.c_str(), 0676), 0);
    ASSERT_EQ(chmod(folder.path().c_str(), 0777), 0);
    const auto status = statusOf([&] {
        const bool other = setgroups(0, nullptr) == 0 && setgid(23456) == 0 && setuid(23456) == 0;
        _exit(other && replaceFile(file, "new").done() ? 0 : 1);
    });
    EXPECT_EQ(status, 0);
    struct stat written {};
    ASSERT_EQ(stat(file.c_str(), &written), 0);
    EXPECT_EQ(written.st_uid, 23456U);
    EXPECT_EQ(written.st_mode & 0777U, 0666U);
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

}  // namespace
}  // namespace trabeon
