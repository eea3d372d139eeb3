#include "toolkit/pages/print_file.h"

#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <algorithm>
#include <filesystem>

namespace trabeon {

namespace {

constexpr const char* Name = "print.pdf";
constexpr qint64 EndRoom = 32;  // characters

bool MayBeReplaced(const QFileInfo& target) {
    constexpr auto AnyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (!target.exists())
        return !target.isSymLink();
    return target.isFile() && target.isWritable() && (target.permissions() & AnyWrite) != 0;
}

}  // namespace

PrintFile::PrintFile(QPrinter& printer) : target_(printer.outputFileName()) {
    if (target_.isEmpty())
        return;
    const QFileInfo link(target_);
    if (link.isSymLink() && link.exists())
        target_ = link.canonicalFilePath();
    folder_.emplace(QFileInfo(target_).absolutePath() + "/.trabeon-XXXXXX");
    printer.setOutputFileName(folder_->filePath(Name));
}

// Qt does not report a full disk, but then the end of the file is missing.
bool PrintFile::IsWhole() const {
    QFile print(folder_->filePath(Name));
    if (!folder_->isValid() || !print.open(QIODevice::ReadOnly))
        return false;
    print.seek(std::max<qint64>(0, print.size() - EndRoom));
    return print.read(EndRoom).contains("%%EOF");
}

bool PrintFile::ReplaceOldFile() const {
    if (target_.isEmpty())
        return true;
    const QFileInfo target(target_);
    if (!IsWhole() || !MayBeReplaced(target))
        return false;
    if (target.exists())
        QFile::setPermissions(folder_->filePath(Name), target.permissions());
    std::error_code error;
    std::filesystem::rename(QFile::encodeName(folder_->filePath(Name)).toStdString(),
                            QFile::encodeName(target_).toStdString(), error);
    return !error;
}

}  // namespace trabeon
