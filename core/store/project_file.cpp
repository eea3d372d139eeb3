#include "core/store/project_file.h"

#include <algorithm>
#include <array>

#include "core/store/file_set.h"
#include "core/store/folder_record.h"
#include "core/store/own_files.h"
#include "core/store/rows.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// "1000000 characters; 32767 are the most", or nothing if a text fits its box.
std::string tooLong(std::string_view title) {
    if (title.size() <= longestTitle)  // it has no more characters than bytes
        return {};
    const auto length = unitsInBox(title);
    if (length <= longestTitle)
        return {};
    return std::to_string(length) + " characters; " + std::to_string(longestTitle) +
           " are the most";
}

/// Numbers and types are written without quotes, which loses the blanks at their ends. A quoted
/// field loses them here, so that a row reads the same after it was written, and so does a heading.
std::string_view withoutBlanks(std::string_view field) {
    const auto first = std::min(field.find_first_not_of(' '), field.size());
    field.remove_prefix(first);
    field.remove_suffix(field.size() - (field.find_last_not_of(' ') + 1));
    return field;
}

/// Reads one project file from its beginning to its end; stops at the first thing that is wrong.
class Unpacker {
  public:
    explicit Unpacker(std::string_view text)
        : reader_(text.substr(text.starts_with(byteOrderMark) ? byteOrderMark.size() : 0)) {}

    Outcome<Project> project() {
        Project project;
        field("the warning");
        field("the heading \"TITLE\"");
        project.title = {title("the project title"), title("the designer"), title("the beam name")};
        field("the heading \"JOINTS\"");
        project.joints = rows<JointRow>("M", "a joint row or the heading \"MEMBERS\"");
        project.members =
            rows<MemberRow>("L", "a member row or the heading \"LOADING - Point Load\"");
        project.points =
            rows<PointRow>("L", "a point load row or the heading \"LOADING - UDL Load\"");
        project.udls = lines("T", "a distributed load row or the heading \"TRABEON RESULTS\"",
                             UdlRow::fields.size());
        project.balanceTable =
            lines("BEAM", "a line of results or the heading \"BEAM DIMENSIONS\"", 0);
        project.beamDimensions = dimensions();
        if (wrong_)
            return *wrong_;
        return project;
    }

  private:
    std::string field(std::string_view expected) {
        if (!present(expected))
            return {};
        return std::string(reader_.next());
    }

    std::string title(const std::string& what) {
        const int line = reader_.line();
        auto text = field(what);
        if (const auto length = tooLong(text); !length.empty())
            refuse(line, what + " has " + length);
        return text;
    }

    /// Reads rows, one on each line, up to the heading that begins with these letters.
    template <FileRow Row>
    std::string rows(std::string_view heading, std::string_view expected) {
        std::string text;
        while (present(expected)) {
            const int line = reader_.line();
            Row row;
            for (std::size_t i = 0; i < Row::fields.size() && !wrong_; ++i) {
                const bool last = i + 1 == Row::fields.size();
                const auto field = reader_.next();
                row.*Row::fields[i] = last ? field : withoutBlanks(field);
                if (i == 0 && (row.*Row::fields[0]).starts_with(heading))
                    return text;
                if (reader_.lineEnded() != last)
                    refuseRow(line, i + (last ? 2 : 1), Row::fields.size(), expected);
            }
            appendRow(text, row, Description::bare);
        }
        return text;
    }

    /// Reads lines up to the heading that begins with these letters. Each must be a row of that
    /// many fields; with 0 any line is accepted. The number of a row loses its quotes when it is
    /// written, so letters in quotes are a heading too.
    std::string lines(std::string_view heading, std::string_view expected, std::size_t fields) {
        std::string text;
        while (present(expected)) {
            const int number = reader_.line();
            const auto line = reader_.nextLine();
            const auto letters = fields > 0 ? withoutBlanks(FieldReader(line).next()) : line;
            if (letters.starts_with(heading))
                break;
            if (fields > 0)
                checkRow(number, line, fields, expected);
            appendLine(text, line);
        }
        return text;
    }

    /// Reads the dimension rows to the end of the file. An empty line at the end is ignored.
    std::string dimensions() {
        std::string text;
        while (!wrong_ && !reader_.atEnd()) {
            const int number = reader_.line();
            const auto line = reader_.nextLine();
            if (line.empty() && reader_.atEnd())
                break;
            checkRow(number, line, BeamDimensionRow::fields.size(), "a row of beam dimensions");
            appendLine(text, line);
        }
        return text;
    }

    bool present(std::string_view expected) {
        if (!wrong_ && reader_.atEnd())
            refuse(reader_.line(),
                   "the file ends where " + std::string(expected) + " was expected");
        return !wrong_;
    }

    void checkRow(int number, std::string_view line, std::size_t wanted,
                  std::string_view expected) {
        FieldReader row(line);
        std::size_t found = 0;
        do {
            row.next();
            ++found;
        } while (!row.lineEnded() && found <= wanted);
        if (row.quoteOpen())
            refuse(number, std::string(expected) +
                               " was expected; this line has a double quote that is not closed");
        if (found != wanted)
            refuseRow(number, found, wanted, expected);
    }

    void refuseRow(int line, std::size_t found, std::size_t wanted, std::string_view expected) {
        const auto much =
            found < wanted ? std::to_string(found) : "more than " + std::to_string(wanted);
        refuse(line, std::string(expected) + " was expected; a row has " + std::to_string(wanted) +
                         " fields, this line has " + much);
    }

    void refuse(int line, const std::string& what) {
        if (!wrong_)
            wrong_ = Refusal{"line " + std::to_string(line) + ": " + what};
    }

