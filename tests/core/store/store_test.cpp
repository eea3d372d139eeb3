#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <csignal>

#include "core/store/file_set.h"
#include "core/store/replacing_file.h"
#include "core/store/row_editing.h"
#include "core/store/rows.h"
#include "core/store/working_files.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

using test::TemporaryFolder;

/// A disk that is full behind this many bytes of each file.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &before_); }

  private:
    rlimit before_{};
};

TEST(WorkingFiles, AreEmptiedCopiedAndDeletedWithoutAWord) {
    const TemporaryFolder folder;
    folder.write("Joint.txt", "1,Fixed,\"None\"\r\n");
    folder.write("DResult.txt", "kept");
    CreateNFile(folder.path());
    const std::map<std::string, std::string> emptied{
        {"Joint.txt", ""}, {"Member.txt", ""}, {"Point.txt", ""},   {"Udl.txt", ""},
        {"BM.txt", ""},    {"TB.txt", ""},     {"BeamDim.txt", ""}, {"DResult.txt", "kept"}};
    EXPECT_EQ(folder.contents(), emptied);

    DuplicateFile(folder / "DResult.txt", folder / "Joint.txt");
    EXPECT_EQ(folder.read("Joint.txt"), "kept");
    DuplicateFile(folder / "none.txt", folder / "Joint.txt");
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
    const auto add = [&](std::size_t position, const JointRow& row) {
        EXPECT_FALSE(addRow(folder.path(), position, row));
        EXPECT_EQ(folder.read("Joint.txt"), folder.read("Joint.tmp"));
        return folder.read("Joint.txt");
    };
    EXPECT_EQ(add(0, {" 1", "Fixed", "None"}), " 1,Fixed,\"None\"\r\n");
    EXPECT_EQ(add(1, {" 2", "Continuous", "a, b"}),
              "1,Fixed,\"None\"\r\n 2,Continuous,\"a, b\"\r\n");
    EXPECT_EQ(add(1, {" 3", "Pin Jointed", "x"}),
              "1,Fixed,\"None\"\r\n 3,Pin Jointed,\"x\"\r\n2,Continuous,\"a, b\"\r\n");
    EXPECT_FALSE(
        removeRow<JointRow>(folder.path(), 4, Numbering::fromOne));  // no such row: nothing changes
    EXPECT_FALSE(removeRow<JointRow>(folder.path(), 1, Numbering::fromOne));
    EXPECT_EQ(folder.read("Joint.txt"), " 1,Pin Jointed,\"x\"\r\n 2,Continuous,\"a, b\"\r\n");

    folder.write("Point.txt", "2,1,5,\"None\"\r\n 1,0,3,\"x\"\r\n");
    EXPECT_FALSE(removeRow<PointRow>(folder.path(), 1, Numbering::asRead));
    EXPECT_EQ(folder.read("Point.txt"), "1,0,3,\"x\"\r\n");
    EXPECT_FALSE(removeRow<PointRow>(folder.path(), 1, Numbering::asRead));
    EXPECT_EQ(folder.read("Point.txt"), "");
}

TEST(RowEditing, AFailureLeavesTheUsersRows) {
    const TemporaryFolder folder;
    const std::string rows =
        "1,Fixed,\"None\"\r\n2,Continuous,\"" + std::string(200, 'd') + "\"\r\n";
    folder.write("Joint.txt", rows);
    Failure failure;
    {
        const FullDisk disk(64);
        failure = addRow<JointRow>(folder.path(), 2, {" 3", "Fixed", "None"});
    }
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->sentence.find("Joint.tmp\" could not be written (File too large)"),
              std::string::npos)
        << failure->sentence;
    EXPECT_EQ(folder.contents(), (std::map<std::string, std::string>{{"Joint.txt", rows}}));
    std::filesystem::remove(folder / "Joint.txt");
    std::filesystem::create_directory(folder / "Joint.txt");  // stands for whatever is no file
    failure = addRow<JointRow>(folder.path(), 0, {" 1", "Fixed", "None"});
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->sentence.find("Joint.txt\" cannot be read"), std::string::npos);
    EXPECT_TRUE(folder.contents().empty());
    std::filesystem::remove(folder / "Joint.txt");
    folder.write("Joint.txt", rows);
    std::filesystem::create_directory(folder / "Joint.txt.new");
    failure = addRow<JointRow>(folder.path(), 1, {" 2", "Fixed", "None"});
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->sentence.find("Joint.txt\" could not be written"), std::string::npos);
    EXPECT_EQ(folder.read("Joint.txt"), rows);
}

TEST(FileSet, ReplacesNoFileIfOneOfThemFails) {
    for (const auto* inTheWay : {"TB.txt.new", "TB.txt"}) {
        const TemporaryFolder folder;
        folder.write("BM.txt", "old");
        std::filesystem::create_directory(folder / inTheWay);
        FileSet files(folder.path());
        files.add("BM.txt").write("new");
        files.add("TB.txt").write("new");
        const auto failure = files.commit();
        ASSERT_TRUE(failure);
        EXPECT_NE(failure->sentence.find("Is a directory"), std::string::npos) << failure->sentence;
        EXPECT_EQ(folder.read("BM.txt"), "old") << inTheWay;
    }
}

TEST(FileSet, OneThatWasKilledWhileItsFilesTookTheirPlacesIsFinished) {
    const TemporaryFolder folder;
    folder.write("BM.txt", "new");  // has its place already
    folder.write("TB.txt", "old");
    folder.write("TB.txt.new", "new");
    folder.write("Unfinished.set", "BM.txt\nTB.txt\n");
    const FileSet next(folder.path());
    EXPECT_EQ(folder.contents(),
              (std::map<std::string, std::string>{{"BM.txt", "new"}, {"TB.txt", "new"}}));
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
    ASSERT_FALSE(file.commit());
    EXPECT_EQ(readWhole(folder / "BM.txt"), whole + large);
}

TEST(ReplacingFile, KeepsLinksAndPermissions) {
    namespace fs = std::filesystem;
    const TemporaryFolder folder;
    folder.write("real.TB", "old");
    fs::permissions(folder / "real.TB", fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(folder / "real.TB", folder / "link.TB");
    ASSERT_FALSE(replaceFile(folder / "link.TB", "new"));
    EXPECT_TRUE(fs::is_symlink(folder / "link.TB"));
    EXPECT_EQ(folder.read("real.TB"), "new");
    EXPECT_EQ(fs::status(folder / "real.TB").permissions(),
              fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace
}  // namespace trabeon
