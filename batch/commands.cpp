#include "batch/commands.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>

#include "batch/beam_report.h"
#include "batch/design_report.h"
#include "core/analysis/result_files.h"
#include "core/analysis/result_state.h"
#include "core/analysis/stray_loads.h"
#include "core/design/reinforcement_tables.h"
#include "core/design/shear.h"
#include "core/store/file_set.h"
#include "core/store/folder_lock.h"
#include "core/store/folder_record.h"
#include "core/store/output_file.h"
#include "core/store/own_files.h"
#include "core/store/project_file.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

/// From this many members on an analysis shows its progress.
constexpr std::size_t manyMembers = 1000;
/// The balance table of more members than this stays in its file.
constexpr std::size_t maxMembersShown = 20;

Exit refused(const Refusal& refusal) {
    complain(refusal.sentence);
    return Exit::refused;
}

std::size_t terminalWidth() {
    winsize size{};
    const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : 100;
}

Exit wrongUsage(const Refusal& refusal) {
    complain("trabeon-batch: " + refusal.sentence);
    return Exit::usage;
}

/// How long a command waits for another program that is at work in its folder.
constexpr std::chrono::seconds patience{3};

/// Locks a folder for this command, and finishes the files that a killed command left there.
Status enter(const fs::path& folder, FolderLock& lock) {
    std::error_code error;
    if (!fs::is_directory(folder, error))
        return Refusal{"\"" + folder.string() + "\" is not a folder."};
    if (auto status = lock.take(folder, patience); status.failed())
        return status;
    finishSet(folder);
    return {};
}

Outcome<AnalysisSettings> settingsOf(const CommandLine& line) {
    AnalysisSettings settings;
    if (const auto status = line.readNumber("--divisions", settings.Divisions); status.failed())
        return status.refusal();
    if (const auto status = line.readNumber("--places", settings.places); status.failed())
        return status.refusal();
    return settings;
}

Outcome<MiscProperties> propertiesOf(const CommandLine& line) {
    MiscProperties misc;
    const std::pair<const char*, double*> sizes[] = {
        {"--cover", &misc.cover}, {"--link", &misc.links}, {"--aggregate", &misc.hagg}};
    for (const auto& [name, value] : sizes) {
        if (const auto status = line.readNumber(name, *value); status.failed())
            return status.refusal();
        if (*value < 0)
            return Refusal{std::string(name) + " takes a size of 0 mm or more."};
    }
    misc.restrictDeflection = !line.option("--no-restrict");
    return misc;
}

constexpr auto clearedLine = "\r                \r";

/// Shows a percentage on standard error if that is a terminal and the beam is long.
std::function<void(double)> progressLine(std::size_t members) {
    if (members < manyMembers || isatty(STDERR_FILENO) == 0)
        return [](double) {};
    return [shown = -1](double percent) mutable {
        if (static_cast<int>(percent) == shown)
            return;
        shown = static_cast<int>(percent);
        std::fprintf(stderr, shown < 100 ? "\rAnalysing: %d %%" : clearedLine, shown);
    };
}

std::optional<Analysis> analysed(const fs::path& folder, const AnalysisSettings& settings,
                                 std::function<void(double)> progress) {
    AnalysisOutputs outputs;
    outputs.message = [](const Message& message) {
        if (isatty(STDERR_FILENO) != 0)
            std::fputs(clearedLine, stderr);
        complain(message.text);
    };
    outputs.progress = std::move(progress);
    std::vector<StrayLoad> stray;
    outputs.rowsRead = [&](const BeamRows& rows) { stray = strayLoads(rows); };
    auto analysis = analyseFolder(folder, settings, outputs);
    if (analysis)
        for (const auto& load : stray)
            complain(sentenceOf(load));
    return analysis;
}

Exit analyseCommand(const CommandLine& line) {
    const auto settings = settingsOf(line);
    if (!settings)
        return wrongUsage(settings.refusal());
    const auto& folder = line.operands[0];
    FolderLock lock;
    if (const auto status = enter(folder, lock); status.failed())
        return refused(status.refusal());
    return analysed(folder, *settings, [](double) {}) ? Exit::done : Exit::refused;
}

/// Results that are known to be of another beam, or of earlier rows or divisions.
Objection outdated(const fs::path& file, ResultState state) {
    if (state != ResultState::outdated)
        return std::nullopt;
    return Refusal{'"' + file.string() + "\": " + std::string(analyseAgain)};
}

