#include <gtest/gtest.h>

#include <QProcess>

#include "tests/support/temporary_folder.h"

namespace trabeon::test {
namespace {

const QString example = QString(EXAMPLES) + "/five-span-with-cantilever.TB";

struct Run {
    int exit;
    std::string said;
};

Run run(const QStringList& words) {
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_QPA_PLATFORM");
    environment.remove("DISPLAY");
    process.setProcessEnvironment(environment);
    process.start(TRABEON_REPORT, words);
    process.waitForFinished(60000);
    return {process.exitCode(), process.readAllStandardError().toStdString()};
}

TEST(ReportProgram, MakesTheDocumentOfAProjectWithoutADisplay) {
    const TemporaryFolder folder;
    const auto out = QString::fromStdString((folder / "beam.docx").string());
    const auto all = run({example, "--out", out});
    EXPECT_EQ(all.exit, 0) << all.said;
    EXPECT_EQ(all.said, "");
    const auto whole = folder.read("beam.docx");
    EXPECT_TRUE(whole.starts_with("PK"));

    EXPECT_EQ(run({example, "--out=" + out, "--kinds", "joints,values"}).exit, 0);
    EXPECT_LT(folder.read("beam.docx").size(), whole.size() / 2);  // without the pictures
    EXPECT_EQ(folder.contents().size(), 1U);
}

TEST(ReportProgram, RefusesInOneSentence) {
    const TemporaryFolder folder;
    const auto out = QString::fromStdString((folder / "beam.docx").string());
    EXPECT_EQ(run({example}).exit, 2);
    const auto kinds = run({example, "--out", out, "--kinds", "joints,pears"});
    EXPECT_EQ(kinds.exit, 2);
    EXPECT_NE(kinds.said.find("There is no kind \"pears\". The kinds are joints,members,"),
              std::string::npos);
    const auto missing = run({"no such project.TB", "--out", out});
    EXPECT_EQ(missing.exit, 1);
    EXPECT_NE(missing.said.find("no such project.TB"), std::string::npos) << missing.said;
    const auto divisions = run({example, "--out", out, "--divisions", "0"});
    EXPECT_EQ(divisions.exit, 1);
    EXPECT_NE(divisions.said.find("10,000"), std::string::npos) << divisions.said;
    EXPECT_EQ(run({example, "--out", out + "/no/folder.docx"}).exit, 1);
    EXPECT_TRUE(folder.contents().empty());
}

}  // namespace
}  // namespace trabeon::test
