#include "core/design/design.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>

#include "core/analysis/analysis.h"
#include "core/design/bars.h"
#include "core/design/deflection.h"
#include "core/design/flexure.h"
#include "core/design/links.h"
#include "core/design/notes.h"
#include "core/design/shear.h"
#include "core/store/file_set.h"
#include "core/store/folder_record.h"

namespace trabeon {
namespace {

bool areFinite(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(),
                       [](double value) { return std::isfinite(value); });
}

bool areAboveZero(std::initializer_list<double> values) {
    return std::all_of(values.begin(), values.end(), [](double value) { return value > 0; });
}

bool hasData(const SectionData& at) {
    return areAboveZero({at.b, at.effd, at.fcu, at.fy, at.fyv}) &&
           areFinite(
               {at.b, at.effd, at.fcu, at.fy, at.fyv, at.YM, at.L, at.dist, at.Moment, at.Shear});
}

bool isFinite(const SectionResult& result) {
    return areFinite({result.Asprov, result.Aspprov, result.AsvOsvreq, result.AsvOsvprov,
                      result.DefActual, result.DefAllow});
}

/// The steel required and its bars; nothing if an area is not a finite number.
std::optional<Reinforcement> designSteel(SectionData& section, const MiscProperties& misc) {
    auto steel = DesignMoment(section, misc);
    if (!areFinite({steel.Asreq, steel.Aspreq, MaxReinforcement(section.b, section.d)}))
        return std::nullopt;
    raiseToMinimum(section.OriginMoment, MinReinforcement(section.fy, section.b, section.d), steel);
    ProvideReinforcement(section.b, section.fy, steel, misc);
    return steel;
}

/// Chooses the links and returns their word of the note. Once the run's flag is set, no section
/// gets links any more.
std::string_view designLinks(CarriedValues& carried, double Asprov) {
    const auto& section = carried.section;
    const auto required = DesignShear(section, Asprov);
    if (required)
        carried.AsvOsvreq = *required;
    else
        carried.ShearFailed = true;
    if (carried.ShearFailed)
        return note::shearFailed;
    carried.links = ProvideShearLinks(section.fyv, section.d, carried.AsvOsvreq);
    return carried.links.ShearRein.empty() ? note::shearFailed : note::shearOK;
}

DesignRow rowWithoutData(std::size_t Member, double dist) {
    SectionResult result;
    result.Member = Member;
    result.x = std::isfinite(dist) ? dist : 0;
    result.DefNote = note::noData;
    return DesignResult(result);
}

std::uint64_t designFingerprint(const std::filesystem::path& folder, double Divisions,
                                const MiscProperties& misc) {
    const auto bits = [](double value) { return std::bit_cast<std::uint64_t>(value); };
    return mixedFingerprint(
        {fingerprint(readWhole(folder / working_file::stations)), inputFingerprint(folder),
         fingerprint(readWhole(folder / working_file::beamDimensions)), bits(Divisions),
         bits(misc.cover), bits(misc.links), bits(misc.hagg), misc.restrictDeflection ? 1U : 0U});
}

}  // namespace

DesignRow designSection(std::size_t Member, std::size_t Section, CarriedValues& carried,
                        const DesignData& data, const MiscProperties& misc) {
    auto& section = carried.section;
    section = data.GetData(Member, Section).value_or(section);
    std::optional<Reinforcement> steel;
    if (data.hasStation(Member, Section) && hasData(section))
        steel = designSteel(section, misc);
    if (!steel)
        return rowWithoutData(Member, section.dist);
    const auto shearWord = designLinks(carried, steel->Asprov);
    const auto [DefActual, DefAllow, DefNote] =
        DesignDeflection(section, spanKind(data.joints(), Member), *steel, misc.restrictDeflection,
                         std::string(shearWord));
    const SectionResult result{.Member = Member,
                               .x = section.dist,
                               .Asreq = steel->Asreq,
                               .Aspreq = steel->Aspreq,
                               .Asprov = steel->Asprov,
                               .Aspprov = steel->Aspprov,
                               .MaxRein = MaxReinforcement(section.b, section.d),
                               .MomentRein = steel->MomentRein,
                               .AsvOsvreq = carried.AsvOsvreq,
                               .AsvOsvprov = carried.links.AsvOsvprov,
                               .ShearRein = carried.links.ShearRein,
                               .DefActual = DefActual,
                               .DefAllow = DefAllow,
                               .DefNote = DefNote};
    return isFinite(result) ? DesignResult(result) : rowWithoutData(Member, section.dist);
}

BeamDesign designBeam(const DesignData& data, const MiscProperties& misc) {
    BeamDesign design;
    design.rows.reserve(data.NumofMem() * data.sectionsPerMember());
    CarriedValues carried;
    for (std::size_t Member = 1; Member <= data.NumofMem(); ++Member)
        for (std::size_t Section = 0; Section < data.sectionsPerMember(); ++Section)
            design.rows.push_back(designSection(Member, Section, carried, data, misc));
    design.ShearFailed = carried.ShearFailed;
    return design;
}

Objection checkDesignSettings(double Divisions, const MiscProperties& misc) {
    if (auto objection = checkDivisions(Divisions))
        return objection;
    if (!areFinite({misc.cover, misc.links, misc.hagg}))
        return Refusal{
            "Cover, link size and aggregate size must be numbers of mm; one of them is too large."};
    return std::nullopt;
}

Status writeDesign(const std::filesystem::path& folder, const BeamDesign& design, double Divisions,
                   const MiscProperties& misc) {
    auto files = FileSet::begin(folder);
    files.add(DesignRow::file).write(textOf(design.rows, Description::bare));
    auto record = readRecord(folder);
    record.design = designFingerprint(folder, Divisions, misc);
    files.add(working_file::record).write(textOf(record));
    return files.commit();
}

std::string_view remarkOnDesign(const std::filesystem::path& folder, double Divisions,
                                const MiscProperties& misc) {
    const auto state = resultState(folder / DesignRow::file, readRecord(folder).design,
                                   designFingerprint(folder, Divisions, misc));
    if (state == ResultState::absent)
        return "";
    const auto onStations = remarkOn(stationsState(folder, Divisions));
    return onStations.empty() ? remarkOn(state, designAgain) : onStations;
}

Outcome<BeamDesign> designFolder(const std::filesystem::path& folder, double Divisions,
                                 const MiscProperties& misc) {
    if (const auto objection = checkDesignSettings(Divisions, misc))
        return *objection;
    const auto data = readDesignData(folder, Divisions);
    if (!data)
        return data.refusal();
    auto design = designBeam(*data, misc);
    if (const auto status = writeDesign(folder, design, Divisions, misc); status.failed())
        return status.refusal();
    return design;
}

}  // namespace trabeon