    FieldReader reader_;
    Objection wrong_;
};

/// The working files of a project, and the members that have their texts.
constexpr std::array<std::pair<std::string_view, std::string Project::*>, 6> packedFiles{{
    {working_file::joint, &Project::joints},
    {working_file::member, &Project::members},
    {working_file::point, &Project::points},
    {working_file::udl, &Project::udls},
    {working_file::balanceTable, &Project::balanceTable},
    {working_file::beamDimensions, &Project::beamDimensions},
}};

Objection checkTitle(std::string_view text) {
    const auto quoted = "The title text \"" + excerpt(text) + "\" ";
    if (text.find_first_of("\"\r\n") != text.npos)
        return Refusal{quoted +
                       "contains a double quote or a line end. Remove it, then save again."};
    if (const auto length = tooLong(text); !length.empty())
        return Refusal{quoted + "has " + length + ". Shorten it, then save again."};
    return std::nullopt;
}

std::string titleLines(const ProjectTitle& title) {
    std::string lines;
    for (const auto& text : {title.project, title.designer, title.beamName})
        appendLine(lines, '"' + text + '"');
    return lines;
}

Outcome<std::string> projectText(const std::filesystem::path& file) {
    std::error_code missing;
    if (!std::filesystem::exists(file, missing))
        return Refusal{"\"" + file.string() + "\" does not exist. Choose a project file (*.TB)."};
    auto text = readFile(file);
    if (text && isUtf16(*text))
        return Refusal{
            "\"" + file.string() +
            "\" is a text in UTF-16. Open it in a text editor and save it as UTF-8, then "
            "try again; nothing was changed."};
    return text;
}

Outcome<Project> checkedProject(std::string_view text, const std::filesystem::path& file) {
    auto project = unpackedProject(text);
    if (!project)
        return Refusal{"\"" + file.string() + "\" is not a complete project file: " +
                       project.refusal().sentence + ". Correct that line; nothing was changed."};
    return project;
}

}  // namespace

Outcome<Project> unpackedProject(std::string_view text) {
    return Unpacker(text).project();
}

Outcome<Project> readProject(const std::filesystem::path& file) {
    const auto text = projectText(file);
    if (!text)
        return text.refusal();
    return checkedProject(*text, file);
}

Status writeWorkingFiles(const Project& project, const std::filesystem::path& folder) {
    auto files = FileSet::begin(folder);
    for (const auto& [name, text] : packedFiles)
        files.add(name).write(project.*text);
    files.add(working_file::title).write(titleLines(project.title));
    auto record = readRecord(folder);
    record.unpackedInput =
        fingerprint({project.joints, project.members, project.points, project.udls});
    record.unpackedDimensions = fingerprint(project.beamDimensions);
    record.table.reset();
    if (!project.balanceTable.empty())  // the project's table counts as current
        record.table =
            inputFingerprint({project.joints, project.members, project.points, project.udls});
    if (!record.stations)  // these belong to another beam, recorded or not
        record.stations = 0;
    if (!record.design)
        record.design = 0;
    files.add(working_file::record).write(textOf(record));
    return files.commit();
}

Outcome<OpenedProject> unpackProject(const std::filesystem::path& file,
                                     const std::filesystem::path& folder) {
    if (const auto objection = checkProjectName(file, folder))
        return *objection;
    const auto text = projectText(file);
    if (!text)
        return text.refusal();
    const auto project = checkedProject(*text, file);
    if (!project)
        return project.refusal();
    if (const auto status = writeWorkingFiles(*project, folder); status.failed())
        return status.refusal();
    return OpenedProject{project->title, fingerprint(*text)};
}

std::string captionName(std::string_view fullPath) {
    const auto first = fullPath.find_first_of("\\/");
    return std::string(first == fullPath.npos ? fullPath : fullPath.substr(first + 1));
}

Outcome<Project> projectIn(const std::filesystem::path& folder) {
    Project project;
    for (const auto& [name, text] : packedFiles) {
        auto found = readFile(folder / name);
        if (!found)
            return found.refusal();
        project.*text = std::move(*found);
    }
    project.title = titleIn(folder);
    return project;
}

ProjectTitle titleIn(const std::filesystem::path& folder) {
    const auto lines = readWhole(folder / working_file::title);
    ProjectTitle title;
    if (lines.empty())
        return title;
    FieldReader reader(lines);
    for (auto* text : {&title.project, &title.designer, &title.beamName})
        *text = reader.next();
    return title;
}

void keepTitle(const std::filesystem::path& folder, const ProjectTitle& title) {
    static_cast<void>(replaceFile(folder / working_file::title, titleLines(title)));
}

Outcome<std::uint64_t> packProject(const std::filesystem::path& folder, const ProjectTitle& title,
                                   const std::filesystem::path& file) {
    if (const auto objection = checkProjectName(file, folder))
        return *objection;
    for (const auto& text : {title.project, title.designer, title.beamName})
        if (const auto objection = checkTitle(text))
            return *objection;
    auto project = projectIn(folder);
    if (!project)
        return project.refusal();
    project->title = title;
    const auto text = packedText(*project);
    if (const auto again = unpackedProject(text); !again)
        return Refusal{"The project was not saved, because the file could not be opened again: " +
                       again.refusal().sentence + ". Correct this row, then save again."};
    if (const auto status = replaceFile(file, text, Survives::powerCut); status.failed())
        return status.refusal();
    return fingerprint(text);
}

OnDisk comparedWithDisk(const std::filesystem::path& file, std::uint64_t expected) {
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        return OnDisk::gone;
    const auto text = readFile(file);
    return text && fingerprint(*text) == expected ? OnDisk::same : OnDisk::changed;
}

}  // namespace trabeon
