// What another program makes of the report: LibreOffice reads the rich text file, poppler the PDFs.
#include <array>
#include <cstdio>
#include <sstream>

#include "forms/results/frmAnalysis.h"
#include "forms/results/frmContinuousTB.h"
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

/// The page of each picture in a PDF file, and behind it the file's count of pages.
std::vector<int> PagesOfPdf(const std::filesystem::path& pdf) {
    std::vector<int> pages;
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
        EXPECT_GE(dots, 300) << "dots an inch, picture " << number << " of " << pdf;
        pages.push_back(page);
    }
    const auto info = OutputOf("pdfinfo '" + pdf.string() + "'");
    const auto at = info.find("Pages:");
    pages.push_back(at == std::string::npos ? 0 : std::stoi(info.substr(at + 6)));
    return pages;
}

TEST_F(ReportTest, PreviewPdfAndWordProcessorShowTheSamePages) {
    if (OutputOf("command -v soffice").empty() || OutputOf("command -v pdfimages").empty())
        GTEST_SKIP() << "needs libreoffice-writer and poppler-utils";
    outside.ExpectOpen("Open Trabeon File", EXAMPLES "/five-span-with-cantilever.TB");
    Choose("&File|&Open");
    Click(forms().Get<frmAnalysis>().cmdAnalyse);
    auto& diagram = forms().Get<frmContinuousTB>();
    for (int i = 0; i < diagram.List1.ListCount(); ++i)
        diagram.List1.SetSelected(i, true);
    Click(diagram.cmdPlot);
    for (const int high : {5000, 5100, 4850, 7200, 7350, 9400, 5150}) {
        diagram.SetScaleSize(high == 7200 ? 19000 : 9900, high);  // one is wider than the sheet
        Settle();
        Click(diagram.cmdReport);
    }
    const int shown = Preview().cboPageno.ListCount();
    ASSERT_TRUE(Print(RTB()).printed);
    const auto pages = PagesOfPdf(folder / "out.pdf");
    EXPECT_EQ(pages, (std::vector<int>{1, 1, 1, 2, 2, 3, 3, shown}));
    SaveReport((folder / "report.rtf").string());
    OutputOf("HOME='" + folder.path().string() +
             "' soffice --headless --convert-to pdf --outdir '" + folder.path().string() + "' '" +
             (folder / "report.rtf").string() + "' 2>&1");
    EXPECT_EQ(PagesOfPdf(folder / "report.pdf"), pages);
}

}  // namespace
}  // namespace trabeon::test
