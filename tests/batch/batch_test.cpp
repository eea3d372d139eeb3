// trabeon-batch as a user calls it: words in, exit code, texts and files out.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <iomanip>
#include <memory>
#include <sstream>
#include <vector>

#include "core/store/folder_lock.h"
#include "tests/support/batch_program.h"
#include "tests/support/steps.h"

namespace trabeon::test {
namespace {

/// A beam of equal spans of 6 under 12, pinned at both ends.
void writeBeam(const TemporaryFolder& folder, int spans) {
    std::string joints, members, loads;
    for (int j = 0; j <= spans; ++j)
        joints += std::to_string(j + 1) + (j == 0 || j == spans ? ",Pin Jointed" : ",Continuous") +
                  ",\"None\"\r\n";
    for (int i = 1; i <= spans; ++i) {
        members += std::to_string(i) + ",200,2,6,\"None\"\r\n";
        loads += std::to_string(i) + ",0,6,12,12,\"None\"\r\n";
    }
    folder.write("Joint.txt", joints);
    folder.write("Member.txt", members);
    folder.write("Udl.txt", loads);
    folder.write("Point.txt", "");
}

/// The words of a command line; those in double quotes are one.
std::vector<std::string> wordsOf(const std::string& line) {
    std::vector<std::string> words;
    std::istringstream in(line);
    for (std::string word; in >> std::quoted(word);)
        words.push_back(word);
    return words;
}

/// One line as it is; of several each with its line end.
std::string shown(const std::string& text) {
    const bool isLine = std::count(text.begin(), text.end(), '\n') == 1;
    return isLine ? text.substr(0, text.size() - 1) : replaced(text, "\n", "\r\n");
}

struct WithFolder {
    TemporaryFolder folder;
};

class Session : public testing::TestWithParam<Walk>, public WithFolder, public Walker {
  protected:
    Session() : Walker(folder) {
        places["{long}"] = std::string(10'000, '\xE4');
        actions["beam"] = [this](const Step& step) { writeBeam(folder, std::stoi(step.subject)); };
        // Of each file from the next run on.
        actions["limit"] = [this](const Step& step) { fileLimit = std::stoul(step.subject); };
        actions["run"] = [this](const Step& step) {
            answer = batch(wordsOf(step.subject), fileLimit);
        };
        // Unpacked and analysed.
        actions["example"] = [this](const Step& step) {
            const auto dir = folder.path().string();
            ASSERT_EQ(batch({"unpack", EXAMPLES "/" + step.subject + ".TB", dir}).exit, 0);
            ASSERT_EQ(batch({"analyse", dir}).exit, 0);
        };
        states["exit"] = [this](const std::string&) { return std::to_string(answer.exit); };
        states["out"] = [this](const std::string&) { return shown(answer.out); };
        states["err"] = [this](const std::string&) { return shown(answer.err); };
        states["says"] = [this](const std::string& part) {
            return yes(answer.err.find(part) != std::string::npos);
        };
        states["prints"] = [this](const std::string& part) {
            return yes(answer.out.find(part) != std::string::npos);
        };
        states["lines"] = [this](const std::string& name) {
            const auto text = folder.read(name);
            return std::to_string(std::count(text.begin(), text.end(), '\n'));
        };
        states["folder"] = [this](const std::string& name) {
            return yes(std::filesystem::is_directory(folder / name));
        };
    }

    Answer answer{};
    rlim_t fileLimit = RLIM_INFINITY;
};

TEST_P(Session, Runs) {
    Take(GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(Batch, Session, testing::ValuesIn(readWalks(SESSIONS)), nameOf);

std::string example(const std::string& name) {
    return EXAMPLES "/" + name + ".TB";
}

TEST(Commands, OfTwoInOneFolderOneWaitsAndNoneTearsTheOthersFiles) {
    const TemporaryFolder work, left, right;
    ASSERT_EQ(batch({"unpack", example("five-span-with-cantilever"), work.path().string()}).exit,
              0);
    const auto analyse = [&](const TemporaryFolder& output, const std::string& divisions) {
        return start(output, {"analyse", work.path().string(), "--divisions", divisions});
    };
    for (int pair = 0; pair < 20; ++pair) {
        const std::array running{analyse(left, "200"), analyse(right, "300")};
        for (const pid_t process : running) {
            int status = 0;
            waitpid(process, &status, 0);
            EXPECT_EQ(status, 0) << left.read("err") << right.read("err");
        }
        const auto rows = work.read("BM.txt");
        const auto lines = std::count(rows.begin(), rows.end(), '\n');
        EXPECT_TRUE(lines == 5 * 203 || lines == 5 * 303) << lines;
    }
}

TEST(Commands, AFolderThatIsInUseIsLeftAlone) {
    const TemporaryFolder work, folder;
    const auto dir = work.path().string();
    ASSERT_EQ(batch({"unpack", example("two-span-floor-beam"), dir}).exit, 0);
    const auto before = work.contents();
    const auto project = example("two-span-floor-beam");
    FolderLock lock;
    ASSERT_TRUE(lock.take(work.path(), std::chrono::seconds(0)).done());
    const std::vector<std::vector<std::string>> all{{"analyse", dir},
                                                    {"design", dir},
                                                    {"tables", dir},
                                                    {"unpack", project, dir},
                                                    {"run", project, "--out", dir},
                                                    {"pack", dir, (folder / "a.TB").string()}};
    std::vector<std::pair<pid_t, std::unique_ptr<TemporaryFolder>>> running;
    for (const auto& words : all) {  // side by side: each waits a while
        auto output = std::make_unique<TemporaryFolder>();
        const auto process = start(*output, words);
        running.emplace_back(process, std::move(output));
    }
    for (const auto& [process, output] : running) {
        int status = 0;
        waitpid(process, &status, 0);
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_EQ(output->read("err"), "The folder \"" + dir +
                                           "\" is in use by batch_test (process " +
                                           std::to_string(getpid()) +
                                           "). Wait until it has finished or close it, then try "
                                           "again; nothing was changed.\n");
    }
    EXPECT_EQ(work.contents(), before);
    EXPECT_TRUE(folder.contents().empty());
}

}  // namespace
}  // namespace trabeon::test
