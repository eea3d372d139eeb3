#include "output/project_output.h"

#include "core/store/replacing_file.h"
#include "core/store/rows.h"
#include "core/text/number_text.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

constexpr FileTable joints{"Joints", "Joint,Type,Name", 3, "Joint.txt"};
constexpr FileTable members{"Members", "Member,E,I,L,Name", 5, "Member.txt"};
constexpr FileTable points{"Point Load", "Member,a,P,Name", 4, "Point.txt"};
constexpr FileTable udls{"Uniformly Distributed Load", "Member,a,b,w1,w2,Name", 6, "Udl.txt"};
constexpr FileTable dimensions{"Beam Dimensions and Properties",
                               "Member No,x,b,d,dp,fcu,fy,E,fyv,L", 10, "BeamDim.txt"};
constexpr FileTable design{"Beam Design",
                           "Member No,x,As req,As' req,As prov,As'prov,Max Reinf,Reinf,E,"
                           "Asv/sv req,Asv/sv prov,Reinf,",
                           14, "DResult.txt"};

void writeTitle(const std::string& title, const std::string& remark, OutputWriter& writer) {
    writer.title(title);
    if (!remark.empty())
        writer.title(remark);
}

void writeTable(const FileTable& file, OutputWriter& writer, const std::string& remark = {}) {
    writeTitle(file.title, remark, writer);
    writer.table(file);
}

Status writeBalanceTable(const OutputSource& source, OutputWriter& writer) {
    const int columns = balanceTableColumns(readRows<JointRow>(source.folder).size());
    const auto table = readWhole(source.folder / working_file::balanceTable);
    if (auto status =
            replaceFile(source.folder / balanceTableScratch, balanceTableFields(table, columns));
        status.failed())
        return status;
    writeTitle("Trabeon", source.remarks.table, writer);
    writer.balanceTable(columns);
    return {};
}

void writeDiagrams(ChartForms& charts, OutputWriter& writer) {
    const int count = charts.ShowSingleSpan();
    writer.title("Bending Moments & Shear Force Diagrams By Members");
    writer.beginDiagrams();
    for (int member = 0; member < count; ++member) {
        writer.memberTitle("Member " + generatedText(member + 1));
        charts.CopyMoment(member);
        writer.pasteMoment();
        charts.CopyShear(member);
        writer.pasteShear();
    }
}

void writeContinuous(ChartForms& charts, OutputWriter& writer) {
    writer.title("Continuous Bending Moment & Shear Force Diagrams");
    charts.PlotContinuous();
    charts.CopyContinuousMoment();
    writer.pasteContinuous();
    charts.CopyContinuousShear();
    writer.pasteContinuous();
    charts.RestoreWindows();
}

void writeInput(const OutputKinds& kinds, OutputWriter& writer) {
    if (kinds.joints)
        writeTable(joints, writer);
    if (kinds.members)
        writeTable(members, writer);
    if (kinds.loads) {
        writer.title("LOADING");
        writeTable(points, writer);
        writeTable(udls, writer);
    }
}

}  // namespace

Outcome<Extent> writeProject(const OutputSource& source, const OutputKinds& kinds,
                             OutputWriter& writer) {
    writer.begin();
    writer.title("TRABEON (" + readable(source.title.project) + ") by " +
                 readable(source.title.designer));
    writer.title(source.title.beamName);
    writeInput(kinds, writer);
    if (kinds.table)
        if (const auto status = writeBalanceTable(source, writer); status.failed())
            return status.refusal();
    if (kinds.values) {
        writeTitle("Bending Moment & Shear Force Values", source.remarks.stations, writer);
        if (!writer.values())
            return Extent::part;
    }
    if (kinds.dimensions)
        writeTable(dimensions, writer);
    if (kinds.design)
        writeTable(design, writer, source.remarks.design);
    if (kinds.diagrams)
        writeDiagrams(source.charts, writer);
    if (kinds.continuous)
        writeContinuous(source.charts, writer);
    return Extent::whole;
}

int balanceTableColumns(std::size_t joints) {
    return 2 * static_cast<int>(joints) - 1;
}

std::string balanceTableFields(std::string_view table, int columns) {
    constexpr std::size_t label = 5, cell = 9, step = 14, firstCell = 10;
    std::string fields;
    for (FieldReader reader(table); !reader.atEnd();) {
        const auto line = reader.nextLine();
        fields += line.substr(0, label);
        for (int i = 0; i < columns - 1; ++i) {
            const auto from = firstCell + static_cast<std::size_t>(i) * step;
            fields += ',';
            fields += line.substr(std::min(from, line.size()), cell);
        }
        fields += "\r\n";
    }
    return fields;
}

}  // namespace trabeon
