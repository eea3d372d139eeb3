#include "batch/run_command.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>
#include <map>

#include "batch/beam_report.h"
#include "batch/design_report.h"
#include "batch/in_order.h"
#include "batch/messages.h"
#include "batch/options.h"
#include "batch/working_folder.h"
#include "core/design/shear.h"
#include "core/store/output_file.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

/// From this many members on an analysis shows its progress.
constexpr std::size_t manyMembers = 1000;
/// The balance table of more members than this stays in its file.
constexpr std::size_t maxMembersShown = 20;

std::size_t terminalWidth() {
    winsize size{};
    const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return known ? size.ws_col : 100;
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

/// One project, and the folder for its results.
struct Job {
    std::string file;
    fs::path folder;
    bool alone = true;  // the only project of the command
};

std::string analysisText(const ProjectTitle& title, const Analysis& analysis,
                         const fs::path& folder) {
    auto text = readable(title.project) + ": " + readable(title.beamName) + ", by " +
                readable(title.designer) + "\n\n";
    const auto file = folder / working_file::balanceTable;
    const auto members = analysis.beam.members();
    if (members <= maxMembersShown)
        text += "Balance table (clockwise positive)\n" +
                balanceTableStrips(readWhole(file), terminalWidth()) + '\n';
    else
        text += "The balance table of the " + std::to_string(members) + " members is in \"" +
                file.string() + "\".\n\n";
    return text + resultTables(analysis);
}

/// A project that has no dimensions is not designed. The table shows a section that failed in
/// shear, and so does the exit code.
void addDesign(Answer& answer, const fs::path& folder, const AnalysisSettings& settings) {
    if (readWhole(folder / working_file::beamDimensions).empty())
        return;
    const auto data = readDesignData(folder, settings.Divisions);
    if (!data)
        return answer.refuse(data.refusal());
    if (const auto warning = missingDimensionsWarning(*data); !warning.empty())
        answer.complaints.push_back(warning);
    const auto design = designBeam(*data, {});
    if (const auto status = writeDesign(folder, design, settings.Divisions, {}); status.failed())
        return answer.refuse(status.refusal());
    const bool few = data->NumofMem() <= maxMembersShown;
    answer.out += '\n' + (few ? designTable(design, data->NumofMem()) : designSummary(design));
    if (design.ShearFailed)
        answer.refuse({std::string(shearFailureSentence)});
}

Answer runProject(const Job& job, const AnalysisSettings& settings) {
    Answer answer;
    FolderLock lock;
    const auto project = unpackInto(job.file, job.folder, lock);
    if (!project) {
        answer.refuse(project.refusal());
        return answer;
    }
    const auto members = job.alone ? readRows<MemberRow>(job.folder).size() : 0;
    const auto complaints = [&](const std::string& text) { answer.complaints.push_back(text); };
    const auto analysis = analysed(job.folder, settings, complaints, progressLine(members));
    if (!analysis) {
        answer.end = Exit::refused;
        return answer;
    }
    if (!job.alone)
        answer.out = "Project file: " + job.file + '\n';
    answer.out += analysisText(project->title, *analysis, job.folder);
    addDesign(answer, job.folder, settings);
    answer.out += "Result files: " + job.folder.string() + '\n';
    return answer;
}

/// The results of one project go to --out itself, those of several to a folder in it for each.
std::vector<Job> jobsOf(const CommandLine& line) {
    const auto out = line.option("--out");
    const bool alone = line.operands.size() == 1;
    std::vector<Job> jobs;
    for (const auto& file : line.operands) {
        const auto own = resultFolder(file);
        const auto folder = !out ? own : alone ? fs::path(*out) : *out / own.filename();
        jobs.push_back({file, folder, alone});
    }
    return jobs;
}

/// Of each job the earlier one whose results go to the same folder, if there is one.
std::vector<const Job*> sharedFolders(const std::vector<Job>& jobs) {
    std::vector<const Job*> earlier;
    std::map<fs::path, const Job*> taken;
    for (const auto& job : jobs) {
        std::error_code error;
        auto folder = fs::weakly_canonical(fs::absolute(job.folder, error), error);
        const auto [found, isNew] = taken.emplace(error ? job.folder : folder, &job);
        earlier.push_back(isNew ? nullptr : found->second);
    }
    return earlier;
}

Refusal refusalOf(const Job& job, const Job& earlier) {
    return {"Its results would replace those of \"" + earlier.file + "\" in \"" +
            job.folder.string() + "\". Run it alone, with another --out."};
}

}  // namespace

Exit runCommand(const CommandLine& line) {
    const auto settings = settingsOf(line);
    if (!settings)
        return wrongUsage(settings.refusal());
    if (const auto objection = checkSettings(*settings))
        return refused(*objection);
    const auto jobs = jobsOf(line);
    const auto earlier = sharedFolders(jobs);
    auto end = Exit::done;
    std::size_t shown = 0;
    const auto run = [&](std::size_t i) {
        if (earlier[i] == nullptr)
            return runProject(jobs[i], *settings);
        Answer answer;
        answer.refuse(refusalOf(jobs[i], *earlier[i]));
        return answer;
    };
    const auto work = [&](std::size_t i) {
        return jobs[i].alone ? run(i) : answerOf([&] { return run(i); });
    };
    InOrder<Answer>::run(jobs.size(), work, [&](const Answer& answer) {
        const auto& job = jobs[shown];
        if (job.alone && !answer.complaints.empty() && isatty(STDERR_FILENO) != 0)
            std::fputs(clearedLine, stderr);
        showComplaints(answer, job.alone ? "" : job.file);
        std::fputs((shown > 0 && !answer.out.empty() ? "\n" + answer.out : answer.out).c_str(),
                   stdout);
        end = std::max(end, answer.end);
        ++shown;
    });
    return end;
}

}  // namespace trabeon
