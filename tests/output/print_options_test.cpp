#include "output/frmPrintOptions.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "forms/main/frmTitle.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmBMData.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmMoment1.h"
#include "tests/support/other_programs.h"
#include "tests/support/walk.h"

namespace trabeon::test {
namespace {

class PrintOptions : public ProgramTest {
  protected:
    frmPrintOptions& Open() {
        forms().Register<frmPrintOptions>(context());
        Start();
        Choose("&File|&Print...");
        Settle();
        return forms().Get<frmPrintOptions>();
    }

    void AnalyseExample() {
        ASSERT_TRUE(
            unpackProject(std::string(EXAMPLES) + "/two-span-floor-beam.TB", folder.path()));
        Choose("&Structure|&Analyse...");
        Settle();
        Click(forms().Get<frmAnalysis>().cmdAnalyse);
    }

    /// Words in the uncompressed parts of a PDF, such as its page objects.
    static int Count(const std::string& text, const std::string& words) {
        int count = 0;
        for (auto at = text.find(words); at != std::string::npos; at = text.find(words, at + 1))
            ++count;
        return count;
    }
};

TEST_F(PrintOptions, PrintsThePagesAsAFile) {
    auto& form = Open();
    AnalyseExample();
    const auto pdf = (folder / "print.pdf").string();
    outside.ExpectPrinter("Untitled", pdf);
    Click(form.cmdPrint);
    EXPECT_EQ(Count(TemporaryFolder::readFile(pdf), "/Type /Page\n"), 1);

    Press(form.chkTB, Qt::Key_Space);
    outside.ExpectPrinter("Untitled", pdf);
    Click(form.cmdPrint);
    const auto printed = TemporaryFolder::readFile(pdf);
    EXPECT_EQ(Count(printed, "/Type /Page\n"), 2);
    EXPECT_EQ(Count(printed, "/MediaBox [0 0 842.000000 595.000000]"), 1);
    EXPECT_EQ(Count(printed, "/MediaBox [0 0 595.000000 842.000000]"), 1);
}

TEST_F(PrintOptions, LinesAreBelowEachOtherAndALongTitleIsWithinTheSheet) {
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "needs poppler-utils";
    auto& form = Open();
    const std::string project(60, 'W'), designer(30, 'D');
    forms().Get<frmTitle>().SetTitle({project, designer, "Beam"});
    folder.write("Joint.txt", "1,Fixed,north\r\n2,Fixed,south\r\n");
    const auto pdf = (folder / "print.pdf").string();
    outside.ExpectPrinter(project, pdf);
    Click(form.cmdPrint);
    const auto words = run("pdftotext", {"-bbox", QString::fromStdString(pdf), "-"}).out;
    EXPECT_TRUE(words.contains(QString::fromStdString(project)));
    EXPECT_TRUE(words.contains(QString::fromStdString(designer)));
    constexpr double millimetre = 72 / 25.4;
    const QRegularExpression word("yMin=.([0-9.]+). xMax=.([0-9.]+).*>(.*)</word>");
    std::map<QString, double> tops;
    for (const auto& match : word.globalMatch(words)) {
        EXPECT_LE(match.captured(2).toDouble(), 595 - 20 * millimetre + 1);
        tops[match.captured(3)] = match.captured(1).toDouble();
    }
    EXPECT_NEAR(tops["north"], (20 + 2 * 3.2) * millimetre, 2);
    EXPECT_NEAR(tops["south"] - tops["north"], 3.2 * millimetre, 0.5);
}

TEST_F(PrintOptions, WindowsAreAsTheyWereWhenTheDocumentIsMade) {
    auto& form = Open();
    AnalyseExample();
    const auto& area = program.window().Area();
    const auto windows = [&] {
        std::string all;
        for (const auto* child : area.subWindowList(QMdiArea::StackingOrder))
            if (child->isVisible())
                all += child->objectName().toStdString() + ' ' +
                       std::to_string(child->isMaximized() ? 0 : child->width()) + ", ";
        return all + "in front " + area.activeSubWindow()->objectName().toStdString();
    };
    auto& diagram = forms().Get<frmMoment1>();
    for (const int member : {-1, 0}) {
        diagram.cboMember.SetListIndex(member);
        diagram.cmdPlot.Press();
        forms().Get<frmBMData>().SetWidth(4500);
        forms().Get<frmContinuousTB>().SetState(WindowState::Maximized);
        for (const auto* front : {"frmPrintOptions", "frmBMData"}) {
            forms().Show(front);
            const auto before = windows();
            outside.ExpectSave("Save the Document", "");  // the user draws back: nothing is left
            form.cmdLotus.Press();
            EXPECT_EQ(windows(), before);
            EXPECT_EQ(diagram.cboMember.ListIndex(), member);
            EXPECT_EQ(diagram.GraphMoment1.Points().empty(), member < 0);
        }
    }
    EXPECT_FALSE(forms().IsLoaded("frmShear1"));
}

class Printing : public WalkTest {
  protected:
    Printing() {
        states["waited"] = [this](const std::string&) {
            outside.waited.erase("copy check");
            std::string text;
            for (const auto& [kind, did] : outside.waited)
                text += (text.empty() ? "" : ", ") + kind + (did ? " 1" : " 0");
            return text;
        };
        forms().Register<frmPrintOptions>(context());
        Start();
    }
    void TearDown() override {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "a wait cursor is left";
    }
};

TEST_P(Printing, Walk) {
    Take(GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(Output, Printing, testing::ValuesIn(readWalks(WALKS)), nameOf);

}  // namespace
}  // namespace trabeon::test
