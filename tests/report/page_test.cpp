// Pages as numbers: where they begin, how many there are, where on the sheet the text stands.
#include "report/PrintReport.h"
#include "tests/report/report_fixture.h"
#include "toolkit/page_canvas.h"

namespace trabeon::test {
namespace {

// The sheet of the tests less its margins: 601 by 930 dots of 1/96 inch.
constexpr TwipsRect sheetText{0, 0, 9020, 13960};

class Pages : public ReportTest {
  protected:
    std::vector<int> Starts(const TwipsRect& area) {
        PageFormat format{area, area, {}, 0};
        std::vector<int> starts;
        do {
            starts.push_back(format.first);
            format.first = RTB().FormatRange(nullptr, format);
        } while (format.first < RTB().TextLength());
        return starts;
    }

    /// Where a page has ink, in 1/96 inch from the corner of its canvas.
    QRectF InkOf(const PageFormat& format) {
        PictureCanvas canvas(format.page.right, format.page.bottom);
        RTB().FormatRange(&canvas, format);
        const QImage page = canvas.Picture();
        QRect ink;
        for (int y = 0; y < page.height(); ++y)
            for (int x = 0; x < page.width(); ++x)
                if ((page.pixel(x, y) & 0xff) < 0xc0)
                    ink |= QRect(x, y, 1, 1);
        return {ink.x() / 2.0, ink.y() / 2.0, ink.width() / 2.0, ink.height() / 2.0};
    }

    static void ExpectNear(const QRectF& ink, const QRectF& expected) {
        EXPECT_NEAR(ink.left(), expected.left(), 2);
        EXPECT_NEAR(ink.top(), expected.top(), 2);
        EXPECT_NEAR(ink.right(), expected.right(), 2);
        EXPECT_NEAR(ink.bottom(), expected.bottom(), 2);
    }

    std::string Print(Printed expected = Printed::yes) {
        outside.ExpectPrinter("Trabeon Report", (folder / "out.pdf").string());
        EXPECT_EQ(PrintReport(RTB(), 1440, 1440, 1440, 1440), expected);
        return folder.read("out.pdf");
    }
    static int PagesOf(const std::string& pdf) {
        return Count(pdf, "/Type /Page\n") + Count(pdf, "/Type/Page\n");
    }
};

TEST_F(Pages, AnEmptyTextIsOnePage) {
    EXPECT_EQ(RTB().FormatRange(nullptr, {sheetText, sheetText, {}, 0}), 0);
    EXPECT_EQ(Starts(sheetText), (std::vector<int>{0}));
    EXPECT_EQ(PagesOf(Print()), 1);
}

TEST_F(Pages, APageTakesThePicturesThatFit) {
    AddPictures(7, 500, 300);
    EXPECT_EQ(RTB().TextLength(), 13);
    EXPECT_EQ(Starts(sheetText), (std::vector<int>{0, 6, 12}));
    EXPECT_EQ(Starts({0, 0, 9020, 2 * 310 * 15}), (std::vector<int>{0, 4, 8, 12}));
    // Any position may begin a page.
    EXPECT_EQ(RTB().FormatRange(nullptr, {sheetText, sheetText, {}, 2}), 8);
    EXPECT_EQ(RTB().FormatRange(nullptr, {sheetText, sheetText, {}, 12}), 13);
}

TEST_F(Pages, APageIsFilledToItsLastDot) {
    AddPictures(3, 500, 310);
    EXPECT_EQ(Starts({0, 0, 9020, 930 * 15}), (std::vector<int>{0}));
    EXPECT_EQ(Starts({0, 0, 9020, 929 * 15}), (std::vector<int>{0, 4}));
}

TEST_F(Pages, APictureThatIsLargerThanThePageIsMadeToFit) {
    Add(2400, 600);
    Add(300, 3000);
    EXPECT_EQ(Starts(sheetText), (std::vector<int>{0, 2}));
    PageFormat format{{0, 0, 11900, 16840}, {1440, 1440, 10460, 15400}, {}, 0};
    ExpectNear(InkOf(format), {96, 96, 601.3, 150.3});
    format.first = 2;
    ExpectNear(InkOf(format), {96, 96, 93, 930});
}

TEST_F(Pages, AChangeOfTheTextLaysItOutAnew) {
    AddPictures(3, 500, 300);
    EXPECT_EQ(Starts(sheetText).size(), 1U);
    Add(500, 300);
    EXPECT_EQ(Starts(sheetText).size(), 2U);
}

TEST_F(Pages, TheTextStandsInTheDrawingRectangle) {
    AddPictures(4, 400, 300);
    const TwipsRect page{0, 0, 11500, 16440};
    const TwipsRect drawing{1440, 1440, 10060, 15000};
    const double scale = 8620.0 / 9020;
    ExpectNear(InkOf({page, drawing, sheetText, 0}), {96, 96, 400 * scale, 900 * scale});
    ExpectNear(InkOf({page, drawing, sheetText, 6}), {96, 96, 400 * scale, 300 * scale});
    const TwipsRect none{1440, 1440, 1000, 15000};
    EXPECT_EQ(RTB().FormatRange(nullptr, {page, none, sheetText, 0}), 6);
    EXPECT_TRUE(InkOf({page, none, sheetText, 0}).isEmpty());
}

TEST_F(Pages, ScreenAndPaperBreakAlike) {
    for (const int high : {50, 180, 231, 232, 233, 309, 310, 311, 464, 466, 800, 1300}) {
        RTB().SetSelection(0, RTB().TextLength());
        RTB().SetSelText("");
        AddPictures(7, 560, high);
        frmDocPreview& preview = forms().Get<frmDocPreview>();
        const int shown = preview.cboPageno.ListCount();
        EXPECT_EQ(PagesOf(Print()), shown) << "pictures of height " << high;
        preview.Unload();
        Settle();
    }
}

TEST_F(Pages, ThePrintHasSharpPicturesWithoutLoss) {
    AddPictures(7, 500, 300);
    const auto pdf = Print();
    EXPECT_EQ(PagesOf(pdf), 3);
    EXPECT_EQ(Count(pdf, "DCTDecode"), 0);
    EXPECT_NE(pdf.find("/Width 1000\n/Height 600"), std::string::npos);
}

TEST_F(Pages, APrinterThatCannotBeOpenedIsAFailure) {
    Add(100, 100);
    outside.ExpectPrinter("Trabeon Report", (folder / "missing" / "out.pdf").string());
    EXPECT_EQ(PrintReport(RTB(), 1440, 1440, 1440, 1440), Printed::failed);
    folder.write("out.pdf", "old");
    std::filesystem::create_symlink("/dev/full", folder / "out.pdf.new");
    EXPECT_EQ(Print(Printed::failed), "old") << "the disk is full";
    outside.ExpectPrinter("Trabeon Report", "");
    EXPECT_EQ(PrintReport(RTB(), 1440, 1440, 1440, 1440), Printed::userDrewBack);
}

}  // namespace
}  // namespace trabeon::test
