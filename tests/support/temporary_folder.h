// A folder of its own for a test, gone when the test ends.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace trabeon::test {

class TemporaryFolder {
  public:
    TemporaryFolder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "trabeon-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr)
            std::abort();
        path_ = pattern;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    [[nodiscard]] std::filesystem::path operator/(const std::string& name) const {
        return path_ / name;
    }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(path_ / name, std::ios::binary) << text;
    }
    /// From here on a file, which is empty if there was none, cannot be replaced.
    void protect(const std::string& name, bool isProtected = true) const {
        std::ofstream(path_ / name, std::ios::app).flush();
        std::filesystem::permissions(path_ / name,
                                     std::filesystem::perms(isProtected ? 0444 : 0644));
    }
    [[nodiscard]] std::string read(const std::string& name) const { return readFile(path_ / name); }

    static std::string readFile(const std::filesystem::path& file) {
        std::ifstream in(file, std::ios::binary);
        if (!in)
            return "(there is no " + file.filename().string() + ")";
        return {std::istreambuf_iterator<char>(in), {}};
    }

    /// Every file's name and content, to see that nothing changed.
    [[nodiscard]] std::map<std::string, std::string> contents() const {
        std::map<std::string, std::string> files;
        for (const auto& entry : std::filesystem::directory_iterator(path_))
            if (entry.is_regular_file())
                files[entry.path().filename().string()] = readFile(entry.path());
        return files;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace trabeon::test
