// Opens and analyses any bytes as a project. They are refused with a message, or the results are
// finite and a second analysis writes the same files.
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/analysis/result_files.h"
#include "core/response/beam_response.h"
#include "core/response/extremes.h"
#include "core/store/file_set.h"
#include "core/store/project_file.h"
#include "fuzz/require.h"
#include "fuzz/same_rows.h"

namespace {

namespace fs = std::filesystem;
namespace working_file = trabeon::working_file;
using trabeon::fuzz::require;
using trabeon::fuzz::sameRows;

/// One working folder for the whole run. Removed at the end.
class Folder {
  public:
    Folder() {
        auto pattern = (fs::temp_directory_path() / "trabeon-fuzz-XXXXXX").string();
        require(mkdtemp(pattern.data()) != nullptr, "there is room for temporary files");
        path_ = pattern;
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder() {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    [[nodiscard]] const fs::path& path() const { return path_; }

  private:
    fs::path path_;
};

void unpackInto(const trabeon::Project& project, const fs::path& folder) {
    auto files = trabeon::FileSet::begin(folder);
    files.add(working_file::joint).write(project.joints);
    files.add(working_file::member).write(project.members);
    files.add(working_file::point).write(project.points);
    files.add(working_file::udl).write(project.udls);
    require(files.commit().done(), "the working files can be written");
}

/// The settings depend only on the size of the input, so that an input always does the same.
trabeon::AnalysisSettings settingsFor(std::size_t size) {
    constexpr double divisions[] = {10, 1, 2, 7};
    return {divisions[size % 4], static_cast<double>(size % 13)};
}

void requireFinite(const trabeon::Analysis& analysis) {
    for (const double moment : analysis.Final)
        require(std::isfinite(moment), "end moments are finite");
    for (const auto& station : analysis.stations)
        require(std::isfinite(station.x) && std::isfinite(station.forces.moment) &&
                    std::isfinite(station.forces.shear),
                "stations are finite");
    for (std::size_t span = 1; span <= analysis.beam.members(); ++span) {
        const double x = analysis.maxima[span - 1].x;
        require(x >= 0 && x <= analysis.beam.Length[span], "a maximum lies on its span");
    }
}

bool liesOn(const trabeon::MemberResponse& member, const trabeon::Extreme& extreme) {
    return std::isfinite(extreme.value) && extreme.x >= 0 && extreme.x <= member.length();
}

/// The response is refused, or finite everywhere, and its extremes lie on their members.
void requireResponse(const trabeon::Analysis& analysis) {
    const auto response = trabeon::responseOf(analysis.loaded());
    if (!response)
        return require(!response.refusal().sentence.empty(), "a refusal says something");
    for (const auto& member : response->members) {
        using trabeon::Quantity;
        for (const auto quantity :
             {Quantity::moment, Quantity::shear, Quantity::rotation, Quantity::deflection}) {
            const auto [greatest, least] = trabeon::extremesOf(member, quantity);
            require(liesOn(member, greatest) && liesOn(member, least), "extremes lie on the span");
            require(greatest.value >= least.value, "the greatest is not below the least");
        }
        require(liesOn(member, trabeon::greatestDeflection(member)), "so does the deflection");
    }
    for (const auto& joint : response->joints)
        require(std::isfinite(joint.x) && std::isfinite(joint.reaction) &&
                    std::isfinite(joint.moment) && std::isfinite(joint.rotation),
                "joints are finite");
}

/// The analysis, or nothing if the input was refused. A refusal always has a message.
std::optional<trabeon::Analysis> analysed(const fs::path& folder, std::size_t size) {
    int messages = 0;
    double progress = 0;
    trabeon::AnalysisOutputs outputs;
    outputs.message = [&](const trabeon::Message& message) {
        require(!message.text.empty(), "a message says something");
        ++messages;
    };
    outputs.progress = [&](double percent) {
        require(percent >= progress && percent <= 100, "progress goes from 0 to 100");
        progress = percent;
    };
    auto analysis = trabeon::analyseFolder(folder, settingsFor(size), outputs);
    require(analysis.has_value() == (messages == 0), "there is a result or a message");
    return analysis;
}

/// The texts of the result files of an analysis.
struct Results {
    std::string points, udls, balanceTable, stations, maxima;
};

Results resultsIn(const fs::path& folder) {
    const auto text = [&](std::string_view name) { return trabeon::readWhole(folder / name); };
    return {text(working_file::point), text(working_file::udl), text(working_file::balanceTable),
            text(working_file::stations), text(working_file::maxima)};
}

void requireSame(const Results& a, const Results& b) {
    require(sameRows<trabeon::PointRow>(a.points, b.points), "point loads stay");
    require(sameRows<trabeon::UdlRow>(a.udls, b.udls), "distributed loads stay");
    require(a.balanceTable == b.balanceTable, "the table comes out again");
    require(a.stations == b.stations, "the stations come out again");
    require(a.maxima == b.maxima, "the maxima come out again");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto project = trabeon::unpackedProject({reinterpret_cast<const char*>(data), size});
    if (!project)
        return 0;
    static const Folder folder;
    unpackInto(*project, folder.path());
    const auto analysis = analysed(folder.path(), size);
    if (!analysis)
        return 0;
    requireFinite(*analysis);
    requireResponse(*analysis);
    const auto first = resultsIn(folder.path());
    require(analysed(folder.path(), size).has_value(), "a second analysis goes through");
    requireSame(first, resultsIn(folder.path()));
    return 0;
}
