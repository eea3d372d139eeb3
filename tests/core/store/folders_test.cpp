// What is done to the rows of a working folder and to project files, in the files in "folders".
#include <optional>
#include <sstream>

#include "core/store/folder_record.h"
#include "core/store/new_project.h"
#include "core/store/project_file.h"
#include "core/store/recovery.h"
#include "core/store/row_editing.h"
#include "core/text/readable.h"
#include "tests/support/full_disk.h"
#include "tests/support/steps.h"

namespace trabeon::test {
namespace {

struct WithFolder {
    TemporaryFolder folder;
};

/// "a|b|c" is a, b and c.
std::array<std::string, 3> threeOf(const std::string& text) {
    std::array<std::string, 3> parts;
    std::istringstream in(text);
    for (auto& part : parts)
        std::getline(in, part, '|');
    return parts;
}

class Folder : public testing::TestWithParam<Walk>, public WithFolder, public Walker {
  protected:
    Folder() : Walker(folder) {
        places["{files}"] = TABLES "/store/folders";
        places["{long}"] = std::string(1'000'000, '\xE4');
        places["{bytes}"] = "\xFF\x80 \xC3";
        places["{mark}"] = "\xEF\xBB\xBF";
        for (std::size_t i = 0; i < longestTitle; ++i)
            places["{wide}"] += "ä";
        places["{longest}"] = std::string(longestTitle + 1, 'x');
        AddRowActions();
        AddProjectActions();
        AddTextActions();
        states["said"] = [this](const std::string&) { return said_; };
        states["says"] = [this](const std::string& part) {
            return yes(said_.find(part) != std::string::npos);
        };
        states["title"] = [this](const std::string&) {
            return title_.project + '|' + title_.designer + '|' + title_.beamName;
        };
    }

    void AddRowActions() {
        actions["add"] = [this](const Step& step) {
            const auto [number, type, description] = threeOf(step.value);
            const auto position = std::stoul(step.subject.substr(step.subject.find(' ')));
            Keep(addRow(folder.path(), position, JointRow{number, type, description}));
        };
        actions["delete"] = [this](const Step& step) {
            const auto row = std::stoul(step.subject.substr(step.subject.find(' ')));
            Keep(step.subject.starts_with("Joint")
                     ? removeRow<JointRow>(folder.path(), row, Numbering::fromOne)
                     : removeRow<PointRow>(folder.path(), row, Numbering::asRead));
        };
        // From here to the end of the next step files hold so many bytes.
        actions["disk"] = [this](const Step& step) { disk_.emplace(std::stoul(step.subject)); };
        actions["folder"] = [this](const Step& step) {
            std::filesystem::remove(folder / step.subject);
            std::filesystem::create_directory(folder / step.subject);
        };
    }

    void AddProjectActions() {
        actions["new"] = [this](const Step&) { Keep(CreateNFile(folder.path())); };
        actions["recover"] = [this](const Step&) { Keep(recoverRows(folder.path())); };
        actions["others"] = [this](const Step&) { Keep(Status(checkRowsAreSaved(folder.path()))); };
        actions["title"] = [this](const Step& step) {
            const auto [project, designer, beamName] = threeOf(step.subject);
            title_ = {project, designer, beamName};
        };
        actions["pack"] = [this](const Step& step) {
            Keep(packProject(folder.path(), title_, folder / step.subject));
        };
        actions["unpack"] = [this](const Step& step) {
            const auto opened = unpackProject(folder / step.subject, folder.path());
            Keep(opened);
            if (opened)
                title_ = opened->title;
        };
    }

    void AddTextActions() {
        actions["end"] = [this](const Step& step) {
            const auto text = folder.read(step.subject);
            folder.write(step.subject, text.substr(0, text.find(step.value)));
        };
        actions["lf"] = [this](const Step& step) {
            folder.write(step.subject, replaced(folder.read(step.subject), "\r", ""));
        };
        actions["utf16"] = [this](const Step& step) {
            const auto name = step.subject.substr(0, step.subject.find(' '));
            const bool big = step.subject.ends_with("big");
            std::string wide = big ? std::string("\xFE\xFF") : "";
            for (const char c : folder.read(name))
                wide += big ? std::string{'\0', c} : std::string{c, '\0'};
            folder.write(name, wide);
        };
    }

    void Keep(const Status& status) {
        disk_.reset();
        said_ = status.failed() ? status.refusal().sentence : "";
    }
    template <class Value>
    void Keep(const Outcome<Value>& outcome) {
        disk_.reset();
        said_ = outcome ? "" : outcome.refusal().sentence;
    }

    std::string said_;  // by the last step
    ProjectTitle title_;
    std::optional<FullDisk> disk_;
};

TEST_P(Folder, Changes) {
    Take(GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(Store, Folder, testing::ValuesIn(readWalks(TABLES "/store/folders")),
                         nameOf);

}  // namespace
}  // namespace trabeon::test