/// The design reads any station file. A user who has not analysed the beam must know it.
Objection checkStations(const DesignData& data) {
    if (data.NumofMem() > 0 && data.stationsFit())
        return std::nullopt;
    return Refusal{"The stations do not match the beam: \"BM.txt\" must have " +
                   std::to_string(data.sectionsPerMember()) + " rows for each of " +
                   std::to_string(data.NumofMem()) +
                   " members. Analyse the beam first, with the same --divisions."};
}

void warn(const DesignData& data) {
    if (const auto warning = missingDimensionsWarning(data); !warning.empty())
        complain(warning);
}

Exit designCommand(const CommandLine& line) {
    double Divisions = AnalysisSettings{}.Divisions;
    if (const auto status = line.readNumber("--divisions", Divisions); status.failed())
        return wrongUsage(status.refusal());
    const auto misc = propertiesOf(line);
    if (!misc)
        return wrongUsage(misc.refusal());
    const fs::path folder = line.operands[0];
    if (const auto objection = checkDesignSettings(Divisions, *misc))
        return refused(*objection);
    FolderLock lock;
    if (const auto status = enter(folder, lock); status.failed())
        return refused(status.refusal());
    const auto data = readDesignData(folder, Divisions);
    if (!data)
        return refused(data.refusal());
    if (const auto objection = checkStations(*data))
        return refused(*objection);
    if (const auto input = readFiles(folder, inputFiles); !input)
        return refused(input.refusal());
    if (const auto objection =
            outdated(folder / working_file::stations, stationsState(folder, Divisions)))
        return refused(*objection);
    warn(*data);
    const auto design = designBeam(*data, *misc);
    if (const auto status = writeDesign(folder, design, Divisions, *misc); status.failed())
        return refused(status.refusal());
    return design.ShearFailed ? refused({std::string(shearFailureSentence)}) : Exit::done;
}

Exit tablesCommand(const CommandLine& line) {
    const auto& folder = line.operands[0];
    FolderLock lock;
    if (const auto status = enter(folder, lock); status.failed())
        return refused(status.refusal());
    if (const auto status = writeSteelAreas(folder); status.failed())
        return refused(status.refusal());
    const auto status = writeLinkResistances(folder);
    return status.failed() ? refused(status.refusal()) : Exit::done;
}

/// Reads and checks the project before it makes and takes the folder.
Outcome<Project> unpackInto(const std::string& file, const fs::path& folder, FolderLock& lock) {
    if (const auto objection = checkProjectName(file, folder))
        return *objection;
    auto project = readProject(file);
    if (!project)
        return project;
    std::error_code error;
    fs::create_directories(folder, error);
    if (!fs::is_directory(folder, error))
        return Refusal{"The folder \"" + folder.string() +
                       "\" cannot be created. Choose another one."};
    if (const auto status = enter(folder, lock); status.failed())
        return status.refusal();
    if (const auto objection = checkRowsAreSaved(folder))
        return *objection;
    if (const auto status = writeWorkingFiles(*project, folder); status.failed())
        return status.refusal();
    return project;
}

Exit unpackCommand(const CommandLine& line) {
    FolderLock lock;
    const auto project = unpackInto(line.operands[0], line.operands[1], lock);
    return project ? Exit::done : refused(project.refusal());
}

Exit packCommand(const CommandLine& line) {
    const fs::path folder = line.operands[0];
    FolderLock lock;
    if (const auto status = enter(folder, lock); status.failed())
        return refused(status.refusal());
    if (std::error_code unknown; !fs::exists(folder / working_file::joint, unknown))
        return refused({"\"" + folder.string() + "\" contains no beam: it has no Joint.txt."});
    if (const auto objection = checkProjectFile(line.operands[1]))
        return refused(*objection);
    const auto kept = titleIn(folder);
    const ProjectTitle title{line.option("--title").value_or(kept.project),
                             line.option("--designer").value_or(kept.designer),
                             line.option("--beam").value_or(kept.beamName)};
    const auto packed = packProject(folder, title, line.operands[1]);
    if (!packed)
        return refused(packed.refusal());
    const bool isOutdated = tableState(folder) == ResultState::outdated;
    recordRowsAsPacked(folder);
    if (!isOutdated)
        return Exit::done;
    return refused({'"' + line.operands[1] +
                    "\" was written. Its balance table: " + std::string(analyseAgain)});
}

