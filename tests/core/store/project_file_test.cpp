#include "core/store/project_file.h"
#include "core/store/new_project.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "core/store/row_editing.h"
#include "core/store/working_files.h"
#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

using test::TemporaryFolder;

const std::string whole =
    "WARNNING! DO NOT CHANGE CAPITALISED TEXT. JUST CHANGE NUMBERS AS TEXT SERVES AS INDICATORS FOR "
    "THIS DATA FILE\r\n"
    "TITLE\r\n\"Mill, west\"\r\n\"Annonymous\"\r\n\"B1\"\r\n"
    "JOINTS - Joint No_ Joint Type And Description\r\n1,Fixed,\"None\"\r\n2,Fixed,\"\"\r\n"
    "MEMBERS - Member No_ E_ I_ L And Description\r\n1,200,2,6,\"a, b\"\r\n"
    "LOADING - Point Load - Member No_ Distance From Left Support_ Intensity and Description\r\n"
    "1,3,50,\"None\"\r\n"
    "LOADING - UDL Load - Member No_ Distance From Left Support_ Width of Load_ Intensity w1_ "
    "Intensity w2 and Description\r\n"
    "1,0,1,0,0,\"Zero Load\"\r\n"
    "TRABEON RESULTS\r\nJOINT     000000001     000000002     \r\n"
    "BEAM DIMENSIONS\r\n1,1,300,500,450,30,460,200000,250,6\r\n";

const std::map<std::string, std::string> unpacked{
    {"Joint.txt", "1,Fixed,None\r\n2,Fixed,\r\n"},
    {"Member.txt", "1,200,2,6,\"a, b\"\r\n"},
    {"Point.txt", "1,3,50,None\r\n"},
    {"Udl.txt", "1,0,1,0,0,\"Zero Load\"\r\n"},
    {"TB.txt", "JOINT     000000001     000000002     \r\n"},
    {"BeamDim.txt", "1,1,300,500,450,30,460,200000,250,6\r\n"}};

struct ProjectFile : testing::Test {
    TemporaryFolder folder, work;

    /// The refusal of a text as a project file, nothing if it was unpacked.
    std::string Refusal(const std::string& text) {
        folder.write("a.TB", text);
        const auto title = unpackProject(folder / "a.TB", work.path());
        return title ? "" : title.refusal().sentence;
    }
    /// The working folder without what the program keeps there for itself.
    std::map<std::string, std::string> UsersFiles() {
        auto files = work.contents();
        files.erase("Record.txt");
        files.erase("Title.txt");
        return files;
    }
    std::string With(const std::string& from, const std::string& to) {
        auto text = whole;
        return text.replace(text.find(from), from.size(), to);
    }
};

TEST_F(ProjectFile, OpenThenSaveGivesTheSameLines) {
    folder.write("a.TB", whole);
    const auto opened = unpackProject(folder / "a.TB", work.path());
    ASSERT_TRUE(opened) << opened.refusal().sentence;
    const auto& title = opened->title;
    EXPECT_EQ(title.project + title.designer + title.beamName, "Mill, westAnnonymousB1");
    EXPECT_EQ(UsersFiles(), unpacked);
    EXPECT_TRUE(packProject(work.path(), titleIn(work.path()), folder / "b.TB"));
    EXPECT_EQ(folder.read("b.TB"), whole);
    auto other = With("MEMBERS -", "Mine now ");  // headings are known by their first letters,
    std::erase(other, '\r');                      // and LF ends a line too
    EXPECT_EQ(Refusal(other), "");
    EXPECT_EQ(UsersFiles(), unpacked);
}

TEST_F(ProjectFile, TextsOfAnyCharacterSetKeepTheirBytes) {
    auto text = With("Mill, west", "Tr\xE4ger");
    for (const auto* each : {"None", "a, b", "Zero Load"})
        text.replace(text.find(each), 4, "\xFF\x80 \xC3");
    std::string longest;
    while (longest.size() < 2 * longestTitle)
        longest += "ä";
    text.replace(text.find("B1"), 2, longest);
    ASSERT_EQ(Refusal("\xEF\xBB\xBF" + text), "");
    const auto opened = unpackProject(folder / "a.TB", work.path());
    EXPECT_TRUE(addRow(work.path(), 9, JointRow{"3", "Fixed", "x"}).done());
    EXPECT_TRUE(removeRow<JointRow>(work.path(), 3, Numbering::asRead).done());
    EXPECT_TRUE(packProject(work.path(), opened->title, folder / "b.TB"));
    EXPECT_EQ(folder.read("b.TB"), text);
}

