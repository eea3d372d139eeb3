// The program with its report, and pictures to put there.
#pragma once

#include <QPainter>
#include <QTextEdit>
#include <string>

#include "report/PrintReport.h"
#include "report/frmDocPreview.h"
#include "report/frmReport.h"
#include "report/registration.h"
#include "tests/support/program_fixture.h"
#include "toolkit/outside/picture_file.h"

namespace trabeon::test {

/// A picture that is so many 1/96 inch wide and high, with so many dots to each of them.
inline QImage pictureOf(int wide, int high, int dots = 4) {
    QImage picture(dots * wide, dots * high, QImage::Format_RGB32);
    picture.fill(Qt::white);
    SetRatio(picture, dots);
    QPainter painter(&picture);
    painter.drawRect(1, 1, wide - 2, high - 2);
    painter.drawLine(0, 0, wide, high);
    return picture;
}

/// Where a picture has ink, in its dots.
inline QRect inkOf(const QImage& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if ((picture.pixel(x, y) & 0xff) < 0xc0)
                ink |= QRect(x, y, 1, 1);
    return ink;
}

/// How often a text is in another.
inline int countOf(const std::string& text, const std::string& part) {
    int count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

/// The numbers after a word of a rich text.
inline std::vector<int> numbersAfter(const std::string& rtf, const std::string& word) {
    std::vector<int> numbers;
    for (auto at = rtf.find(word); at != std::string::npos; at = rtf.find(word, at))
        numbers.push_back(std::stoi(rtf.substr(at += word.size())));
    return numbers;
}

class ReportTest : public ProgramTest {
  protected:
    ReportTest() {
        registerReport(context());
        Start();
    }

    frmReport& Report() { return forms().Get<frmReport>(); }
    RichTextBox& RTB() { return Report().RTB; }
    /// Loaded, not shown: showing holds the caller.
    frmDocPreview& Preview() { return forms().Get<frmDocPreview>(); }

    void Add(int wide, int high, int dots = 4) {
        outside.clipboardPicture = pictureOf(wide, high, dots);
        context().pasteIntoReport();
    }
    void AddPictures(int count, int wide, int high) {
        for (int i = 0; i < count; ++i)
            Add(wide, high);
    }
    void Select(int start, int length) { RTB().SetSelection(start, length); }
    void Cut() { Click(Report().cmdCut); }
    void Keys(Qt::Key key) { QTest::keyClick(RTB().Widget(), key, Qt::ControlModifier); }
    /// Prints into out.pdf, which is given back, or another file.
    Outcome<PrintEnd> Print(RichTextBox& box, const std::string& file = "out.pdf") {
        outside.ExpectPrinter("Trabeon Report", file.empty() ? "" : (folder / file).string());
        return PrintReport(box, 1440, 1440, 1440, 1440);
    }

    int PrintedPages() { return countOf(folder.read("out.pdf"), "/Type /Page\n"); }
};

}  // namespace trabeon::test
