#include "batch/commands.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>

#include "batch/beam_report.h"
#include "core/analysis/result_files.h"
#include "core/store/project_file.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

/// From this many members on an analysis shows its progress, and its table stays in its file.
constexpr std::size_t manyMembers = 1000;
constexpr std::size_t mostMembersShown = 20;

Exit refused(const Refusal& refusal) {
    complain(refusal.sentence);
    return Exit::refused;
}

std::size_t terminalWidth() {
    winsize size{};
    const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : 100;
}

Outcome<AnalysisSettings> settingsOf(const CommandLine& line) {
    AnalysisSettings settings;
    const std::pair<const char*, double*> options[] = {{"--divisions", &settings.Divisions},
                                                       {"--places", &settings.places}};
    for (const auto& [name, value] : options) {
        const auto text = line.option(name);
        if (!text)
            continue;
        const auto number = wholeNumberText(*text);
        if (!number)
            return Refusal{std::string(name) + " takes a number, not \"" + *text + "\"."};
        *value = *number;
    }
    return settings;
}

/// A percentage on standard error, for a person who waits at a terminal.
std::function<void(double)> progressLine(std::size_t members) {
    if (members < manyMembers || isatty(STDERR_FILENO) == 0)
        return [](double) {};
    return [shown = -1](double percent) mutable {
        if (static_cast<int>(percent) == shown)
            return;
        shown = static_cast<int>(percent);
        std::fprintf(stderr, shown < 100 ? "\rAnalysing: %d %%" : "\r                \r", shown);
    };
}

std::optional<Analysis> analysed(const fs::path& folder, const AnalysisSettings& settings,
                                 std::function<void(double)> progress) {
    AnalysisOutputs outputs;
    outputs.message = [](const Message& message) { complain(message.text); };
    outputs.progress = std::move(progress);
    return analyseFolder(folder, settings, std::move(outputs));
}

Exit analyseCommand(const CommandLine& line) {
    const auto settings = settingsOf(line);
    if (!settings) {
        complain("trabeon-batch: " + settings.refusal().sentence);
        return Exit::usage;
    }
    std::error_code error;
    const auto& folder = line.operands[0];
    if (!fs::is_directory(folder, error))
        return refused({"\"" + folder + "\" is not a folder."});
    return analysed(folder, *settings, [](double) {}) ? Exit::done : Exit::refused;
}

/// Makes the folder where there is none; a project that is refused leaves none behind.
Outcome<ProjectTitle> unpackInto(const std::string& file, const fs::path& folder) {
    std::error_code error;
    const bool made = fs::create_directories(folder, error);
    if (!fs::is_directory(folder, error))
        return Refusal{"The folder \"" + folder.string() + "\" cannot be made. Name another one."};
    auto title = unpackProject(file, folder);
    if (!title && made)
        fs::remove(folder, error);
    return title;
}

Exit unpackCommand(const CommandLine& line) {
    const auto title = unpackInto(line.operands[0], line.operands[1]);
    return title ? Exit::done : refused(title.refusal());
}

Exit packCommand(const CommandLine& line) {
    std::error_code error;
    const auto& folder = line.operands[0];
    if (!fs::is_directory(folder, error))
        return refused({"\"" + folder + "\" is not a folder."});
    const ProjectTitle untitled;
    const ProjectTitle title{line.option("--title").value_or(untitled.project),
                             line.option("--designer").value_or(untitled.designer),
                             line.option("--beam").value_or(untitled.beamName)};
    const auto failure = packProject(folder, title, line.operands[1]);
    return failure ? refused(*failure) : Exit::done;
}

void show(const ProjectTitle& title, const Analysis& analysis, const fs::path& folder) {
    std::printf("%s: %s, by %s\n\n", title.project.c_str(), title.beamName.c_str(),
                title.designer.c_str());
    if (analysis.beam.members() <= mostMembersShown) {
        const auto table = readWhole(folder / working_file::balanceTable);
        std::printf("Balance table (clockwise positive)\n%s\n",
                    balanceTableStrips(table, terminalWidth()).c_str());
        std::fputs(resultTables(analysis).c_str(), stdout);
    } else {
        std::printf("%zu members.\n%s", analysis.beam.members(), reactionCheck(analysis).c_str());
    }
    std::printf("Result files: %s\n", folder.string().c_str());
}

Exit runCommand(const CommandLine& line) {
    const auto settings = settingsOf(line);
    if (!settings) {
        complain("trabeon-batch: " + settings.refusal().sentence);
        return Exit::usage;
    }
    const auto& file = line.operands[0];
    const fs::path folder =
        line.option("--out").value_or(fs::path(file).replace_extension().string());
    const auto title = unpackInto(file, folder);
    if (!title)
        return refused(title.refusal());
    const auto members = readRows<MemberRow>(folder).size();
    const auto analysis = analysed(folder, *settings, progressLine(members));
    if (!analysis)
        return Exit::refused;
    show(*title, *analysis, folder);
    return Exit::done;
}

}  // namespace

void complain(std::string_view sentence) {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(sentence.size()), sentence.data());
}

Exit carryOut(const CommandLine& line) {
    if (line.command == "analyse")
        return analyseCommand(line);
    if (line.command == "unpack")
        return unpackCommand(line);
    if (line.command == "pack")
        return packCommand(line);
    if (line.command == "run")
        return runCommand(line);
    std::fputs(helpText().c_str(), stdout);
    return Exit::done;
}

}  // namespace trabeon
