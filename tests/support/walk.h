// A test of windows from a text file: what a user does, a line a step, and what must be so after
// it. tests/forms/walks/README.md lists the steps.
#pragma once

#include <QTreeWidget>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"
#include "toolkit/controls/picture_box.h"

namespace trabeon::test {

/// A line of a walk: "word subject = value". A value may also be the lines below it that begin with
/// "| ".
struct Step {
    std::string place;  // file and line
    std::string word, subject, value;
    std::vector<std::string> lines;
};

struct Walk {
    std::string name;
    std::vector<Step> steps;
};

/// The walks of all files of a folder. In a file each begins with its name in brackets.
std::vector<Walk> readWalks(const std::filesystem::path& folder);
void PrintTo(const Walk& walk, std::ostream* out);
std::string nameOf(const testing::TestParamInfo<Walk>& walk);

class WalkTest : public ProgramTest, public testing::WithParamInterface<Walk> {
  protected:
    WalkTest();
    void Take(const std::vector<Step>& steps);

    /// Steps and things to look at that a folder of walks adds to the common ones.
    std::map<std::string, std::function<void(const Step&)>> actions;
    std::map<std::string, std::function<std::string(const std::string& subject)>> states;
    /// What a name in braces means in a text.
    std::map<std::string, std::string> places{{"{folder}", folder.path().string()},
                                              {"{examples}", EXAMPLES}};

    QWidget& Front();
    /// The window of a form that is loaded; null of another.
    QWidget* Window(const std::string& form);
    QWidget& Find(const std::string& name);
    QTreeWidget& List();

  private:
    void AddActions();
    void AddExpectations();
    void AddStates();
    void AddListStates();
    std::string Filled(std::string text) const;
    QPoint PlaceOf(const Step& step);
    void Keys(const std::string& keys);

    std::map<std::string, std::string> kept_;
};

/// What a picture shows, a line a stroke, in whole twips.
std::string strokesOf(const PictureBox& picture);

}  // namespace trabeon::test
