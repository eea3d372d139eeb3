#include "output/frmPrintOptions.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include "forms/main/frmTitle.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmBMData.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmMoment1.h"
#include "tests/output/recording.h"
#include "tests/support/other_programs.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {
namespace {

class PrintOptions : public ProgramTest {
  protected:
    void TearDown() override {
        EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr) << "a wait cursor is left";
    }

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

    static std::string TextOf(const Control& control) {
        return control.Widget()->property("text").toString().toStdString();
    }

    /// Words that stand in a PDF's bare parts, as its page objects.
    static int Count(const std::string& text, const std::string& words) {
        int count = 0;
        for (auto at = text.find(words); at != std::string::npos; at = text.find(words, at + 1))
            ++count;
        return count;
    }
};

TEST_F(PrintOptions, ComesUpWithItsTicks) {
    const auto& form = Open();
    EXPECT_EQ(form.Caption(), "Printing Options");
    EXPECT_EQ(form.Height(), 5205);  // 5200, in whole pixels
    for (const auto& [box, caption] :
         {std::pair{&form.chkJoint, "Joint Data (Text Format)"},
          {&form.chkMember, "Member Data (Text Format)"},
          {&form.chkLoad, "Loading Data (Text Format)"},
          {&form.chkTB, "Trabeon Results"},
          {&form.chkBMSV, "Bending Moment And Shear Force Values"},
          {&form.chkBMSDBY, "Bending Moment And Shear Force Diagram By Members"},
          {&form.chkCBMS, "Continuous Bending Moment And Shear Force Diagram"},
          {&form.chkBeamDim, "Beam Dimensions and Properties"},
          {&form.chkDesign, "Design Results"}}) {
        EXPECT_EQ(TextOf(*box), caption);
        EXPECT_EQ(box->Value(), box != &form.chkTB) << caption;
    }
    EXPECT_EQ(TextOf(form.optLand) + "/" + TextOf(form.optPot), "Landscape/Potrait");
    EXPECT_TRUE(form.optLand.Value());
    EXPECT_TRUE(form.chkJoint.HasFocus());
}

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

TEST_F(PrintOptions, ALongTitleIsPrintedWholeWithinTheSheet) {
    if (QStandardPaths::findExecutable("pdftotext").isEmpty())
        GTEST_SKIP() << "needs poppler-utils";
    auto& form = Open();
    const std::string project(60, 'W'), designer(30, 'D');
    forms().Get<frmTitle>().SetTitle({project, designer, "Beam"});
    const auto pdf = (folder / "print.pdf").string();
    outside.ExpectPrinter(project, pdf);
    Click(form.cmdPrint);
    const auto words = run("pdftotext", {"-bbox", QString::fromStdString(pdf), "-"}).out;
    EXPECT_TRUE(words.contains(QString::fromStdString(project)));
    EXPECT_TRUE(words.contains(QString::fromStdString(designer)));
    const QRegularExpression right("xMax=.([0-9.]+)");
    for (const auto& match : right.globalMatch(words))
        EXPECT_LE(match.captured(1).toDouble(), 595 - 20 / 25.4 * 72 + 1);
}

TEST_F(PrintOptions, ADrawnBackPrintDoesNothingAndAFailedOneSaysSo) {
    auto& form = Open();
    outside.ExpectPrinter("Untitled", "");
    Click(form.cmdPrint);
    const auto pdf = (folder / "no such folder" / "print.pdf").string();
    outside.ExpectPrinter("Untitled", pdf);
    outside.ExpectMsgBox("\"Untitled\" could not be printed to \"" + pdf +
                         "\". Choose another file, then print again.");
    Click(form.cmdPrint);
}

TEST_F(PrintOptions, LotusSavesAndOpensTheWholeDocument) {
    auto& form = Open();
    AnalyseExample();
    Press(form.chkTB, Qt::Key_Space);
    const auto docx = (folder / "beam.docx").string();
    outside.ExpectSave("Save the Document", docx);
    outside.ExpectDocument(docx);
    Click(form.cmdLotus);
    EXPECT_TRUE(TemporaryFolder::readFile(docx).starts_with("PK"));
    EXPECT_TRUE(outside.lastQuestion.asksBeforeOverwriting);
    EXPECT_EQ(outside.lastQuestion.suffix, "docx");
    outside.waited.erase("copy check");
    EXPECT_EQ(outside.waited, (std::map<std::string, bool>{
                                  {"picture", true}, {"save", false}, {"document", false}}));
    for (const auto* name :
         {"frmMoment1", "frmShear1", "frmContinuousTB", "frmContinuousS", "frmBMData", "frmSData"})
        EXPECT_FALSE(forms().IsLoaded(name)) << name;
    EXPECT_EQ(program.window().State(), WindowState::Normal);
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

TEST_F(PrintOptions, ADocumentWithoutAProgramSaysWhereItIs) {
    auto& form = Open();
    const auto docx = (folder / "beam.docx").string();
    outside.ExpectSave("Save the Document", docx);
    outside.ExpectDocument(docx, false);
    outside.ExpectMsgBox("The document was saved as \"" + docx +
                         "\". This desktop has no program for it; open it with a word processor.");
    Click(form.cmdLotus);
}

TEST_F(PrintOptions, AFailedWriteLeavesTheOldFileAndSaysWhy) {
    auto& form = Open();
    folder.write("beam.docx", "old");
    const auto failsWith = [&](const std::string& file) {
        folder.protect(file);
        ExpectUnwritten(file);
    };
    outside.ExpectSave("Save the Document", (folder / "beam.docx").string());
    failsWith("beam.docx");
    outside.ExpectSave("Save the Document", "");  // it asks again, and the user draws back
    Click(form.cmdLotus);
    EXPECT_EQ(folder.read("beam.docx"), "old");

    Press(form.chkTB, Qt::Key_Space);
    failsWith("TB.tmp");  // a scratch file: no document
    Click(form.cmdLotus);
}

TEST_F(PrintOptions, APlainPressOfWordEndsWithItsMessage) {
    auto& form = Open();
    outside.ExpectMsgBox(wordStops, Answer::Cancel);
    Click(form.cmdWord);

    Press(form.chkBMSV, Qt::Key_Space);
    outside.ExpectSave("Save the Document", "");
    Click(form.cmdWord);
}

}  // namespace
}  // namespace trabeon::test
