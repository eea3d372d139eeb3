// The file that stands in for a printer: it takes the old file's place only when it is whole.
#pragma once

#include <QString>
#include <QTemporaryDir>
#include <optional>
#include <string>

class QPrinter;

namespace trabeon {

class PrintFile {
  public:
    // Where the printer prints to a file, it prints into a private folder beside that file,
    // whose name nobody can guess and where nobody else can write.
    explicit PrintFile(QPrinter& printer);
    // What did not take its place goes.
    ~PrintFile() = default;
    PrintFile(const PrintFile&) = delete;
    PrintFile& operator=(const PrintFile&) = delete;

    // When the print has ended. False: the print is not whole, or the old file is no regular file
    // or write-protected; the old file then stays.
    [[nodiscard]] bool TakePlace() const;

    // Empty with a real printer.
    [[nodiscard]] std::string Path() const { return target_.toStdString(); }

  private:
    [[nodiscard]] bool IsWhole() const;

    QString target_;                      // empty with a real printer
    std::optional<QTemporaryDir> fresh_;  // holds the print
};

}  // namespace trabeon
