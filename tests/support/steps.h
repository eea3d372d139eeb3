// Tests in text files: what is done, a line a step, and what must be so after it.
// tests/README.md lists the steps.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "tests/support/temporary_folder.h"

namespace trabeon::test {

/// A line: "word subject = value". A value may also be the lines below it that begin with "| ".
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

std::string replaced(std::string text, const std::string& from, const std::string& to);
std::string joined(const std::vector<std::string>& lines);
std::string yes(bool so);

/// Takes steps in a working folder. It knows those that concern files.
class Walker {
  public:
    explicit Walker(const TemporaryFolder& folder);
    virtual ~Walker() = default;
    Walker(const Walker&) = delete;
    Walker& operator=(const Walker&) = delete;

    void Take(const std::vector<Step>& steps);

  protected:
    /// Steps, and things to look at, by their first word.
    std::map<std::string, std::function<void(const Step&)>> actions;
    std::map<std::string, std::function<std::string(const std::string& subject)>> states;
    /// What a name in braces means in a text.
    std::map<std::string, std::string> places;

    /// What is looked at with a word that is not in `states`.
    virtual std::string Look(const std::string& subject);
    virtual void AfterStep() {}

  private:
    void AddFileActions();
    void AddFileStates();
    Step Filled(Step step) const;

    const TemporaryFolder& files_;
    std::map<std::string, std::string> kept_;
};

}  // namespace trabeon::test
