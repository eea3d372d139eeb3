#include "core/design/design.h"

#include <algorithm>
#include <bit>
#include <cmath>

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

bool hasData(const CarriedValues& at) {
    return areAboveZero({at.b, at.effd, at.fcu, at.fy, at.fyv}) &&
           areFinite(
               {at.b, at.effd, at.fcu, at.fy, at.fyv, at.YM, at.L, at.dist, at.Moment, at.Shear});
}

bool hasResults(const CarriedValues& at) {
    return areFinite(
        {at.Asprov, at.Aspprov, at.AsvOsvreq, at.AsvOsvprov, at.DefActual, at.DefAllow});
}

/// The steel required; false if it comes out as no finite number.
bool designSteel(CarriedValues& at, const MiscProperties& misc) {
    DesignMoment(at.b, at.d, at.effd, at.fcu, at.fy, at.YM, at.fyv, at.L, at.dist, at.Moment,
                 at.Shear, at.Asreq, at.Aspreq, at.OriginMoment, at.OriginShear, misc);
    MinReinforcement(at.fy, at.b, at.d, at.MinTenRein, at.MinCompRein);
    MaxReinforcement(at.b, at.d, at.MaxRein);
    if (!areFinite({at.Asreq, at.Aspreq, at.MaxRein}))
        return false;
    raiseToMinimum(at.OriginMoment, at.MinTenRein, at.MinCompRein, at.Asreq, at.Aspreq);
    return true;
}

/// Once the run's flag is set no section is given links any more.
void designLinks(CarriedValues& at) {
    DesignShear(at.b, at.d, at.fcu, at.fyv, at.Shear, at.Asprov, at.AsvOsvreq, at.ShearFailed);
    const bool given = !at.ShearFailed &&
                       ProvideShearLinks(at.fyv, at.d, at.AsvOsvreq, at.AsvOsvprov, at.ShearRein);
    at.DefNote += given ? note::shearOK : note::shearFailed;
}

/// Its numbers are the member's and the section's place; the carried results stay as they are.
DesignRow rowWithoutData(std::size_t Member, CarriedValues& carried) {
    carried.DefNote.clear();
    CarriedValues none;
    double x = std::isfinite(carried.dist) ? carried.dist : 0;
    return DesignResult(Member, x, none.Asreq, none.Aspreq, none.Asprov, none.Aspprov, 0, 0,
                        none.MaxRein, "", none.AsvOsvreq, none.AsvOsvprov, "", none.DefActual,
                        none.DefAllow, std::string(note::noData), 0, 0);
}

std::uint64_t designFingerprint(const std::filesystem::path& folder, double Divisions,
                                const MiscProperties& misc) {
    const auto bits = [](double value) { return std::bit_cast<std::uint64_t>(value); };
    return mixedFingerprint({fingerprint(readWhole(folder / working_file::stations)),
                             fingerprint(readWhole(folder / working_file::beamDimensions)),
                             bits(Divisions), bits(misc.cover), bits(misc.links), bits(misc.hagg),
                             misc.restrictDeflection ? 1U : 0U});
}

}  // namespace

DesignRow designSection(std::size_t Member, std::size_t Section, CarriedValues& at,
                        const DesignData& data, const MiscProperties& misc) {
    data.GetData(Member, Section, at.b, at.d, at.effd, at.fcu, at.fy, at.YM, at.fyv, at.L, at.dist,
                 at.Moment, at.Shear, at.OriginMoment, at.OriginShear);
    if (!data.hasStation(Member, Section) || !hasData(at) || !designSteel(at, misc))
        return rowWithoutData(Member, at);
    ProvideReinforcement(at.b, at.fy, at.Asreq, at.Aspreq, at.Asprov, at.Aspprov, at.MomentRein,
                         at.OriginMoment, at.OriginShear, misc);
    designLinks(at);
    DesignDeflection(Member, at.L, at.Asreq, at.Asprov, at.b, at.d, at.fy, at.Moment, at.DefActual,
                     at.DefAllow, at.DefNote, at.Aspprov, data.joints(), misc.restrictDeflection);
    if (!hasResults(at))
        return rowWithoutData(Member, at);
    auto row = DesignResult(Member, at.dist, at.Asreq, at.Aspreq, at.Asprov, at.Aspprov,
                            at.MinTenRein, at.MinCompRein, at.MaxRein, at.MomentRein, at.AsvOsvreq,
                            at.AsvOsvprov, at.ShearRein, at.DefActual, at.DefAllow, at.DefNote,
                            at.OriginMoment, at.OriginShear);
    at.DefNote.clear();
    return row;
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

Failure unfitForDesign(double Divisions, const MiscProperties& misc) {
    if (auto failure = unfitDivisions(Divisions))
        return failure;
    if (!areFinite({misc.cover, misc.links, misc.hagg}))
        return Refusal{
            "Cover, link size and aggregate size must be numbers of mm; one of them is too large."};
    return std::nullopt;
}

Failure writeDesign(const std::filesystem::path& folder, const BeamDesign& design, double Divisions,
                    const MiscProperties& misc) {
    FileSet files(folder);
    files.add(DesignRow::file).write(textOf(design.rows, Description::bare));
    auto record = readRecord(folder);
    record.design = designFingerprint(folder, Divisions, misc);
    files.add(working_file::record).write(textOf(record));
    return files.commit();
}

std::string_view remarkOnDesign(const std::filesystem::path& folder, double Divisions,
                                const MiscProperties& misc, Unrecorded unrecorded) {
    const auto state = resultState(folder / DesignRow::file, readRecord(folder).design,
                                   designFingerprint(folder, Divisions, misc));
    if (state == ResultState::absent)
        return "";
    const auto onStations = remarkOn(stationsState(folder, Divisions), unrecorded);
    return onStations.empty() ? remarkOn(state, unrecorded, designAgain) : onStations;
}

Outcome<BeamDesign> designFolder(const std::filesystem::path& folder, double Divisions,
                                 const MiscProperties& misc) {
    if (auto failure = unfitForDesign(Divisions, misc))
        return *failure;
    const auto data = readDesignData(folder, Divisions);
    if (!data)
        return data.refusal();
    auto design = designBeam(*data, misc);
    if (auto failure = writeDesign(folder, design, Divisions, misc))
        return *failure;
    return design;
}

}  // namespace trabeon
