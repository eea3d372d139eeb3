// The file that stands in for a printer: it takes the old file's place only when it is whole.
#pragma once

#include <QString>
#include <string>

class QPrinter;

namespace trabeon {

class PrintFile {
  public:
    // Where the printer prints to a file it gets another name beside it; else nothing is done.
    explicit PrintFile(QPrinter& printer);
    // What did not take its place goes.
    ~PrintFile();
    PrintFile(const PrintFile&) = delete;
    PrintFile& operator=(const PrintFile&) = delete;

    // When the print has ended. False: the file is not whole, and the old one stands.
    [[nodiscard]] bool TakePlace() const;

    // Empty with a real printer.
    [[nodiscard]] std::string Path() const { return file_.toStdString(); }

  private:
    QString file_;
};

}  // namespace trabeon
