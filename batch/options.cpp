#include "batch/options.h"

#include <utility>

namespace trabeon {

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

}  // namespace trabeon
