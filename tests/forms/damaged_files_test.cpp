// Damaged project files through File > Open of the real window: each is refused with the line, or
// is opened and analysed, and every fifth of those designed and shown in every form.
// TRABEON_MUTATIONS tells how many (1000).
#include <array>
#include <chrono>
#include <cstdlib>
#include <random>
#include <regex>

#include "forms/design/frmBeamDimensions.h"
#include "forms/main/frmTitle.h"
#include "forms/results/frmAnalysis.h"
#include "tests/support/program_fixture.h"
#include "tests/support/time_limit.h"

namespace trabeon::test {

using namespace std::string_literals;

namespace {

/// Opens the file that it is told, saves nothing, and keeps what is said.
class Opener : public ScriptedOutside {
  public:
    std::string file, said;

    Answer MsgBox(const std::string& text, int style, const std::string&) override {
        constexpr int yesNoCancel = 51;
        if (style != yesNoCancel)
            said = text;
        return style == yesNoCancel ? Answer::No : Answer::Ok;
    }
    std::string AskFile(const FileQuestion&) override { return file; }
};

/// A project file, and what can happen to one.
class Damaged {
  public:
    Damaged(std::string text, unsigned seed) : text_(std::move(text)), random_(seed) {
        for (auto times = 1 + below(3); times > 0; --times)
            damage(below(11));
    }
    [[nodiscard]] const std::string& text() const { return text_; }

