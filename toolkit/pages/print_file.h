// A print to a PDF file. It replaces the old file only if it is complete.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <optional>
#include <string>

class QPrinter;

namespace trabeon {

class PrintFile {
  public:
    /// If the printer prints to a file, makes it print into a new folder beside that file. Others
    /// can neither guess the name of this folder nor write into it. Does nothing for a real
    /// printer.
    explicit PrintFile(QPrinter& printer);
    /// Deletes a print that did not replace the file.
    ~PrintFile() = default;
    PrintFile(const PrintFile&) = delete;
    PrintFile& operator=(const PrintFile&) = delete;

    /// Replaces the old file, after the print has ended. False: the print is incomplete, or the old
    /// file is write-protected or not a regular file. Then the old file stays.
    [[nodiscard]] bool ReplaceOldFile() const;

    /// Empty for a real printer.
    [[nodiscard]] std::string Path() const { return target_.toStdString(); }

  private:
    [[nodiscard]] bool IsWhole() const;

    QString target_;                       // empty for a real printer
    std::optional<QTemporaryDir> folder_;  // contains the print
};

}  // namespace trabeon
