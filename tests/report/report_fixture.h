// The program with its report, and pictures to put there.
#pragma once

#include <QPainter>
#include <QTextEdit>
#include <QTimer>
#include <string>

#include "report/frmDocPreview.h"
#include "report/frmReport.h"
#include "report/registration.h"
#include "tests/support/program_fixture.h"

namespace trabeon::test {

/// A sharp picture that is so many 1/96 inch wide and high.
inline QImage pictureOf(int wide, int high) {
    QImage picture(2 * wide, 2 * high, QImage::Format_RGB32);
    picture.setDevicePixelRatio(2);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.drawRect(1, 1, wide - 2, high - 2);
    painter.drawLine(0, 0, wide, high);
    return picture;
}

class ReportTest : public ProgramTest {
  protected:
    ReportTest() {
        takeUpReport(context());
        Start();
    }

    frmReport& Report() { return forms().Get<frmReport>(); }
    RichTextBox& RTB() { return Report().RTB; }
    QTextEdit& Edit() { return *static_cast<QTextEdit*>(RTB().Widget()); }

    void Add(int wide, int high) {
        outside.clipboardPicture = pictureOf(wide, high);
        context().pasteIntoReport();
    }
    void AddPictures(int count, int wide, int high) {
        for (int i = 0; i < count; ++i)
            Add(wide, high);
    }

    /// How often a text stands in another.
    static int Count(const std::string& text, const std::string& part) {
        int count = 0;
        for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
            ++count;
        return count;
    }

    void SaveReport(const std::string& path) {
        outside.ExpectSave("Save Trabeon Report File", path);
        Report().mnuSave.Choose();
    }
};

}  // namespace trabeon::test