  private:
    std::size_t below(std::size_t end) { return end == 0 ? 0 : random_() % end; }
    std::size_t place() { return below(text_.size() + 1); }
    /// From a place to behind the next of these characters.
    [[nodiscard]] std::size_t behind(std::size_t from, const char* ends) const {
        return std::min(text_.find_first_of(ends, from), text_.size() - 1) + 1;
    }
    void damage(std::size_t kind) {
        static const std::array numbers{"1E999", "-1", "0",  "1E308", "nan", "99999999999999999999",
                                        "1E-9",  "",   "\"", "x",     ",",   "1E15"};
        static const std::array scraps{"\0\0"s, "\xC3(\xFF"s, "\r"s,
                                       "\n"s,   "\r\n"s,      std::string(20'000, '7')};
        if (text_.empty())
            return;
        const auto line = behind(place(), "\n");
        const auto row = text_.substr(line, behind(line, "\n") - line);
        switch (const auto at = below(text_.size()); kind) {
            case 0:
                text_[at] = static_cast<char>(random_());
                break;
            case 1:
                text_.erase(line, row.size());
                break;
            case 2:
                text_.insert(line, row);
                break;
            case 3:  // a line comes to stand elsewhere
                text_.erase(line, row.size());
                text_.insert(behind(place(), "\n"), row);
                break;
            case 4:
                text_.resize(at);
                break;
            case 5:
            case 6: {  // another number
                const auto field = behind(at, ",\n");
                const auto end = std::min(text_.find_first_of(",\r", field), text_.size());
                text_.replace(field, end - field, numbers[below(numbers.size())]);
                break;
            }
            case 7: {
                const auto field = behind(at, ",\n");
                text_.erase(field, behind(field, ",\n") - field);
                break;
            }
            case 8:
                text_.insert(at, scraps[below(scraps.size())]);
                break;
            case 9:  // a heading's first letter
                text_[std::min(line, text_.size() - 1)] = static_cast<char>('A' + below(26));
                break;
            default:
                std::erase(text_, below(2) == 0 ? '\r' : '\n');
        }
    }

    std::string text_;
    std::mt19937 random_;
};

class DamagedFiles : public ProgramTest {
  protected:
    static std::string example(unsigned number) {
        static const std::array names{"two-span-floor-beam.TB", "five-span-with-cantilever.TB",
                                      "fixed-ended-transfer-beam.TB"};
        return std::string(EXAMPLES) + "/" + names[number % names.size()];
    }
    /// The working files, as a refusal must leave them.
    std::map<std::string, std::string> working() {
        auto files = folder.contents();
        files.erase("Damaged.TB");
        return files;
    }
    void useEveryForm() {
        forms().Get<frmBeamDimensions>().cmdDesign.Press();
        for (const auto* form : {"frmJoints", "frmMembers", "frmPoint", "frmUDL", "frmDiagram",
                                 "frmMoment1", "frmContinuousS", "frmBMData", "frmBeamDesign"})
            forms().Show(form);
        Settle();
    }
};

TEST_F(DamagedFiles, ProjectsAreRefusedWithTheLineOrOpenedAndUsed) {
    Start();
    Opener opener;
    opener.file = example(0);
    program.mnuOpen_Click();
    const auto* wanted = std::getenv("TRABEON_MUTATIONS");
    const unsigned count = wanted == nullptr ? 1000 : static_cast<unsigned>(std::atoi(wanted));
    const std::regex refusal("\".*Damaged\\.TB\" is not a whole project file: line [0-9]+: .*");
    unsigned refused = 0, opened = 0;
    for (unsigned i = 0; i < count && !HasFailure(); ++i) {
        SCOPED_TRACE("mutation " + std::to_string(i));
        folder.write("Damaged.TB", Damaged(TemporaryFolder::readFile(example(i)), i).text());
        opener.file = (folder / "Damaged.TB").string();
        opener.said.clear();
        const auto before = working();
        const auto name = caption();
        const auto title = forms().Get<frmTitle>().Title().beamName;
        const auto start = std::chrono::steady_clock::now();
        program.mnuOpen_Click();
        if (!opener.said.empty()) {
            ++refused;
            EXPECT_TRUE(std::regex_match(opener.said, refusal)) << opener.said;
            EXPECT_EQ(working(), before);
            EXPECT_EQ(caption(), name);
            EXPECT_EQ(forms().Get<frmTitle>().Title().beamName, title);
        } else {
            forms().Get<frmAnalysis>().cmdAnalyse.Press();
            if (++opened % 5 == 0)
                useEveryForm();
        }
        const std::chrono::duration<double, std::milli> took =
            std::chrono::steady_clock::now() - start;
        EXPECT_LT(took.count(), limit(10'000));
    }
    std::printf("%u damaged project files: %u refused, %u opened\n", count, refused, opened);
    EXPECT_GT(refused, count / 5);
    EXPECT_GT(opened, count / 5);
}

// A working file changes behind the program's back, with forms open and before others read it.
TEST_F(DamagedFiles, ScrambledWorkingFilesAreSurvivedByEveryForm) {
    Start();
    Opener opener;
    const auto project = opener.file = example(1);
    program.mnuOpen_Click();
    forms().Get<frmAnalysis>().cmdAnalyse.Press();
    useEveryForm();
    unsigned refused = 0;
    for (const auto& [name, text] : folder.contents())
        for (const auto& scramble : {"1,2"s, "\0\xC3(,\"open"s, "BEAM\rM,L\nT,,,"s,
                                     std::string(20'000, '9') + ",\r\n", "gone"s, "a folder"s}) {
            SCOPED_TRACE(name + ": " + scramble.substr(0, 20));
            program.mnuOpen_Click();
            forms().Show("frmPoint");
            std::filesystem::remove(folder / name);
            if (scramble == "a folder")
                std::filesystem::create_directory(folder / name);
            else if (scramble != "gone")
                folder.write(name, scramble);
            forms().Get<frmAnalysis>().cmdAnalyse.Press();
            useEveryForm();
            opener.said.clear();
            opener.file = (folder / "Job.TB").string();
            program.FileSaveAs();
            const bool saved = opener.said.empty();
            refused += saved ? 0 : 1;
            const TemporaryFolder unpacked;
            EXPECT_EQ(saved, static_cast<bool>(unpackProject(opener.file, unpacked.path())))
                << opener.said;
            std::filesystem::remove(opener.file);
            std::filesystem::remove(folder / name);
            opener.file = project;
        }
    EXPECT_GT(refused, 5U);
}

}  // namespace
}  // namespace trabeon::test
