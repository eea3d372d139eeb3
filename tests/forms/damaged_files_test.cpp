// Damaged project files through File > Open of the real window: each is refused with the line, or
// is opened and analysed, and every fifth of those designed and shown in every form.
// TRABEON_MUTATIONS sets how many (1000).
#include <array>
#include <cstdlib>
#include <random>
#include <regex>

#include "forms/design/frmBeamDimensions.h"
#include "forms/main/frmTitle.h"
#include "forms/results/frmAnalysis.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {

using namespace std::string_literals;

namespace {

/// Opens the file that it is given, saves nothing, and keeps what is said.
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

/// The text after one to three damages: a stretch that begins anywhere, or with a field or a line,
/// gives way to a scrap or to another line.
std::string damaged(std::string text, unsigned seed) {
    static const std::array scraps{"",     "1E999", "-1", "0", "1E308", "99999999999999999999",
                                   "1E-9", "nan",   "x",  ",", "1E15",  "\xC3(\xFF",
                                   "\"",   "\r",    "\n", "T", "\r\n",  "BEAM\r\n"};
    std::mt19937 random(seed);
    const auto below = [&](std::size_t end) { return end == 0 ? 0 : random() % end; };
    const auto placeAfter = [&](std::size_t from, const char* ends) {
        return std::min(text.find_first_of(ends, from), text.size() - 1) + 1;
    };
    for (auto times = 1 + below(3); times > 0 && !text.empty(); --times) {
        const auto line = placeAfter(below(text.size()), "\n");
        const auto other = text.substr(line, placeAfter(line, "\n") - line);
        const auto at = below(text.size()), field = placeAfter(at, ",\n"),
                   row = placeAfter(at, "\n");
        const std::size_t begins[] = {at, field, field, row};
        const auto begin = begins[below(4)];
        const auto value = std::min(text.find_first_of(",\r", begin), text.size());
        const std::size_t ends[] = {value,      value, value, value, placeAfter(begin, "\n"),
                                    text.size()};
        const auto end = begin == row ? placeAfter(row, "\n") : ends[below(6)];
        const std::string scrap = scraps[below(scraps.size())];
        text.replace(begin, end - begin, begin != row ? scrap : below(2) == 0 ? other : "");
        text.insert(begin, below(100) == 0 ? 20'000 : 0, '\0');
    }
    return text;
}

class DamagedFiles : public ProgramTest {
  protected:
    DamagedFiles() { Start(); }

    static std::string example(unsigned number) {
        constexpr const char* names[] = {"two-span-floor-beam", "five-span-with-cantilever",
                                         "fixed-ended-transfer-beam"};
        return std::string(EXAMPLES) + "/" + names[number % 3] + ".TB";
    }
    /// What a refusal must leave as it is.
    auto project() {
        auto files = folder.contents();
        files["Damaged.TB"] = caption() + forms().Get<frmTitle>().Title().beamName;
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
    Opener opener;
    opener.file = example(0);
    program.mnuOpen_Click();
    opener.file = (folder / "Damaged.TB").string();
    const auto* wanted = std::getenv("TRABEON_MUTATIONS");
    const unsigned count = wanted == nullptr ? 1000 : static_cast<unsigned>(std::atoi(wanted));
    const std::regex refusal("\".*Damaged\\.TB\" is not a complete project file: line [0-9]+: .*");
    unsigned refused = 0, opened = 0;
    for (unsigned i = 0; i < count && !HasFailure(); ++i) {
        SCOPED_TRACE("mutation " + std::to_string(i));
        folder.write("Damaged.TB", damaged(TemporaryFolder::readFile(example(i)), i));
        opener.said.clear();
        const auto before = project();
        program.mnuOpen_Click();
        if (!opener.said.empty()) {
            ++refused;
            EXPECT_TRUE(std::regex_match(opener.said, refusal)) << opener.said;
            EXPECT_EQ(project(), before);
        } else {
            forms().Get<frmAnalysis>().cmdAnalyse.Press();
            if (++opened % 5 == 0)
                useEveryForm();
        }
    }
    std::printf("%u damaged project files: %u refused, %u opened\n", count, refused, opened);
    EXPECT_GT(std::min(refused, opened), count / 5);
}

// A working file changes unknown to the program, with forms open and before others read it.
TEST_F(DamagedFiles, ScrambledWorkingFilesAreSurvivedByEveryForm) {
    Opener opener;
    const auto whole = opener.file = example(1);
    program.mnuOpen_Click();
    forms().Get<frmAnalysis>().cmdAnalyse.Press();
    useEveryForm();
    unsigned refused = 0;
    for (const auto& [name, text] : folder.contents())
        for (const auto& scramble : {"1,2"s, "\0\xC3(,\"open"s, "BEAM\rM,L\nT,,,"s,
                                     std::string(20'000, '9') + ",\r\n", "gone"s, "a folder"s}) {
            SCOPED_TRACE(name + ": " + scramble.substr(0, 20));
            opener.file = whole;
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
            refused += opener.said.empty() ? 0 : 1;
            const TemporaryFolder unpacked;
            EXPECT_EQ(opener.said.empty(), bool(unpackProject(opener.file, unpacked.path())))
                << opener.said;
            std::filesystem::remove(opener.file);
            std::filesystem::remove(folder / name);
        }
    EXPECT_GT(refused, 5U);
}

}  // namespace
}  // namespace trabeon::test
