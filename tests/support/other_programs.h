// Other programs: the system's own report writer, and those that read what it writes.
#pragma once

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <string>
#include <vector>

namespace trabeon::test {

struct Run {
    int exit;
    std::string said;
    QString out;
};

/// Runs a program to its end, without a display.
inline Run run(const QString& program, const QStringList& words) {
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    environment.remove("DISPLAY");
    process.setProcessEnvironment(environment);
    process.start(program, words);
    process.waitForFinished(-1);
    return {process.exitCode(), process.readAllStandardError().toStdString(),
            process.readAllStandardOutput()};
}

/// Whether LibreOffice and poppler are there.
inline bool canReadDocuments() {
    return !QStandardPaths::findExecutable("soffice").isEmpty() &&
           !QStandardPaths::findExecutable("pdfimages").isEmpty();
}

/// LibreOffice makes a PDF file of a document beside it.
inline void makePdf(const QString& folder, const QString& document) {
    run("soffice", {"-env:UserInstallation=file://" + folder + "/office", "--headless",
                    "--convert-to", "pdf", "--outdir", folder, folder + '/' + document});
}

struct PdfPicture {
    int page;
    int dots;  // an inch
};

inline std::vector<PdfPicture> picturesOfPdf(const QString& pdf) {
    // page num type width height color comp bpc enc interp object ID x-ppi
    const QRegularExpression picture(R"(\n +(\d+) +\d+ image(?: +\S+){9} +(\d+))");
    std::vector<PdfPicture> pictures;
    for (const auto& match : picture.globalMatch(run("pdfimages", {"-list", pdf}).out))
        pictures.push_back({match.captured(1).toInt(), match.captured(2).toInt()});
    return pictures;
}

}  // namespace trabeon::test
