#include "batch/folder_commands.h"

#include "batch/design_report.h"
#include "batch/messages.h"
#include "batch/options.h"
#include "batch/working_folder.h"
#include "core/analysis/result_state.h"
#include "core/design/reinforcement_tables.h"
#include "core/design/shear.h"
#include "core/store/folder_record.h"
#include "core/store/output_file.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

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

}  // namespace

Exit analyseCommand(const CommandLine& line) {
    const auto settings = settingsOf(line);
    if (!settings)
        return wrongUsage(settings.refusal());
    const auto& folder = line.operands[0];
    FolderLock lock;
    if (const auto status = enter(folder, lock); status.failed())
        return refused(status.refusal());
    const auto analysis = analysed(folder, *settings, complain, [](double) {});
    return analysis ? Exit::done : Exit::refused;
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
    if (const auto warning = missingDimensionsWarning(*data); !warning.empty())
        complain(warning);
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

}  // namespace trabeon
