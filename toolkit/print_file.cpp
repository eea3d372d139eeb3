#include "toolkit/print_file.h"

#include <QFile>
#include <QPrinter>
#include <algorithm>
#include <filesystem>

namespace trabeon {

namespace {

constexpr const char* Unfinished = ".new";  // behind the name of a file that is being printed
constexpr qint64 EndRoom = 32;              // characters

}  // namespace

PrintFile::PrintFile(QPrinter& printer) : file_(printer.outputFileName()) {
    if (!file_.isEmpty())
        printer.setOutputFileName(file_ + Unfinished);
}

PrintFile::~PrintFile() {
    if (!file_.isEmpty())
        QFile::remove(file_ + Unfinished);
}

// The engine is silent about a disk that fills up, but then the end is missing.
bool PrintFile::TakePlace() const {
    if (file_.isEmpty())
        return true;
    QFile fresh(file_ + Unfinished);
    if (!fresh.open(QIODevice::ReadOnly))
        return false;
    fresh.seek(std::max<qint64>(0, fresh.size() - EndRoom));
    const bool whole = fresh.read(EndRoom).contains("%%EOF");
    fresh.close();
    std::error_code error;
    if (whole)
        std::filesystem::rename(fresh.fileName().toStdString(), file_.toStdString(), error);
    return whole && !error;
}

}  // namespace trabeon
