// The text of a project file from the texts of its working files.
#include <array>

#include "core/store/project_file.h"
#include "core/store/rows.h"

namespace trabeon {
namespace {

constexpr std::string_view warning =
    "WARNNING! DO NOT CHANGE CAPITALISED TEXT. "
    "JUST CHANGE NUMBERS AS TEXT SERVES AS INDICATORS FOR THIS DATA FILE";
constexpr std::string_view titleHeading = "TITLE";
constexpr std::string_view jointsHeading = "JOINTS - Joint No_ Joint Type And Description";
constexpr std::string_view membersHeading = "MEMBERS - Member No_ E_ I_ L And Description";
constexpr std::string_view pointsHeading =
    "LOADING - Point Load - Member No_ Distance From Left Support_ Intensity and Description";
constexpr std::string_view udlsHeading =
    "LOADING - UDL Load - Member No_ Distance From Left Support_ Width of Load_ Intensity w1_ "
    "Intensity w2 and Description";
constexpr std::string_view resultsHeading = "TRABEON RESULTS";
constexpr std::string_view dimensionsHeading = "BEAM DIMENSIONS";

/// Every line of a file, each with the line end that all files have.
std::string wholeLines(std::string_view file) {
    std::string lines;
    FieldReader reader(file);
    while (!reader.atEnd())
        appendLine(lines, reader.nextLine());
    return lines;
}

template <FileRow Row>
std::string packedRows(std::string_view file) {
    return textOf(rowsOf<Row>(file), Description::quoted);
}

/// The same line by line. A line that is not a complete row stays unchanged.
template <FileRow Row>
std::string packedLines(std::string_view file) {
    std::string text;
    FieldReader reader(file);
    while (!reader.atEnd()) {
        const auto line = reader.nextLine();
        FieldReader fields(line);
        std::size_t found = 1;
        for (fields.next(); !fields.lineEnded(); ++found)
            fields.next();
        if (found == Row::fields.size() && !fields.quoteOpen())
            text += packedRows<Row>(line);
        else
            appendLine(text, line);
    }
    return text;
}

/// The input files' lines under their headings, and the whole lines of the other two files.
std::string packed(const Project& project, const std::array<std::string, 4>& inputs) {
    constexpr std::array headings{jointsHeading, membersHeading, pointsHeading, udlsHeading};
    std::string text;
    appendLine(text, warning);
    appendLine(text, titleHeading);
    for (const auto& title :
         {project.title.project, project.title.designer, project.title.beamName})
        appendLine(text, '"' + title + '"');
    for (std::size_t i = 0; i < inputs.size(); ++i) {
        appendLine(text, headings[i]);
        text += inputs[i];
    }
    appendLine(text, resultsHeading);
    text += wholeLines(project.balanceTable);
    appendLine(text, dimensionsHeading);
    text += wholeLines(project.beamDimensions);
    return text;
}

}  // namespace

std::string packedText(const Project& project) {
    return packed(project,
                  {packedRows<JointRow>(project.joints), packedRows<MemberRow>(project.members),
                   packedRows<PointRow>(project.points), packedRows<UdlRow>(project.udls)});
}

std::string damagedRowsText(const Project& project) {
    return packed(project,
                  {packedLines<JointRow>(project.joints), packedLines<MemberRow>(project.members),
                   packedLines<PointRow>(project.points), packedLines<UdlRow>(project.udls)});
}

}  // namespace trabeon