void show(const ProjectTitle& title, const Analysis& analysis, const fs::path& folder) {
    std::printf("%s: %s, by %s\n\n", readable(title.project).c_str(),
                readable(title.beamName).c_str(), readable(title.designer).c_str());
    const auto file = folder / working_file::balanceTable;
    if (analysis.beam.members() <= maxMembersShown)
        std::printf("Balance table (clockwise positive)\n%s\n",
                    balanceTableStrips(readWhole(file), terminalWidth()).c_str());
    else
        std::printf("The balance table of the %zu members is in \"%s\".\n\n",
                    analysis.beam.members(), file.string().c_str());
    std::fputs(resultTables(analysis).c_str(), stdout);
}

/// A project that has no dimensions is not designed. The table shows a
/// section that failed in shear, and so does the exit code.
Exit showDesign(const fs::path& folder, const AnalysisSettings& settings) {
    if (readWhole(folder / working_file::beamDimensions).empty())
        return Exit::done;
    const auto data = readDesignData(folder, settings.Divisions);
    if (!data)
        return refused(data.refusal());
    warn(*data);
    const auto design = designBeam(*data, {});
    if (const auto status = writeDesign(folder, design, settings.Divisions, {}); status.failed())
        return refused(status.refusal());
    const bool few = data->NumofMem() <= maxMembersShown;
    const auto text = few ? designTable(design, data->NumofMem()) : designSummary(design);
    std::printf("\n%s", text.c_str());
    return design.ShearFailed ? refused({std::string(shearFailureSentence)}) : Exit::done;
}

Exit runCommand(const CommandLine& line) {
    const auto settings = settingsOf(line);
    if (!settings)
        return wrongUsage(settings.refusal());
    if (const auto objection = checkSettings(*settings))
        return refused(*objection);
    const auto& file = line.operands[0];
    const fs::path folder = line.option("--out").value_or(resultFolder(file).string());
    FolderLock lock;
    const auto project = unpackInto(file, folder, lock);
    if (!project)
        return refused(project.refusal());
    const auto members = readRows<MemberRow>(folder).size();
    const auto analysis = analysed(folder, *settings, progressLine(members));
    if (!analysis)
        return Exit::refused;
    show(project->title, *analysis, folder);
    const auto end = showDesign(folder, *settings);
    std::printf("Result files: %s\n", folder.string().c_str());
    return end;
}

}  // namespace

void complain(std::string_view sentence) {
    std::string line(sentence);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    std::fprintf(stderr, "%s\n", line.c_str());
}

const std::vector<CommandForm>& commands() {
    static const std::vector<CommandForm> forms{
        {"run",
         runCommand,
         "FILE.TB",
         {"--divisions N", "--places N", "--out DIR"},
         "Analyses a project. Shows the balance table, the moments, the maxima and the\n"
         "    reactions, and designs the sections if the project has dimensions. The result\n"
         "    files go to DIR. Without --out they go to a folder beside the project: \"beam\"\n"
         "    for \"beam.TB\", \"beam results\" for a project without an ending.",
         "trabeon-batch run examples/two-span-floor-beam.TB"},
        {"analyse",
         analyseCommand,
         "DIR",
         {"--divisions N", "--places N"},
         "Analyses the beam in a folder of working files. Writes the result files there.",
         "trabeon-batch analyse work --divisions 20"},
        {"design",
         designCommand,
         "DIR",
         {"--divisions N", "--cover MM", "--link MM", "--aggregate MM", "--no-restrict"},
         "Designs the sections of the analysed beam in a folder. Writes the design results\n"
         "    there. The divisions must be those of the analysis.",
         "trabeon-batch design work --aggregate 20"},
        {"tables",
         tablesCommand,
         "DIR",
         {},
         "Writes the tables of bar areas and link resistances into a folder.",
         "trabeon-batch tables work"},
        {"unpack",
         unpackCommand,
         "FILE.TB DIR",
         {},
         "Unpacks a project file into the working files of a folder.",
         "trabeon-batch unpack examples/two-span-floor-beam.TB work"},
        {"pack",
         packCommand,
         "DIR FILE.TB",
         {"--title T", "--designer D", "--beam B"},
         "Packs the working files of a folder into a project file. Replaces only a project.",
         "trabeon-batch pack work beam.TB --title \"Warehouse\" --designer \"A. Engineer\" --beam "
         "B1"},
    };
    return forms;
}

Exit execute(const CommandLine& line) {
    if (line.command != nullptr)
        return line.command->execute(line);
    std::fputs(helpText(commands()).c_str(), stdout);
    return Exit::done;
}

}  // namespace trabeon
