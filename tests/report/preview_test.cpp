#include <chrono>

#include "tests/report/report_fixture.h"
#include "tests/support/time_limit.h"

namespace trabeon::test {
namespace {

class Preview : public ReportTest {
  protected:
    /// Loaded, not shown: showing holds the caller.
    frmDocPreview& Open() { return forms().Get<frmDocPreview>(); }

    static int Shown(const frmDocPreview& form) {
        int shown = 0, count = 0, step = 0;
        for (const auto* each : {&form.pic1, &form.pic2, &form.pic3, &form.pic4, &form.pic5}) {
            ++step;
            if (each->Visible()) {
                shown = step;
                ++count;
            }
        }
        EXPECT_EQ(count, 1);
        return shown;
    }
    static bool HasInk(const PictureBox& box) {
        const QImage picture = box.Picture();
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                if ((picture.pixel(x, y) & 0xff) < 0xf0)
                    return true;
        return false;
    }
};

TEST_F(Preview, AnEmptyReportIsOneEmptyPage) {
    frmDocPreview& form = Open();
    EXPECT_EQ(form.Caption(), "Print Preview");
    EXPECT_EQ(form.txtTotalPages.Text(), "Total 1 pages");
    EXPECT_EQ(form.cboPageno.ListCount(), 1);
    EXPECT_EQ(form.cboPageno.Text(), "1");
    EXPECT_FALSE(form.cmdPrevPage.Enabled());
    EXPECT_FALSE(form.cmdNextPage.Enabled());
    EXPECT_FALSE(HasInk(form.pic2));
}

TEST_F(Preview, OpensOnPageOneAtAQuarter) {
    AddPictures(7, 500, 300);
    frmDocPreview& form = Open();
    EXPECT_EQ(form.txtTotalPages.Text(), "Total 3 pages");
    EXPECT_EQ(form.cboScale.Text(), "25");
    EXPECT_EQ(Shown(form), 5);
    EXPECT_TRUE(form.cmdZoomIn.Enabled());
    EXPECT_TRUE(form.cmdZoomOut.Enabled());
    Click(form.cmdZoomOut);
    EXPECT_EQ(Shown(form), 5);
    EXPECT_TRUE(form.cmdZoomOut.Enabled()) << "set at a change of the step alone";
    EXPECT_TRUE(HasInk(form.pic5));
    EXPECT_FALSE(form.picX.Visible());
}

TEST_F(Preview, PicturesHaveThePrintableSizeTimesTheStep) {
    frmDocPreview& form = Open();
    // 11500 by 16440 twips are 767 by 1096 pixels.
    EXPECT_EQ(form.picX.Width() / 15, 767);
    EXPECT_EQ(form.picX.Height() / 15, 1096);
    EXPECT_EQ(form.pic1.Width() / 15, 939);
    EXPECT_EQ(form.pic1.Height() / 15, 1342);
    EXPECT_EQ(form.pic2.Width() / 15, 767);
    EXPECT_EQ(form.pic3.Width() / 15, 575);
    EXPECT_EQ(form.pic4.Height() / 15, 548);
    EXPECT_EQ(form.pic5.Width() / 15, 192);
    EXPECT_EQ(form.pic5.Height() / 15, 274);
    EXPECT_EQ(form.DocWYSIWYG(RTB()), 9020);
    EXPECT_EQ(Edit().lineWrapColumnOrWidth(), 601);
}

TEST_F(Preview, ZoomGoesByButtonsAndByTheList) {
    frmDocPreview& form = Open();
    for (const char* scale : {"50", "75", "100", "150"}) {
        Click(form.cmdZoomIn);
        EXPECT_EQ(form.cboScale.Text(), scale);
    }
    EXPECT_EQ(Shown(form), 1);
    EXPECT_FALSE(form.cmdZoomIn.Enabled());
    Click(form.cmdZoomIn);
    EXPECT_EQ(Shown(form), 1);
    Click(form.cmdZoomOut);
    EXPECT_EQ(Shown(form), 2);
    EXPECT_TRUE(form.cmdZoomIn.Enabled());
    form.cboScale.SetListIndex(4);
    EXPECT_EQ(Shown(form), 5);
    EXPECT_FALSE(form.cmdZoomOut.Enabled());
    form.cboScale.SetListIndex(2);
    EXPECT_EQ(Shown(form), 3);
    EXPECT_TRUE(form.cmdZoomOut.Enabled());
}

TEST_F(Preview, APictureKeepsItsOffset) {
    frmDocPreview& form = Open();
    form.VScroll1.SetValue(120);
    form.HScroll1.SetValue(30);
    EXPECT_EQ(form.pic5.Top(), -120 * 15);
    EXPECT_EQ(form.pic5.Left(), -30 * 15);
    Click(form.cmdZoomIn);
    EXPECT_EQ(form.pic4.Top(), 0);
    EXPECT_EQ(form.VScroll1.Value(), 0);
    form.VScroll1.SetValue(1000);
    EXPECT_EQ(form.pic4.Top(), -1000 * 15);
    Click(form.cmdZoomOut);
    EXPECT_EQ(form.pic5.Top(), -120 * 15);
    EXPECT_EQ(form.VScroll1.Value(), 120);
    EXPECT_EQ(form.HScroll1.Value(), 30);
}

TEST_F(Preview, PagesAreTurnedByButtonsAndByTheList) {
    AddPictures(7, 500, 300);
    frmDocPreview& form = Open();
    const QImage first = form.pic3.Picture();
    Click(form.cmdNextPage);
    EXPECT_EQ(form.cboPageno.Text(), "2");
    EXPECT_TRUE(form.cmdPrevPage.Enabled());
    Click(form.cmdNextPage);
    EXPECT_EQ(form.cboPageno.Text(), "3");
    EXPECT_FALSE(form.cmdNextPage.Enabled());
    EXPECT_NE(form.pic3.Picture(), first) << "one picture on it, not three";
    form.cmdNextPage.Press();
    EXPECT_EQ(form.cboPageno.Text(), "3");
    form.cboPageno.SetListIndex(0);
    EXPECT_EQ(form.pic3.Picture(), first);
    EXPECT_FALSE(form.cmdPrevPage.Enabled());
    Click(form.cmdNextPage);
    Click(form.cmdPrevPage);
    EXPECT_EQ(form.cboPageno.Text(), "1");
    EXPECT_EQ(form.pic3.Picture(), first);
    form.FormPreviewPage(form.picX, 3);
    const QImage last = form.picX.Picture();
    form.FormPreviewPage(form.picX, 9);
    EXPECT_EQ(form.picX.Picture(), last);
}

TEST_F(Preview, APageWithoutExtentIsToldAndTheFormStays) {
    outside.paper = Paper();
    outside.ExpectMsgBox("Error occurred in sizing images. Cannot continue");
    Open();
    EXPECT_EQ(outside.lastStyle, 0);
    EXPECT_EQ(outside.lastTitle, "");
    EXPECT_TRUE(forms().IsLoaded("frmDocPreview"));
}

TEST_F(Preview, PrintsTheWholeReportAndCloses) {
    AddPictures(7, 500, 300);
    outside.ExpectPrinter("Trabeon Report", "");
    Click(Open().cmdPrint);
    EXPECT_TRUE(forms().IsLoaded("frmDocPreview")) << "the user drew back";
    Click(Open().cmdNextPage);
    outside.ExpectPrinter("Trabeon Report", (folder / "out.pdf").string());
    Click(Open().cmdPrint);
    EXPECT_FALSE(forms().IsLoaded("frmDocPreview"));
    EXPECT_EQ(Count(folder.read("out.pdf"), "/Type /Page\n"), 3);
}

TEST_F(Preview, APrintThatFailsIsTold) {
    outside.ExpectPrinter("Trabeon Report", (folder / "missing" / "out.pdf").string());
    outside.ExpectMsgBox(
        "The report could not be printed. See to the printer, or choose another name for the PDF "
        "file, then try again.");
    Click(Open().cmdPrint);
    EXPECT_TRUE(forms().IsLoaded("frmDocPreview"));
}

TEST_F(Preview, TheReportsMenuHoldsTheProgramUntilItIsClosed) {
    AddPictures(4, 500, 300);
    QTimer whenShown;
    QObject::connect(&whenShown, &QTimer::timeout, [&] {
        const auto* form = forms().Loaded<frmDocPreview>();
        if (form == nullptr || !form->Visible())
            return;
        whenShown.stop();
        EXPECT_EQ(QApplication::activeModalWidget(), Open().Widget());
        Open().Widget()->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(Open().Widget()));
        Open().cmdNextPage.SetFocus();
        Press(Open().cmdNextPage, Qt::Key_Space);
        EXPECT_TRUE(Open().cboPageno.HasFocus()) << "the button went off on the last page";
        Click(Open().cmdClose);
    });
    whenShown.start();
    Report().mnufilepreview.Choose();
    EXPECT_FALSE(whenShown.isActive());
    EXPECT_FALSE(forms().IsLoaded("frmDocPreview"));
    EXPECT_TRUE(forms().IsLoaded("frmReport"));
}

// A page costs that page: the last of many no more than the first.
TEST_F(Preview, APageOfALongReportComesAtOnce) {
    AddPictures(60, 600, 400);
    using Clock = std::chrono::steady_clock;
    const auto milliseconds = [](Clock::time_point since) {
        return std::chrono::duration<double, std::milli>(Clock::now() - since).count();
    };
    const auto opening = Clock::now();
    frmDocPreview& form = Open();
    RecordProperty("open", std::to_string(milliseconds(opening)));
    ASSERT_EQ(form.cboPageno.ListCount(), 30);
    double slowest = 0;
    for (const int page : {1, 15, 28, 29}) {
        const auto turning = Clock::now();
        form.cboPageno.SetListIndex(page);
        slowest = std::max(slowest, milliseconds(turning));
    }
    RecordProperty("slowest turn", std::to_string(slowest));
    EXPECT_LT(static_cast<double>(slowest), limit(1000));
}

}  // namespace
}  // namespace trabeon::test
