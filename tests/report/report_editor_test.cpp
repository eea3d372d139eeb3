// The report's window, and what its text box takes.
#include <QClipboard>
#include <QMimeData>

#include "report/sent_pictures.h"
#include "tests/report/report_fixture.h"
#include "tests/support/walk.h"

namespace trabeon::test {
namespace {

class ReportWindow : public WalkTest {
  protected:
    ReportWindow() {
        registerReport(context());
        AddActions();
        AddStates();
        Start();
    }

    void AddActions() {
        // A picture of so many 1/96 inch.
        actions["add"] = [this](const Step& step) {
            const auto [wide, high] = numbersOf(step.subject);
            outside.clipboardPicture = pictureOf(wide, high);
            context().pasteIntoReport();
        };
        actions["select"] = [this](const Step& step) {
            const auto [start, length] = numbersOf(step.subject);
            Report().RTB.SetSelection(start, length);
        };
        actions["focus"] = [this](const Step&) { Report().RTB.SetFocus(); };
        actions["report"] = [this](const Step& step) {
            (step.subject == "Save" ? Report().mnuSave : Report().mnufileexit).Choose();
        };
        actions["path"] = [this](const Step& step) {
            context().CommonDialog1.FileName = step.subject;
        };
        // Last written two hours ago.
        actions["age"] = [this](const Step& step) {
            const auto now = std::filesystem::file_time_type::clock::now();
            std::filesystem::last_write_time(folder / step.subject, now - std::chrono::hours(2));
        };
        actions["clean"] = [this](const Step&) { removeLentPictures(folder.path()); };
    }

    void AddStates() {
        states["pictures"] = [this](const std::string&) {
            return std::to_string(Report().RTB.PictureCount());
        };
        states["length"] = [this](const std::string&) {
            return std::to_string(Report().RTB.TextLength());
        };
        states["widths"] = [this](const std::string&) {
            std::string widths;
            for (const int twips : numbersAfter(Rtf(), "\\picwgoal"))
                widths += (widths.empty() ? "" : " ") + std::to_string(twips / TwipsPerPixel);
            return widths;
        };
        // At least 300 dots an inch on paper.
        states["sharp"] = [this](const std::string&) {
            const auto dots = numbersAfter(Rtf(), "\\pngblip\\picw");
            const auto twips = numbersAfter(Rtf(), "\\picwgoal");
            return yes(std::equal(dots.begin(), dots.end(), twips.begin(), twips.end(),
                                  [](int d, int t) { return 1440.0 * d / t >= 300; }));
        };
        states["copied"] = [](const std::string&) {
            return sizeOf(QGuiApplication::clipboard()->image());
        };
        states["pasted"] = [this](const std::string&) { return sizeOf(outside.clipboardPicture); };
        states["suggested"] = [this](const std::string&) { return outside.lastQuestion.fileName; };
        states["counts"] = [this](const std::string& fileAndPart) {
            const auto at = fileAndPart.find(" \\");
            return std::to_string(
                countOf(folder.read(fileAndPart.substr(0, at)), fileAndPart.substr(at + 1)));
        };
        states["balanced"] = [this](const std::string& name) {
            return yes(countOf(folder.read(name), "{") == countOf(folder.read(name), "}"));
        };
        states["sent"] = [this](const std::string&) {
            std::string numbers;
            for (const auto& [name, text] : folder.contents())
                if (name.starts_with("Picture"))
                    numbers += (numbers.empty() ? "" : " ") + name.substr(8, 1);
            return numbers;
        };
    }

    static std::pair<int, int> numbersOf(const std::string& text) {
        return {std::stoi(text), std::stoi(text.substr(text.find(' ')))};
    }
    static std::string sizeOf(const QImage& image) {
        return std::to_string(image.width()) + ' ' + std::to_string(image.height()) + ", " +
               std::to_string(static_cast<int>(image.devicePixelRatio())) + " dots";
    }
    frmReport& Report() { return forms().Get<frmReport>(); }
    std::string Rtf() { return Report().RTB.TextRTF(outside.paper, 1440); }
};

TEST_P(ReportWindow, Walk) {
    Take(GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(Report, ReportWindow, testing::ValuesIn(readWalks(WALKS)), nameOf);

TEST_F(ReportTest, TheLockedBoxRefusesKeysAndPasteAnUnlockedOneTakesAPictureAlone) {
    Add(100, 50);
    RTB().SetFocus();
    for (const bool locked : {true, false}) {
        RTB().SetLocked(locked);
        QGuiApplication::clipboard()->setText("text");
        Keys(Qt::Key_V);
        if (locked)
            Type(RTB(), "abc\b");
        EXPECT_EQ(RTB().TextLength(), 1);
        outside.clipboardPicture = pictureOf(10, 10);
        QGuiApplication::clipboard()->setImage(outside.clipboardPicture);
        Keys(Qt::Key_V);
        RTB().Paste();
        EXPECT_EQ(RTB().PictureCount(), locked ? 1 : 3);
        outside.clipboardPicture = QImage();
        RTB().Paste();
        EXPECT_EQ(RTB().PictureCount(), locked ? 1 : 3) << "there is no picture";
    }
}

}  // namespace
}  // namespace trabeon::test
