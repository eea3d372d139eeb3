// The real way out, as far as it can be tried without a desktop; and that the script keeps watch.
#include "toolkit/desktop.h"

#include <gtest/gtest-spi.h>

#include <QClipboard>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTimer>

#include "tests/support/gui_fixture.h"

namespace trabeon {
namespace {

// Presses a key in the box that is about to come up.
void PressInBox(Qt::Key key) {
    QTimer::singleShot(0, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
}

TEST_F(GuiTest, AMessageBoxAnswersAndGivesTheWindowBack) {
    Desktop desktop;
    PressInBox(Qt::Key_Escape);
    EXPECT_EQ(desktop.MsgBox("Save changes?", 51, "Trabeon"), Answer::Cancel);
    EXPECT_TRUE(QTest::qWaitForWindowActive(window.Widget()));
    PressInBox(Qt::Key_N);
    EXPECT_EQ(desktop.MsgBox("Save changes?", 51, "Trabeon"), Answer::No);
    PressInBox(Qt::Key_Return);
    EXPECT_EQ(desktop.MsgBox("Trabeon is already running.", 48, "Trabeon"), Answer::Ok);
}

TEST_F(GuiTest, AFileDialogStartsAtHomeAndThenWhereTheLastOneEnded) {
    Desktop desktop;
    const QTemporaryDir folder;
    const auto answer = [&desktop](const std::string& fileName, const QString& typed) {
        QString start;
        QTimer::singleShot(0, [&start, &typed] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            start = dialog->directory().absolutePath();
            dialog->findChild<QLineEdit*>()->setText(typed);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
        FileQuestion question{true, false, "Save", "Trabeon File (*.TB) |*.TB", fileName};
        EXPECT_EQ(QString::fromStdString(desktop.AskFile(question)), typed);
        return start;
    };
    const QString first = folder.filePath("One.TB"), second = QDir::tempPath() + "/Two.TB";
    EXPECT_EQ(answer("", first), QDir::homePath());
    EXPECT_EQ(answer("", second), folder.path());
    EXPECT_EQ(answer(first.toStdString(), first), folder.path());
}

TEST_F(GuiTest, TheClipboardTakesTextAndPictures) {
    Desktop desktop;
    desktop.PutText("a\tb");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "a\tb");
    EXPECT_TRUE(desktop.Picture().isNull());
    QImage picture(8, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    desktop.PutPicture(picture);
    EXPECT_EQ(desktop.Picture().size(), QSize(8, 4));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
}

TEST_F(GuiTest, WithoutAPrinterThePrintIsAnA4PdfWhoseNameIsAskedFor) {
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "there is a printer";
    Desktop desktop;
    const Paper paper = desktop.DefaultPaper();
    EXPECT_NEAR(paper.Width, 210 / 25.4 * 1440, 20);
    EXPECT_NEAR(paper.Height, 297 / 25.4 * 1440, 20);
    EXPECT_NEAR(paper.ScaleWidth, paper.Width - 2 * paper.OffsetX, 20);
    EXPECT_GT(paper.OffsetY, 0);
    PressInBox(Qt::Key_Escape);
    EXPECT_EQ(desktop.OpenPrinter("Report"), nullptr);
    const QTemporaryDir folder;
    QTimer::singleShot(0, [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        EXPECT_EQ(dialog->windowTitle(), "Print to a PDF File");
        dialog->findChild<QLineEdit*>()->setText(folder.filePath("beam"));
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    const auto printer = desktop.OpenPrinter("Report");
    ASSERT_NE(printer, nullptr);
    EXPECT_EQ(printer->outputFileName(), folder.filePath("beam.pdf"));
    EXPECT_EQ(printer->docName(), "Report");
}

TEST_F(GuiTest, ASecondCopyInTheSameFolderIsFound) {
    const QTemporaryDir folder, other;
    Desktop first, second;
    EXPECT_FALSE(first.AnotherCopyRuns(folder.path().toStdString()));
    EXPECT_TRUE(second.AnotherCopyRuns(folder.path().toStdString()));
    EXPECT_FALSE(second.AnotherCopyRuns(other.path().toStdString()));
}

TEST_F(GuiTest, TheLastOutsideMadeIsTheOneInUse) {
    EXPECT_EQ(&Outside::Current(), &outside);
    {
        const Desktop desktop;
        EXPECT_EQ(&Outside::Current(), &desktop);
    }
    EXPECT_EQ(&Outside::Current(), &outside);
}

TEST(ScriptedOutsideTest, FailsOnWhatIsUnexpectedAndOnWhatIsLeft) {
    EXPECT_NONFATAL_FAILURE(ScriptedOutside().MsgBox("Who?", 48, ""), "Not expected: box");
    EXPECT_NONFATAL_FAILURE(
        {
            ScriptedOutside script;
            script.ExpectMsgBox("Save changes?", Answer::No);
            EXPECT_EQ(script.MsgBox("Save change?", 51, ""), Answer::No);
        },
        "Save changes?");
    EXPECT_NONFATAL_FAILURE(ScriptedOutside().ExpectEnd(), "Never asked: end");
}

}  // namespace
}  // namespace trabeon
