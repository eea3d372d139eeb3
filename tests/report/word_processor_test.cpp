// What another program makes of the report: LibreOffice reads the rich text file, poppler the PDFs.
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmContinuousTB.h"
#include "tests/report/report_fixture.h"
#include "tests/support/other_programs.h"

namespace trabeon::test {
namespace {

TEST_F(ReportTest, PreviewPdfAndWordProcessorShowTheSamePages) {
    if (!canReadDocuments())
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
    EXPECT_EQ(Preview().cboPageno.ListCount(), 3);
    ASSERT_TRUE(Print(RTB()));
    SaveReport((folder / "report.rtf").string());
    const auto path = QString::fromStdString(folder.path().string());
    makePdf(path, "report.rtf");
    for (const auto* pdf : {"/out.pdf", "/report.pdf"}) {
        std::vector<int> pages;
        for (const auto& [page, dots] : picturesOfPdf(path + pdf)) {
            EXPECT_GE(dots, 300) << "picture " << pages.size() << " of " << pdf;
            pages.push_back(page);
        }
        EXPECT_EQ(pages, (std::vector<int>{1, 1, 1, 2, 2, 3, 3})) << pdf;
        EXPECT_TRUE(run("pdfinfo", {path + pdf}).out.contains(QRegularExpression("Pages: +3\n")));
    }
}

TEST_F(ReportTest, ThePrintLeavesAnInchFromTheEdgesOfTheSheet) {
    if (!canReadDocuments())
        GTEST_SKIP() << "needs poppler-utils";
    Add(601, 930);
    ASSERT_TRUE(Print(RTB()));
    const auto path = QString::fromStdString(folder.path().string());
    run("pdftoppm", {"-r", "96", "-png", "-singlefile", path + "/out.pdf", path + "/page"});
    const QRect ink = inkOf(QImage(path + "/page.png"));
    EXPECT_LE((ink.topLeft() - QPoint(97, 97)).manhattanLength(), 2);
    EXPECT_LE((ink.bottomRight() - QPoint(96 + 600, 96 + 929)).manhattanLength(), 3);
}

}  // namespace
}  // namespace trabeon::test
