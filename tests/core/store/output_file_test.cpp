#include "core/store/output_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/store/own_files.h"
#include "core/store/project_file.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;
using test::TemporaryFolder;

TEST(OutputFile, ReplacesOnlyItsOwnKindAndNeverTheProject) {
    const TemporaryFolder folder;
    const auto project = folder / "a.TB";
    folder.write("a.TB", packedText({}));
    folder.write("a.docx", "PK\x03\x04...word/document.xml...");
    folder.write("a.zip", "PK\x03\x04...");
    folder.write("empty", "");
    folder.write("notes", "PK, 3 of 4");
    folder.write("damaged.TB", "\xEF\xBB\xBFWARNNING! DO NOT");
    folder.write("lower.TB", "w\r\n" + packedText({}).substr(packedText({}).find("TITLE")));
    fs::create_directory(folder / "folder");
    fs::create_symlink("a.TB", folder / "link");
    fs::create_hard_link(project, folder / "hard");
    fs::create_symlink("nowhere", folder / "dangling");
    ASSERT_EQ(mkfifo((folder / "pipe").c_str(), 0600), 0);
    struct Fits {
        const char* name;
        bool document, project;
    };
    for (const auto& [name, document, isProject] : {Fits{"new", true, true},
                                                    {"dangling", true, true},
                                                    {"empty", true, true},
                                                    {"a.docx", true, false},
                                                    {"a.TB", false, true},
                                                    {"folder/../a.TB", false, true},
                                                    {"link", false, true},
                                                    {"hard", false, true},
                                                    {"damaged.TB", false, true},
                                                    {"lower.TB", false, true},
                                                    {"notes", false, false},
                                                    {"a.zip", false, false},
                                                    {"folder", false, false},
                                                    {"pipe", false, false}}) {
        const auto file = folder / name;
        const auto noDocument = checkDocumentFile(file, project);
        const auto noProject = checkProjectFile(file);
        EXPECT_EQ(!noDocument, document) << name;
        EXPECT_EQ(!noProject, isProject) << name;
        for (const auto& failure : {noDocument, noProject})
            EXPECT_TRUE(!failure || failure->sentence.starts_with('"' + file.string() + '"'));
    }
}

TEST(OutputFile, KnowsTheProgramsOwnFilesByEachOfTheirPaths) {
    const TemporaryFolder folder;
    folder.write("Point.txt", "1,2,3,x\r\n");
    fs::create_directory(folder / "sub");
    fs::create_symlink(folder.path(), folder / "sub" / "up");
    fs::create_symlink("Point.txt", folder / "link");
    fs::create_hard_link(folder / "Point.txt", folder / "sub" / "hard");
    for (const auto* name :
         {"Joint.txt", "sub/../Point.txt", "sub/up/BM.txt", "./UDL.TMP", "Unfinished.set", "TB.tmp",
          "Dresult.txt", "beamdim.txt.0123456789abcdef.new", "link", "sub/hard"})
        EXPECT_TRUE(isOwnFile(folder / name, folder.path())) << name;
    for (const auto* name :
         {"a.TB", "sub/Joint.txt", "sub/up/sub/Point.txt", "Joint", "none/BM.txt"})
        EXPECT_FALSE(isOwnFile(folder / name, folder.path())) << name;
    const auto before = folder.contents();
    EXPECT_FALSE(packProject(folder.path(), {}, folder / "BMMax.txt"));
    folder.write("TB.txt", packedText({}));
    EXPECT_FALSE(unpackProject(folder / "TB.txt", folder.path()));
    EXPECT_EQ(folder.read("Point.txt") + folder.read("TB.txt"),
              before.at("Point.txt") + packedText({}));
}

TEST(OutputFile, ResultsGoToAFolderThatIsNamedAfterTheProject) {
    for (const auto& [project, results] : {std::pair{"a/b.TB", "a/b"},
                                           {"b.c.TB", "b.c"},
                                           {"b", "b results"},
                                           {"./.TB", "./.TB results"},
                                           {"..TB", "..TB results"},
                                           {"a/...TB", "a/...TB results"},
                                           {"a b.tb", "a b"}})
        EXPECT_EQ(resultFolder(project), results);
}

}  // namespace
}  // namespace trabeon
