// What another program makes of the report: LibreOffice reads the rich text file, poppler the PDFs.
#include <array>
#include <cstdio>
#include <sstream>

#include "report/PrintReport.h"
#include "tests/report/report_fixture.h"

namespace trabeon::test {
namespace {

std::string OutputOf(const std::string& command) {
    std::string output;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 256> part{};
    while (pipe != nullptr && fgets(part.data(), part.size(), pipe) != nullptr)
        output += part.data();
    if (pipe != nullptr)
        pclose(pipe);
    return output;
}

/// The pages of the pictures in a PDF file, in their order, and their dots an inch.
struct PdfPictures {
    std::vector<int> pages;
    std::vector<int> dotsAnInch;
    int count = 0;  // of pages
};

PdfPictures PicturesOfPdf(const std::filesystem::path& pdf) {
    PdfPictures pictures;
    std::istringstream list(OutputOf("pdfimages -list '" + pdf.string() + "'"));
    for (std::string line; std::getline(list, line);) {
        std::istringstream fields(line);
        int page = 0, number = 0, dots = 0;
        std::string kind, skipped;
        if (!(fields >> page >> number >> kind) || kind != "image")
            continue;
        for (int i = 0; i < 9; ++i)
            fields >> skipped;  // width height color comp bpc enc interp object ID
        fields >> dots;
        pictures.pages.push_back(page);
        pictures.dotsAnInch.push_back(dots);
    }
    const auto info = OutputOf("pdfinfo '" + pdf.string() + "'");
    if (const auto at = info.find("Pages:"); at != std::string::npos)
        pictures.count = std::stoi(info.substr(at + 6));
    return pictures;
}

TEST_F(ReportTest, PreviewPdfAndWordProcessorShowTheSamePages) {
    if (OutputOf("command -v soffice").empty() || OutputOf("command -v pdfimages").empty())
        GTEST_SKIP() << "needs libreoffice-writer and poppler-utils";
    for (const int high : {300, 320, 290, 450, 460, 600, 310})
        Add(580, high);
    const int shown = forms().Get<frmDocPreview>().cboPageno.ListCount();
    EXPECT_EQ(shown, 3);

    outside.ExpectPrinter("Trabeon Report", (folder / "print.pdf").string());
    ASSERT_EQ(PrintReport(RTB(), 1440, 1440, 1440, 1440), Printed::yes);
    const PdfPictures print = PicturesOfPdf(folder / "print.pdf");
    EXPECT_EQ(print.count, shown);
    EXPECT_EQ(print.pages, (std::vector<int>{1, 1, 1, 2, 2, 3, 3}));
    for (const int dots : print.dotsAnInch)
        EXPECT_NEAR(dots, 192, 2) << "all the dots of the picture";

    SaveReport((folder / "report.rtf").string());
    OutputOf("HOME='" + folder.path().string() +
             "' soffice --headless --convert-to pdf --outdir '" + folder.path().string() + "' '" +
             (folder / "report.rtf").string() + "' 2>&1");
    const PdfPictures opened = PicturesOfPdf(folder / "report.pdf");
    EXPECT_EQ(opened.count, shown);
    EXPECT_EQ(opened.pages, print.pages);
}

}  // namespace
}  // namespace trabeon::test
