#include "core/store/working_files.h"

#include <cstdio>
#include <memory>

#include "core/store/replacing_file.h"

namespace trabeon {

namespace {

using OpenedFile = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// Only a regular file: reading a pipe would wait for ever.
OpenedFile openToRead(const std::filesystem::path& file) {
    std::error_code missing;
    const bool regular = std::filesystem::is_regular_file(file, missing);
    return {regular ? std::fopen(file.string().c_str(), "rb") : nullptr, &std::fclose};
}

/// A device or a failing disk may open and then give nothing: that shows at the first character.
bool canBeRead(const std::filesystem::path& file) {
    const auto opened = openToRead(file);
    return opened && (std::fgetc(opened.get()) != EOF || std::ferror(opened.get()) == 0);
}

}  // namespace

std::string readWhole(const std::filesystem::path& file) {
    const auto opened = openToRead(file);
    std::string text;
    if (!opened)
        return text;
    std::setvbuf(opened.get(), nullptr, _IONBF, 0);
    std::error_code unknown;
    const auto size = std::filesystem::file_size(file, unknown);
    std::size_t expected = unknown ? 0 : static_cast<std::size_t>(size);
    for (;;) {  // a file may grow, or not know its size
        const auto filled = text.size();
        text.resize(filled + expected + 4096);
        const auto got = std::fread(text.data() + filled, 1, text.size() - filled, opened.get());
        const bool ended = filled + got < text.size();
        text.resize(filled + got);
        if (ended)
            return text;
        expected = text.size();
    }
}

Failure unreadable(const std::filesystem::path& file) {
    std::error_code missing;
    if (!std::filesystem::exists(std::filesystem::symlink_status(file, missing)) || canBeRead(file))
        return std::nullopt;
    return Refusal{"\"" + file.string() +
                   "\" cannot be read. Make it a file that you may read; nothing was changed."};
}

Failure unreadable(const std::filesystem::path& folder, std::span<const std::string_view> names) {
    for (const auto name : names)
        if (auto failure = unreadable(folder / name))
            return failure;
    return std::nullopt;
}

void DuplicateFile(const std::filesystem::path& Source, const std::filesystem::path& Target) {
    std::error_code missing;
    if (!std::filesystem::is_regular_file(Source, missing))
        return;
    static_cast<void>(replaceFile(Target, readWhole(Source)));
}

void MurderFile(const std::filesystem::path& file) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(file, ignored))
        std::filesystem::remove(file, ignored);
}

void CreateNFile(const std::filesystem::path& folder) {
    for (const auto name : projectFiles)
        if (replaceFile(folder / name, {}))  // rather none than the rows of another project
            MurderFile(folder / name);
}

}  // namespace trabeon
