#include "batch/export_tables.h"

#include "batch/design_report.h"
#include "core/analysis/result_files.h"
#include "core/analysis/stray_loads.h"
#include "core/design/design.h"
#include "core/design/shear.h"
#include "core/response/beam_response.h"
#include "core/response/extremes.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

using Warnings = std::vector<std::string>;

BeamRows beamRowsOf(const Project& project) {
    return {rowsOf<JointRow>(project.joints), rowsOf<MemberRow>(project.members),
            rowsOf<PointRow>(project.points), rowsOf<UdlRow>(project.udls)};
}

/// Keeps the last of the messages that an analysis shows. There is one if it was refused.
class Messages {
  public:
    AnalysisOutputs outputs() {
        return {
            [this](const Message& message) { said_ += (said_.empty() ? "" : " ") + message.text; }};
    }
    [[nodiscard]] Refusal refusal() const { return {said_}; }

  private:
    std::string said_;
};

constexpr auto noTable = [](const TableRow&) {};

/// A beam that has a response.
Outcome<RelaxedBeam> beamWithResponse(const Project& project) {
    auto rows = beamRowsOf(project);
    const auto objection = objectionTo(strayLoads(rows));
    Messages messages;
    auto beam = relaxBeam(std::move(rows), noTable, messages.outputs());
    if (!beam)
        return messages.refusal();
    if (objection)
        return *objection;
    if (const auto beyond = checkResponse(beam->loaded()))
        return *beyond;
    return std::move(*beam);
}

/// Relaxes twice: a relaxation that does not converge must not write rows.
Status addRelaxation(TableRows& rows, const Project& project, const ExportSettings&,
                     Warnings& warnings) {
    auto beamRows = beamRowsOf(project);
    for (const auto& load : strayLoads(beamRows))
        warnings.push_back(sentenceOf(load));
    Messages messages;
    if (!relaxBeam(std::move(beamRows), noTable, messages.outputs()))
        return messages.refusal();
    std::size_t number = 0;
    const auto addRow = [&](const TableRow& row) {
        if (row.kind == TableRow::Cells::joints)
            return;
        ++number;
        for (std::size_t k = 0; k < row.cells.size(); ++k)
            rows.add({number, row.label, k / 2 + 1, std::string_view(k % 2 == 0 ? "left" : "right"),
                      row.cells[k]});
    };
    static_cast<void>(relaxBeam(beamRowsOf(project), addRow, messages.outputs()));
    return {};
}

Status addMembers(TableRows& rows, const Project& project, const ExportSettings&, Warnings&) {
    const auto beam = beamWithResponse(project);
    if (!beam)
        return beam.refusal();
    for (std::size_t i = 1; i <= beam->beam.members(); ++i) {
        const MemberResponse member(beam->loaded(), i);
        const auto left = member.at(0, Side::after);
        const auto right = member.at(member.length(), Side::before);
        const auto moment = extremesOf(member, Quantity::moment);
        const auto deflection = greatestDeflection(member);
        rows.add({i, member.length(), left.moment, right.moment, left.shear, right.shear,
                  moment.greatest.value, moment.greatest.x, moment.least.value, moment.least.x,
                  deflection.value, deflection.x});
    }
    return {};
}

Status addReactions(TableRows& rows, const Project& project, const ExportSettings&, Warnings&) {
    const auto beam = beamWithResponse(project);
    if (!beam)
        return beam.refusal();
    const auto types = rowsOf<JointRow>(project.joints);
    std::size_t number = 0;
    for (const auto& joint : jointResponses(beam->loaded())) {
        const std::string_view type = types[number].type;
        rows.add({++number, type, joint.x, joint.reaction, joint.moment, joint.rotation});
    }
    return {};
}

Status addStations(TableRows& rows, const Project& project, const ExportSettings& settings,
                   Warnings&) {
    const auto beam = beamWithResponse(project);
    if (!beam)
        return beam.refusal();
    const auto Divisions = static_cast<std::size_t>(settings.analysis.Divisions);
    for (std::size_t i = 1; i <= beam->beam.members(); ++i) {
        const MemberResponse member(beam->loaded(), i);
        for (std::size_t k = 0; k <= Divisions; ++k) {
            const double x = stationAt(k, Divisions, member.length());
            const auto at = member.at(x, Side::before);
            rows.add({i, x, at.moment, at.shear, at.rotation, at.deflection});
        }
    }
    return {};
}

