#include <gtest/gtest.h>

#include "tests/support/other_programs.h"
#include "tests/support/temporary_folder.h"

namespace trabeon::test {
namespace {

const QString example = QString(EXAMPLES) + "/five-span-with-cantilever.TB";

Run report(const QStringList& words) {
    return run(TRABEON_REPORT, words);
}

TEST(ReportProgram, MakesTheDocumentOfAProjectWithoutADisplay) {
    const TemporaryFolder folder;
    const auto out = QString::fromStdString((folder / "beam.docx").string());
    const auto all = report({example, "--out", out});
    EXPECT_EQ(all.exit, 0) << all.said;
    EXPECT_EQ(all.said, "");
    const auto whole = folder.read("beam.docx");
    EXPECT_TRUE(whole.starts_with("PK"));

    EXPECT_EQ(report({example, "--out=" + out, "--kinds", "joints,values"}).exit, 0);
    EXPECT_LT(folder.read("beam.docx").size(), whole.size() / 2);  // without the pictures
    EXPECT_EQ(folder.contents().size(), 1U);
}

TEST(ReportProgram, RefusesInOneSentence) {
    const TemporaryFolder folder;
    const auto out = QString::fromStdString((folder / "beam.docx").string());
    const std::tuple<QStringList, int, const char*> rows[] = {
        {{example}, 2, ""},
        {{example, "--out", out, "--kinds", "joints,pears"},
         2,
         "There is no kind \"pears\". The kinds are joints,members,"},
        {{"no such project.TB", "--out", out}, 1, "no such project.TB"},
        {{example, "--out", out, "--divisions", "0"}, 1, "10,000"},
        {{example, "--out", out + "/no/folder.docx"}, 1, ""}};
    for (const auto& [words, exit, said] : rows) {
        const auto refused = report(words);
        EXPECT_EQ(refused.exit, exit) << said;
        EXPECT_NE(refused.said.find(said), std::string::npos) << refused.said;
    }
    EXPECT_TRUE(folder.contents().empty());
    folder.write("notes.docx", "mine");
    std::filesystem::copy_file(EXAMPLES "/five-span-with-cantilever.TB", folder / "q.TB");
    const auto before = folder.contents();
    const auto project = QString::fromStdString((folder / "q.TB").string());
    for (const auto* taken : {"q.TB", "notes.docx"}) {
        const auto path = QString::fromStdString((folder / taken).string());
        const auto refused = report({project, "--out", path});
        EXPECT_EQ(refused.exit, 1);
        EXPECT_NE(refused.said.find(taken), std::string::npos) << refused.said;
    }
    EXPECT_EQ(folder.contents(), before);
}

TEST(ReportProgram, AWordProcessorShowsItsDocumentWhole) {
    if (!canReadDocuments())
        GTEST_SKIP() << "needs libreoffice-writer and poppler-utils";
    const TemporaryFolder folder;
    const auto path = QString::fromStdString(folder.path().string()), pdf = path + "/beam.pdf";
    ASSERT_EQ(report({example, "--out", path + "/beam.docx"}).exit, 0);
    makePdf(path, "beam.docx");
    const auto info = run("pdfinfo", {pdf}).out;
    EXPECT_TRUE(info.contains(QRegularExpression("Page size: +792 x 612"))) << info.toStdString();
    EXPECT_TRUE(info.contains(QRegularExpression("Pages: +13\n"))) << info.toStdString();
    EXPECT_EQ(picturesOfPdf(pdf).size(), 2 * 5 + 2U);
    const auto text = run("pdftotext", {"-layout", pdf, "-"}).out;
    for (const char* row :
         {"6 +Cantilever +Canopy edge", "5 +28 +0.0054 +2 +Canopy", "5 +0 +2 +15 +15 +Canopy roof",
          "Final .*\\+0.00E\\+00\n", "Span 5", "5 +12 +250 +450", "Shear OK Def. OK\n"})
        EXPECT_TRUE(text.contains(QRegularExpression(row))) << row;
}

}  // namespace
}  // namespace trabeon::test
