// The real way out, as far as it can be tried without a desktop; and that the script keeps watch.
#include "toolkit/desktop/desktop.h"

#include <gtest/gtest-spi.h>

#include <QClipboard>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QPrinter>
#include <QPrinterInfo>
#include <QTemporaryDir>
#include <QTimer>

#include "tests/toolkit/controls_fixture.h"

namespace trabeon {
namespace {

class DesktopTest : public ControlsTest {
  protected:
    // These are done in the dialog that is about to come up.
    static void PressInDialog(Qt::Key key) {
        QTimer::singleShot(0, [key] { QTest::keyClick(QApplication::activeModalWidget(), key); });
    }
    void TypeInDialog(const QString& path) {
        QTimer::singleShot(0, [this, path] {
            QWidget* dialog = QApplication::activeModalWidget();
            title = dialog->windowTitle();
            if (auto* file = qobject_cast<QFileDialog*>(dialog))
                std::tie(startFolder, filters) =
                    std::pair(file->directory().absolutePath(), file->nameFilters().join("; "));
            auto* name = dialog->findChild<QLineEdit*>();
            found = name->text();
            name->setText(path);
            QTest::keyClick(dialog, Qt::Key_Return);
        });
    }

    const QTemporaryDir folder;
    Desktop desktop;
    QString title, startFolder, filters, found;  // of the last file dialog, before a name was typed
};

TEST_F(DesktopTest, AMessageBoxAnswersAndGivesTheWindowBack) {
    for (const auto& [key, style, answer] : {std::tuple{Qt::Key_Escape, 51, Answer::Cancel},
                                             {Qt::Key_N, 51, Answer::No},
                                             {Qt::Key_Return, 48, Answer::Ok}}) {
        PressInDialog(key);
        EXPECT_EQ(desktop.MsgBox("Save changes?", style, "Trabeon"), answer);
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.Widget()));
    }
}

TEST_F(DesktopTest, AFileDialogStartsAtHomeAndThenWhereTheLastOneEnded) {
    const auto startOf = [&](const QString& fileName, const QString& typed) {
        TypeInDialog(typed);
        const FileQuestion question{.saves = true,
                                    .title = "Save",
                                    .filter = "Trabeon File (*.TB) |*.TB",
                                    .fileName = fileName.toStdString()};
        EXPECT_EQ(QString::fromStdString(desktop.AskFile(question)), typed);
        return startFolder;
    };
    const QString first = folder.filePath("One.TB"), second = QDir::tempPath() + "/Two.TB";
    EXPECT_EQ(startOf("", first), QDir::homePath());
    EXPECT_EQ(filters, "Trabeon File (*.TB); All files (*)");
    EXPECT_EQ(startOf("", second), folder.path());
    EXPECT_EQ(startOf(first, first), folder.path());
}

TEST_F(DesktopTest, ANameToSaveIsInAFolderThatExistsAndIsReplacedOrCreatedOnlyWhenAgreed) {
    struct Asking : Desktop {
        Answer MsgBox(const std::string& text, int, const std::string&) override {
            asked.push_back(text);
            return answer();
        }
        std::vector<std::string> asked;
        std::function<Answer()> answer;
    } asking;
    const FileQuestion question{.saves = true,
                                .asksBeforeOverwriting = true,
                                .asksBeforeCreating = true,
                                .folderMustExist = true,
                                .filter = "Trabeon File (*.TB) |*.TB"};
    const QString one = folder.filePath("One.TB"), lost = folder.filePath("none/One.TB");
    asking.answer = [&] {
        if (asking.asked.size() == 3)
            return Answer::Yes;
        EXPECT_EQ(found, asking.asked.size() == 1 ? "" : lost);
        TypeInDialog(one);
        return Answer::No;
    };
    TypeInDialog(lost);
    EXPECT_EQ(asking.AskFile(question), one.toStdString());
    EXPECT_EQ(found, one);
    const std::string create = "\"One.TB\" does not exist. Create it?";
    EXPECT_EQ(asking.asked, (std::vector<std::string>{
                                "The folder \"" + folder.filePath("none").toStdString() +
                                    "\" does not exist: choose one that does, or create it first.",
                                create, create}));
    ASSERT_TRUE(QFile(one).open(QFile::WriteOnly));
    TypeInDialog(one);
    QTimer::singleShot(0, [] { PressInDialog(Qt::Key_Y); });  // to the dialog's own question
    EXPECT_EQ(asking.AskFile(question), one.toStdString());
    EXPECT_EQ(asking.asked.size(), 3U);
}

TEST_F(DesktopTest, TheClipboardTakesTextAndPictures) {
    desktop.PutText("a\tb");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "a\tb");
    EXPECT_TRUE(desktop.Picture().isNull());
    desktop.PutPicture(QImage(8, 4, QImage::Format_RGB32));
    EXPECT_EQ(desktop.Picture().size(), QSize(8, 4));
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "");
}

TEST_F(DesktopTest, WithoutAPrinterThePrintIsAnA4PdfWhoseNameIsAskedFor) {
    if (!QPrinterInfo::defaultPrinter().isNull())
        GTEST_SKIP() << "there is a printer";
    const Paper paper = desktop.DefaultPaper();
    EXPECT_NEAR(paper.Width, 210 / 25.4 * 1440, 20);
    EXPECT_NEAR(paper.Height, 297 / 25.4 * 1440, 20);
    EXPECT_NEAR(paper.ScaleWidth, paper.Width - 2 * paper.OffsetX, 20);
    EXPECT_GT(paper.OffsetY, 0);
    PressInDialog(Qt::Key_Escape);
    EXPECT_EQ(desktop.OpenPrinter("Report"), nullptr);
    TypeInDialog(folder.filePath("beam"));
    const auto printer = desktop.OpenPrinter("Report");
    EXPECT_EQ(title, "Print to a PDF File");
    ASSERT_NE(printer, nullptr);
    EXPECT_EQ(printer->outputFileName(), folder.filePath("beam.pdf"));
    EXPECT_EQ(printer->docName(), "Report");
}

TEST_F(DesktopTest, WithoutABrowserEachPageComesToTheFrontInTheSameWindow) {
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", folder.path().toUtf8());  // holds no browser
    QWidget* page = nullptr;
    for (const QString name : {"Contents", "Example"}) {
        QFile file(folder.filePath(name + ".htm"));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(("<title>" + name + "</title>").toUtf8());
        file.close();
        window.Widget()->activateWindow();
        EXPECT_TRUE(desktop.OpenDocument(file.fileName().toStdString()));
        Settle();
        ASSERT_NE(QApplication::activeWindow(), nullptr);
        EXPECT_EQ(QApplication::activeWindow()->windowTitle().toStdString(), name.toStdString());
        EXPECT_TRUE(page == nullptr || page == QApplication::activeWindow());
        page = QApplication::activeWindow();
    }
    EXPECT_FALSE(desktop.OpenDocument(folder.filePath("No page.htm").toStdString()));
    qputenv("PATH", path);
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