/// A field of a design row, and its name in the table.
struct DesignField {
    std::string_view name;
    std::string DesignRow::*field;
    bool isText = false;
};

constexpr std::array designFields{DesignField{"x", &DesignRow::x},
                                  DesignField{"Asreq", &DesignRow::Asreq},
                                  DesignField{"Aspreq", &DesignRow::Aspreq},
                                  DesignField{"Asprov", &DesignRow::Asprov},
                                  DesignField{"Aspprov", &DesignRow::Aspprov},
                                  DesignField{"MaxRein", &DesignRow::MaxRein},
                                  DesignField{"MomentRein", &DesignRow::MomentRein, true},
                                  DesignField{"AsvOsvreq", &DesignRow::AsvOsvreq},
                                  DesignField{"AsvOsvprov", &DesignRow::AsvOsvprov},
                                  DesignField{"ShearRein", &DesignRow::ShearRein, true},
                                  DesignField{"DefActual", &DesignRow::DefActual},
                                  DesignField{"DefAllow", &DesignRow::DefAllow},
                                  DesignField{"DefNote", &DesignRow::DefNote, true}};

std::vector<std::string_view> designColumns() {
    std::vector<std::string_view> columns{"member", "section"};
    for (const auto& field : designFields)
        columns.push_back(field.name);
    return columns;
}

std::string_view withoutOuterBlanks(std::string_view text) {
    const auto first = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

void addDesignRow(TableRows& rows, const DesignRow& row, std::size_t member, std::size_t section) {
    rows.begin();
    rows.addCell(member);
    rows.addCell(section);
    for (const auto& [name, field, isText] : designFields) {
        const auto& text = row.*field;
        rows.addCell(isText ? TableCell(withoutOuterBlanks(text)) : TableCell(leadingNumber(text)));
    }
    rows.end();
}

Status addDesign(TableRows& rows, const Project& project, const ExportSettings& settings,
                 Warnings& warnings) {
    auto beamRows = beamRowsOf(project);
    auto joints = beamRows.joints;
    const auto objection = objectionTo(strayLoads(beamRows));
    Messages messages;
    const auto analysis =
        analyse(std::move(beamRows), settings.analysis, noTable, messages.outputs());
    if (!analysis)
        return messages.refusal();
    if (objection)
        return *objection;
    const auto data =
        DesignData::read(std::move(joints), analysis->beam.members(),
                         rowsOf<BeamDimensionRow>(project.beamDimensions), stationsText(*analysis),
                         static_cast<std::size_t>(settings.analysis.Divisions));
    const auto design = designBeam(data, settings.misc);
    const auto sections = data.sectionsPerMember();
    for (std::size_t k = 0; k < design.rows.size(); ++k)
        addDesignRow(rows, design.rows[k], k / sections + 1, k % sections + 1);
    if (auto warning = missingDimensionsWarning(data); !warning.empty())
        warnings.push_back(std::move(warning));
    if (design.ShearFailed)
        warnings.emplace_back(shearFailureSentence);
    return {};
}

}  // namespace

const std::vector<ExportTable>& exportTables() {
    static const std::vector<ExportTable> tables{
        {"relaxation", {"row", "label", "member", "end", "value"}, addRelaxation},
        {"members",
         {"member", "length", "M_left", "M_right", "V_left", "V_right", "M_max", "x_M_max", "M_min",
          "x_M_min", "deflection_max", "x_deflection_max"},
         addMembers},
        {"reactions", {"joint", "type", "x", "reaction", "moment", "rotation"}, addReactions},
        {"stations", {"member", "x", "M", "V", "rotation", "deflection"}, addStations},
        {"design", designColumns(), addDesign}};
    return tables;
}

Answer exportTable(const ExportTable& table, const ExportedFile& file,
                   const ExportSettings& settings, const RowsTaker& taker) {
    Answer answer;
    const auto project = readProject(file.path);
    if (!project) {
        answer.refuse(project.refusal());
        return answer;
    }
    bool begun = false;
    TableRows rows(settings.format, file.name, [&](std::string_view text) {
        if (!begun)
            taker.begin(project->title);
        begun = true;
        taker.rows(text);
    });
    const auto status = table.addRows(rows, *project, settings, answer.complaints);
    if (status.failed())
        answer.refuse(status.refusal());
    else
        rows.finish();
    return answer;
}

}  // namespace trabeon
