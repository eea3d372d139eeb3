#include "core/store/output_file.h"

#include <algorithm>
#include <fstream>

#include "core/store/own_files.h"
#include "core/store/project_file.h"
#include "core/store/working_files.h"

namespace trabeon {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view documentStart{"PK\x03\x04"};
constexpr std::string_view projectStart{"WARNNING!"};
constexpr std::string_view byteOrderMark{"\xEF\xBB\xBF"};

/// Nothing there, or a file of 0 bytes.
bool isFree(const fs::path& file) {
    std::error_code missing;
    if (!fs::exists(fs::status(file, missing)))
        return true;
    return fs::is_regular_file(file, missing) && fs::file_size(file, missing) == 0;
}

bool begins(const fs::path& file, std::string_view start) {
    std::error_code missing;
    if (!fs::is_regular_file(file, missing))
        return false;
    std::string read(start.size(), '\0');
    std::ifstream(file, std::ios::binary)
        .read(read.data(), static_cast<std::streamsize>(read.size()));
    return read == start;
}

/// Other files are zip archives too: a document has this part.
bool isDocument(const fs::path& file) {
    return begins(file, documentStart) &&
           readWhole(file).find("word/document.xml") != std::string::npos;
}

Refusal taken(const fs::path& file, std::string_view kind) {
    return {"\"" + file.string() + "\" already exists and is not a " + std::string(kind) +
            ". Choose another file; nothing was changed."};
}

}  // namespace

Objection checkDocumentFile(const fs::path& file, const fs::path& project) {
    std::error_code missing;
    if (fs::equivalent(file, project, missing))
        return Refusal{
            "\"" + file.string() +
            "\" is the project itself. Choose another file for the document; nothing was "
            "changed."};
    if (isFree(file) || isDocument(file))
        return std::nullopt;
    return taken(file, "document (.docx)");
}

Objection checkProjectFile(const fs::path& file) {
    const bool isProject = isFree(file) || begins(file, projectStart) ||
                           begins(file, std::string(byteOrderMark) + std::string(projectStart)) ||
                           readProject(file);
    if (isProject)
        return std::nullopt;
    return taken(file, "project file");
}

Objection checkTableFile(const fs::path& file, std::span<const std::string> starts) {
    const auto folder = file.parent_path();
    if (isOwnFile(file, folder.empty() ? fs::path(".") : folder))
        return Refusal{"\"" + file.string() +
                       "\" has the name of a working file. Name another file for the table; "
                       "nothing was changed."};
    const auto isTable = [&](const std::string& start) { return begins(file, start); };
    if (isFree(file) || std::any_of(starts.begin(), starts.end(), isTable))
        return std::nullopt;
    return taken(file, "table of results");
}

fs::path resultFolder(const fs::path& project) {
    const auto name = project.filename();
    const auto stem = name.stem();
    const bool usable = stem != name && stem != "." && stem != "..";
    return project.parent_path() / (usable ? stem : fs::path(name) += " results");
}

}  // namespace trabeon
