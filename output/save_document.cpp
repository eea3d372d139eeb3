#include "output/save_document.h"

#include "core/store/replacing_file.h"
#include "forms/shared/messages.h"
#include "output/docx_writer.h"
#include "toolkit/outside/outside.h"
#include "toolkit/windows/wait_cursor.h"

namespace trabeon {

namespace {

/// Returns false if the file could not be written, after a message.
bool saved(const Document& document, const std::string& file) {
    const WaitCursor wait;
    const auto status = writeDocument(document, file);
    if (status.failed())
        warn(status.refusal().sentence);
    return status.done();
}

}  // namespace

Status writeDocument(const Document& document, const std::filesystem::path& file) {
    const auto bytes = docxBytes(document);
    if (!bytes)
        return bytes.refusal();
    return replaceFile(file, *bytes, Survives::powerCut);
}

void saveAndOpen(const Document& document) {
    const FileQuestion question{.saves = true,
                                .asksBeforeOverwriting = true,
                                .folderMustExist = true,
                                .title = "Save the Document",
                                .filter = "Word Document (*.docx) |*.docx",
                                .suffix = "docx"};
    std::string file;
    do {
        file = Outside::Current().AskFile(question);
        if (file.empty())
            return;
    } while (!saved(document, file));
    if (!Outside::Current().OpenDocument(file))
        warn("The document was saved as \"" + file +
             "\". This desktop has no program for it; open it with a word processor.");
}

}  // namespace trabeon
