#include "core/store/project_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/store/working_files.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

using test::TemporaryFolder;

std::string project(const std::string& joints, const std::string& rest) {
    return "WARNNING! DO NOT CHANGE CAPITALISED TEXT. JUST CHANGE NUMBERS AS TEXT SERVES AS "
           "INDICATORS FOR THIS "
           "DATA FILE\r\nTITLE\r\n\"Mill, west\"\r\n\"Annonymous\"\r\n\"B1\"\r\n"
           "JOINTS - Joint No_ Joint Type And Description\r\n" +
           joints + "MEMBERS - Member No_ E_ I_ L And Description\r\n" + rest;
}

const std::string joints = "1,Fixed,\"None\"\r\n2,Fixed,\"\"\r\n";
const std::string rest =
    "1,200,2,6,\"a, b\"\r\n"
    "LOADING - Point Load - Member No_ Distance From Left Support_ Intensity and Description\r\n"
    "1,3,50,\"None\"\r\n"
    "LOADING - UDL Load - Member No_ Distance From Left Support_ Width of Load_ Intensity w1_ "
    "Intensity w2 and "
    "Description\r\n"
    "1,0,1,0,0,\"Zero Load\"\r\n"
    "TRABEON RESULTS\r\n"
    "JOINT     000000001     000000002     \r\n"
    "BEAM DIMENSIONS\r\n"
    "1,1,300,500,450,30,460,200000,250,6\r\n";

const std::map<std::string, std::string> unpacked{
    {"Joint.txt", "1,Fixed,None\r\n2,Fixed,\r\n"},
    {"Member.txt", "1,200,2,6,\"a, b\"\r\n"},
    {"Point.txt", "1,3,50,None\r\n"},
    {"Udl.txt", "1,0,1,0,0,\"Zero Load\"\r\n"},
    {"TB.txt", "JOINT     000000001     000000002     \r\n"},
    {"BeamDim.txt", "1,1,300,500,450,30,460,200000,250,6\r\n"}};

TEST(ProjectFile, OpenThenSaveGivesTheSameLines) {
    const TemporaryFolder folder, work;
    folder.write("a.TB", project(joints, rest));
    const auto title = unpackProject(folder / "a.TB", work.path());
    ASSERT_TRUE(title) << title.refusal().sentence;
    EXPECT_EQ(title->project, "Mill, west");
    EXPECT_EQ(title->beamName, "B1");
    EXPECT_EQ(work.contents(), unpacked);
    EXPECT_FALSE(packProject(work.path(), *title, folder / "b.TB"));
    EXPECT_EQ(folder.read("b.TB"), project(joints, rest));
}

TEST(ProjectFile, LfLineEndsAndOtherHeadingTextsAreReadAsWell) {
    const TemporaryFolder folder, work;
    auto text = project(joints, rest);
    std::erase(text, '\r');
    text.replace(text.find("MEMBERS -"), 9, "Mine now ");
    folder.write("a.TB", text);
    EXPECT_TRUE(unpackProject(folder / "a.TB", work.path()));
    EXPECT_EQ(work.contents(), unpacked);
}

TEST(ProjectFile, NewProjectHasAllHeadingsAndNothingBetween) {
    const TemporaryFolder work, folder;
    CreateNFile(work.path());
    EXPECT_FALSE(packProject(work.path(), {}, folder / "new.TB"));
    const auto text = folder.read("new.TB");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 11);
    EXPECT_NE(text.find("\"Untitled\"\r\n\"Annonymous\"\r\n\"Beam Name\"\r\n"), std::string::npos);
    const auto before = work.contents();
    EXPECT_TRUE(unpackProject(folder / "new.TB", work.path()));
    EXPECT_EQ(work.contents(), before);
}

TEST(ProjectFile, RefusedOnesNameTheLineAndChangeNothing) {
    const TemporaryFolder folder, work;
    work.write("Joint.txt", "1,Fixed,\"mine\"\r\n");
    const auto before = work.contents();
    const auto whole = project(joints, rest);
    const auto upTo = [&](const char* text) { return whole.substr(0, whole.find(text)); };
    const auto with = [&](const char* from, const char* to) {
        auto text = whole;
        return text.replace(text.find(from), std::string(from).size(), to);
    };
    const std::pair<std::string, const char*> rows[] = {
        {"", "line 1: the file ends where the warning was expected"},
        {upTo("\"B1\""), "line 5: the file ends where the beam name was expected"},
        {upTo("MEMBERS"),
         "line 9: the file ends where a joint row or the heading \"MEMBERS\" was expected"},
        {upTo("TRABEON"),
         "line 15: the file ends where a distributed load row or the heading \"TRABEON RESULTS\""},
        {upTo("BEAM DIM"),
         "line 17: the file ends where a line of results or the heading \"BEAM DIMENSIONS\""},
        {with("1,200,2,6,\"a, b\"", "1,200,2"),
         "line 10: a member row or the heading \"LOADING - Point Load\" was "
         "expected; a row has 5 fields, this line has 3"},
        {with("2,Fixed,\"\"", "2,Fixed,a,b"),
         "line 8: a joint row or the heading \"MEMBERS\" was expected; a row has "
         "3 fields, this line has more than 3"},
        {with("1,0,1,0,0", "1,0,1"), "line 14: a distributed load row"},
        {with(",250,6\r\n", ",250\r\n"),
         "line 18: a row of beam dimensions was expected; a row has 10 fields, this line has 9"},
    };
    for (const auto& [text, sentence] : rows) {
        folder.write("a.TB", text);
        const auto title = unpackProject(folder / "a.TB", work.path());
        ASSERT_FALSE(title) << sentence;
        EXPECT_NE(title.refusal().sentence.find("a.TB\" is not a whole project file: " +
                                                std::string(sentence)),
                  std::string::npos)
            << title.refusal().sentence;
        EXPECT_EQ(work.contents(), before);
    }
    EXPECT_FALSE(unpackProject(folder / "none.TB", work.path()));
}

TEST(ProjectFile, WhatCouldNotBeOpenedAgainIsNotSaved) {
    const TemporaryFolder work, folder;
    CreateNFile(work.path());
    folder.write("a.TB", "old");
    work.write("BeamDim.txt", "1,1,300\r\n");
    const auto failure = packProject(work.path(), {}, folder / "a.TB");
    ASSERT_TRUE(failure);
    EXPECT_NE(failure->sentence.find("a row of beam dimensions was expected"), std::string::npos)
        << failure->sentence;
    work.write("BeamDim.txt", "");
    std::filesystem::remove(work / "Joint.txt");
    std::filesystem::create_directory(work / "Joint.txt");
    EXPECT_TRUE(packProject(work.path(), {}, folder / "a.TB"));
    EXPECT_EQ(folder.read("a.TB"), "old");
}

TEST(ProjectFile, FailedSaveLeavesTheOldFile) {
    const TemporaryFolder work, folder;
    folder.write("a.TB", "old");
    EXPECT_TRUE(packProject(work.path(), {"a \"quoted\" title", "", ""}, folder / "a.TB"));
    std::filesystem::create_directory(folder / "a.TB.new");
    EXPECT_TRUE(packProject(work.path(), {}, folder / "a.TB"));
    EXPECT_EQ(folder.read("a.TB"), "old");
}

}  // namespace
}  // namespace trabeon