TEST_F(ProjectFile, NewProjectHasAllHeadingsAndNothingBetween) {
    EXPECT_TRUE(CreateNFile(work.path()).done());
    EXPECT_TRUE(packProject(work.path(), {}, folder / "new.TB"));
    const auto text = folder.read("new.TB");
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 11);
    EXPECT_NE(text.find("\"Untitled\"\r\n\"Annonymous\"\r\n\"Beam Name\"\r\n"), std::string::npos);
    const auto before = UsersFiles();
    EXPECT_EQ(Refusal(text), "");
    EXPECT_EQ(UsersFiles(), before);
}

TEST_F(ProjectFile, RefusedOnesNameTheLineAndChangeNothing) {
    work.write("Joint.txt", "1,Fixed,\"mine\"\r\n");
    const auto before = work.contents();
    const auto upTo = [&](const char* text) { return whole.substr(0, whole.find(text)); };
    const std::pair<std::string, const char*> rows[] = {
        {"", "line 1: the file ends where the warning was expected"},
        {upTo("\"B1\""), "line 5: the file ends where the beam name was expected"},
        {upTo("MEMBERS"),
         "line 9: the file ends where a joint row or the heading \"MEMBERS\" was expected"},
        {upTo("TRABEON"),
         "line 15: the file ends where a distributed load row or the heading \"TRABEON RESULTS\""},
        {upTo("BEAM DIM"),
         "line 17: the file ends where a line of results or the heading \"BEAM DIMENSIONS\""},
        {With("1,200,2,6,\"a, b\"", "1,200,2"),
         "line 10: a member row or the heading \"LOADING - Point Load\" was expected; a row has 5 "
         "fields, this line has 3"},
        {With("2,Fixed,\"\"", "2,Fixed,a,b"),
         "line 8: a joint row or the heading \"MEMBERS\" was expected; a row has 3 fields, this "
         "line has more than 3"},
        {With("Mill, west", std::string(1'000'000, '\xE4')),
         "line 3: the project title has 1000000 characters; 32767 are the most"},
        {With(",250,6\r\n", ",250\r\n"),
         "line 18: a row of beam dimensions was expected; a row has 10 fields, this line has 9"},
    };
    for (const auto& [text, sentence] : rows) {
        const auto refusal = Refusal(text);
        EXPECT_NE(refusal.find("a.TB\" is not a complete project file: " + std::string(sentence)),
                  std::string::npos)
            << refusal << " where expected: " << sentence;
        EXPECT_EQ(work.contents(), before);
    }
    EXPECT_FALSE(unpackProject(folder / "none.TB", work.path()));
    const auto failing = unpackProject("/proc/self/mem", work.path());  // opens, and fails to read
    EXPECT_TRUE(failing.refusal().sentence.starts_with("\"/proc/self/mem\" cannot be read"));
    std::string wide;
    for (const char c : whole)
        (wide += c) += '\0';
    for (const auto& text : {wide, "\xFE\xFF" + std::string(1, '\0') + wide})
        EXPECT_NE(Refusal(text).find("a.TB\" is a text in UTF-16"), std::string::npos);
    EXPECT_EQ(work.contents(), before);
}

TEST_F(ProjectFile, WhatCannotBeSavedOrOpenedAgainLeavesTheOldFile) {
    EXPECT_TRUE(CreateNFile(work.path()).done());
    folder.write("a.TB", "old");
    const auto failure = [&](const ProjectTitle& title = {}) {
        const auto why = packProject(work.path(), title, folder / "a.TB");
        EXPECT_EQ(folder.read("a.TB"), "old");
        return why ? "" : why.refusal().sentence;
    };
    EXPECT_NE(failure({"a \"quoted\" title", "", ""}), "");
    EXPECT_EQ(failure({"", std::string(longestTitle + 1, 'x'), ""}),
              "The title text \"" + std::string(77, 'x') +
                  "...\" has 32768 characters; 32767 are the most. Shorten it, then save again.");
    work.write("BeamDim.txt", "1,1,300\r\n");
    EXPECT_NE(failure().find("a row of beam dimensions was expected"), std::string::npos);
    work.write("BeamDim.txt", "");
    folder.protect("a.TB");
    EXPECT_NE(failure(), "");
    folder.protect("a.TB", false);
    std::filesystem::remove(work / "Joint.txt");
    std::filesystem::create_directory(work / "Joint.txt");
    EXPECT_NE(failure(), "");
}

}  // namespace
}  // namespace trabeon
