#include <QTimer>

#include "tests/report/report_fixture.h"

namespace trabeon::test {
namespace {

class PreviewTest : public ReportTest {
  protected:
    /// The one step whose picture shows.
    int Shown() {
        int shown = 0, count = 0, step = 0;
        for (const auto* each : {&Preview().pic1, &Preview().pic2, &Preview().pic3, &Preview().pic4,
                                 &Preview().pic5}) {
            ++step;
            count += each->Visible();
            shown = each->Visible() ? step : shown;
        }
        EXPECT_EQ(count, 1);
        EXPECT_FALSE(Preview().picX.Visible());
        return shown;
    }
    using Both = std::pair<bool, bool>;
    Both PageButtons() {
        return {Preview().cmdPrevPage.Enabled(), Preview().cmdNextPage.Enabled()};
    }
    Both ZoomButtons() { return {Preview().cmdZoomIn.Enabled(), Preview().cmdZoomOut.Enabled()}; }
};

TEST_F(PreviewTest, OpensOnPageOneAtAQuarter) {
    for (const int pages : {1, 3}) {
        EXPECT_EQ(Preview().Caption(), "Print Preview");
        EXPECT_EQ(Preview().txtTotalPages.Text(), "Total " + std::to_string(pages) + " pages");
        EXPECT_EQ(Preview().cboPageno.ListCount(), pages);
        EXPECT_EQ(Preview().cboPageno.Text(), "1");
        EXPECT_EQ(PageButtons(), Both(false, pages > 1));
        EXPECT_EQ(inkOf(Preview().pic5.Picture()).isNull(), pages == 1);
        EXPECT_EQ(Preview().cboScale.Text(), "25");
        EXPECT_EQ(ZoomButtons(), Both(true, true)) << "set at a change of the step alone";
        Click(Preview().cmdZoomOut);
        EXPECT_EQ(Shown(), 5);
        EXPECT_EQ(ZoomButtons(), Both(true, true));
        Preview().Unload();
        AddPictures(7, 500, 300);
    }
}

TEST_F(PreviewTest, ZoomGoesByButtonsAndByTheListAndAPictureKeepsItsOffset) {
    Press(Preview().VScroll1, Qt::Key_PageDown);
    Press(Preview().VScroll1, Qt::Key_Down);
    Preview().HScroll1.SetValue(30);
    for (const char* scale : {"50", "75", "100", "150", "150"}) {
        Click(Preview().cmdZoomIn);
        EXPECT_EQ(Preview().cboScale.Text(), scale);
    }
    EXPECT_EQ(Shown(), 1);
    EXPECT_EQ(Preview().pic1.Top(), 0);
    EXPECT_EQ(Preview().VScroll1.Value(), 0);
    EXPECT_EQ(ZoomButtons(), Both(false, true));
    Click(Preview().cmdZoomOut);
    EXPECT_EQ(Shown(), 2);
    Preview().VScroll1.SetValue(1000);
    EXPECT_EQ(Preview().pic2.Top(), -1000 * 15);
    Preview().cboScale.SetListIndex(4);
    EXPECT_EQ(Shown(), 5);
    EXPECT_EQ(ZoomButtons(), Both(true, false));
    EXPECT_EQ(Preview().pic5.Top(), -150 * 15);
    EXPECT_EQ(Preview().pic5.Left(), -30 * 15);
    EXPECT_EQ(Preview().VScroll1.Value(), 150);
    EXPECT_EQ(Preview().HScroll1.Value(), 30);
}

TEST_F(PreviewTest, PagesAreTurnedByButtonsAndByTheList) {
    AddPictures(7, 500, 300);
    const auto expectPage = [&](const char* page, Both buttons) {
        EXPECT_EQ(Preview().cboPageno.Text(), page);
        EXPECT_EQ(PageButtons(), buttons);
    };
    const QImage first = Preview().pic3.Picture();
    Click(Preview().cmdNextPage);
    expectPage("2", {true, true});
    Click(Preview().cmdNextPage);
    Preview().cmdNextPage.Press();
    expectPage("3", {true, false});
    EXPECT_NE(Preview().pic3.Picture(), first) << "one picture on it, not three";
    Click(Preview().cmdPrevPage);
    expectPage("2", {true, true});
    Preview().cboPageno.SetListIndex(0);
    expectPage("1", {false, true});
    EXPECT_EQ(Preview().pic3.Picture(), first);
    Preview().FormPreviewPage(Preview().picX, 3);
    const QImage last = Preview().picX.Picture();
    Preview().FormPreviewPage(Preview().picX, 9);
    EXPECT_EQ(Preview().picX.Picture(), last);
}

TEST_F(PreviewTest, APageWithoutExtentIsToldAndTheFormStays) {
    outside.paper = Paper();
    outside.ExpectMsgBox("Error occurred in sizing images. Cannot continue");
    Preview();
    EXPECT_EQ(outside.lastStyle, 0);
    EXPECT_EQ(outside.lastTitle, "");
    EXPECT_TRUE(forms().IsLoaded("frmDocPreview"));
}

TEST_F(PreviewTest, PrintsTheWholeReportAndCloses) {
    AddPictures(7, 500, 300);
    const auto print = [&](const std::string& path) {
        outside.ExpectPrinter("Trabeon Report", path);
        Click(Preview().cmdPrint);
        return !forms().IsLoaded("frmDocPreview");
    };
    EXPECT_FALSE(print("")) << "the user drew back";
    const auto missing = (folder / "missing" / "out.pdf").string();
    outside.ExpectPrinter("Trabeon Report", missing);
    outside.ExpectMsgBox("The report could not be printed to \"" + missing +
                         "\". Choose another file, then try again.");
    Click(Preview().cmdPrint);
    Click(Preview().cmdNextPage);
    EXPECT_TRUE(print((folder / "out.pdf").string()));
    EXPECT_EQ(PrintedPages(), 3);
}

TEST_F(PreviewTest, TheReportsMenuHoldsTheProgramUntilItIsClosed) {
    AddPictures(4, 500, 300);
    QTimer whenShown;
    QObject::connect(&whenShown, &QTimer::timeout, [&] {
        const auto* form = forms().Loaded<frmDocPreview>();
        if (form == nullptr || !form->Visible())
            return;
        whenShown.stop();
        EXPECT_EQ(QApplication::activeModalWidget(), Preview().Widget());
        EXPECT_FALSE(Preview().Widget()->windowFlags() & Qt::WindowMinMaxButtonsHint);
        Preview().Widget()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Preview().Widget()));
        Preview().cmdNextPage.SetFocus();
        Press(Preview().cmdNextPage, Qt::Key_Space);
        EXPECT_TRUE(Preview().cboPageno.HasFocus()) << "the button went off on the last page";
        Press(Preview().cboPageno, Qt::Key_Return);  // prints nothing
        Click(Preview().cmdClose);
    });
    whenShown.start();
    Report().mnufilepreview.Choose();
    EXPECT_FALSE(forms().IsLoaded("frmDocPreview"));
    EXPECT_TRUE(forms().IsLoaded("frmReport"));
}

}  // namespace
}  // namespace trabeon::test
