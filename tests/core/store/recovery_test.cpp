#include "core/store/recovery.h"

#include <gtest/gtest.h>

#include "core/store/new_project.h"
#include "core/store/project_file.h"
#include "core/store/working_files.h"
#include "tests/support/full_disk.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

using namespace std::string_literals;
using test::TemporaryFolder;

const std::string joints = " 1,Fixed,\"left, by a former run\"\r\n";
const std::string packedJoints = "Description\r\n1,Fixed,\"left, by a former run\"\r\nMEMBERS";

/// What "Recovered.TB" holds after a start, or that there is none.
std::string recovered(const TemporaryFolder& folder, const std::string& name = "Recovered.TB") {
    const auto done = recoverRows(folder.path());
    return done ? folder.read(name) : done.refusal().sentence;
}

TEST(Recovery, RowsComeBackAsAProjectThatOpens) {
    const TemporaryFolder folder, opened;
    folder.write("Joint.txt", joints);
    keepTitle(folder.path(), {"Mill, west", "Me", "B1"});
    folder.write("Udl.txt", " 1,0,6,12,12,Slab\r\n");
    folder.write("BeamDim.txt", "1,1,300,500,450,30,460,200000,250,6\r\n");
    EXPECT_NE(recovered(folder).find(packedJoints), std::string::npos);
    const auto project = unpackProject(folder / "Recovered.TB", opened.path());
    ASSERT_TRUE(project);
    EXPECT_EQ(project->title.project, "Mill, west");
    EXPECT_EQ(opened.read("Udl.txt"), "1,0,6,12,12,\"Slab\"\r\n");
    EXPECT_EQ(opened.read("BeamDim.txt"), folder.read("BeamDim.txt"));
}

TEST(Recovery, NothingIsLeftByAnExitOrByEmptyFiles) {
    const TemporaryFolder folder;
    folder.write("BeamDim.txt", "1,1,300,500,450,30,460,200000,250,6\r\n");
    EXPECT_EQ(recovered(folder), "(there is no Recovered.TB)");
    EXPECT_TRUE(CreateNFile(folder.path()).done());
    EXPECT_EQ(recovered(folder), "(there is no Recovered.TB)");
}

TEST(Recovery, WhatWasRecoveredBeforeIsKept) {
    const TemporaryFolder folder;
    folder.write("Joint.txt", joints);
    folder.write("Member.txt", "1,200,2,6,a\r\n");
    const auto first = recovered(folder);
    folder.write("Joint.txt", "");  // as a start leaves it that was killed while it emptied them
    EXPECT_EQ(recovered(folder), first);
    for (const auto* number : {"2", "3"}) {
        const auto before = folder.read("Recovered.TB");
        folder.write("Joint.txt", joints + number + ",Fixed,b\r\n");
        EXPECT_EQ(recovered(folder, std::string("Recovered ") + number + ".TB"), before);
    }
    folder.write("Joint.txt", joints);  // the rows of the first run once more
    EXPECT_EQ(recovered(folder, "Recovered 4.TB"), "(there is no Recovered 4.TB)");
}

TEST(Recovery, ScrambledLinesStandAsTheyAre) {
    const TemporaryFolder folder;
    const auto noRows = "2,Fixed\r\n\r\nM\0,\"open\r\n"s;
    folder.write("Joint.txt", joints + noRows);
    folder.write("Udl.txt", "TRABEON,x\r\n");
    const auto text = recovered(folder);
    EXPECT_NE(text.find("former run\"\r\n" + noRows + "MEMBERS"), std::string::npos) << text;
    EXPECT_NE(text.find("\r\nTRABEON,x\r\nTRABEON RESULTS"), std::string::npos) << text;
}

TEST(Recovery, RowsThatCannotBeKeptAreTold) {
    const TemporaryFolder folder;
    folder.write("Joint.txt", joints);
    {
        const test::FullDisk disk(64);
        EXPECT_NE(recovered(folder).find("Recovered.TB\" could not be written"), std::string::npos);
    }
    std::filesystem::create_directory(folder / "Member.txt");  // stands for what cannot be read
    EXPECT_NE(recovered(folder).find("Member.txt\" cannot be read"), std::string::npos);
}

}  // namespace
}  // namespace trabeon
