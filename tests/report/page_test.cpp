// Pages as numbers: where they begin, how many there are, where the text is on the sheet.
#include "report/pages.h"
#include "tests/report/report_fixture.h"
#include "tests/support/full_disk.h"
#include "tests/support/other_programs.h"
#include "toolkit/pages/page_canvas.h"

namespace trabeon::test {
namespace {

// The sheet of the tests less its margins: 601 by 930 dots of 1/96 inch.
constexpr TwipsRect sheetText{0, 0, 9020, 13960};

class PageTest : public ReportTest {
  protected:
    std::vector<int> Starts(const TwipsRect& area) {
        return splitIntoPages(RTB().TextLength(),
                              [&](int first) {
                                  return RTB().FormatRange(nullptr, {area, area, {}, first});
                              })
            .starts;
    }

    /// A page's ink in 1/96 inch from the corner of its canvas.
    void ExpectInk(const PageFormat& format, const QRectF& expected) {
        PictureCanvas canvas(format.page.right, format.page.bottom);
        RTB().FormatRange(&canvas, format);
        const QRect ink = inkOf(canvas.Picture());
        EXPECT_NEAR(ink.left() / 2.0, expected.left(), 2);
        EXPECT_NEAR(ink.top() / 2.0, expected.top(), 2);
        EXPECT_NEAR(ink.width() / 2.0, expected.width(), 2);
        EXPECT_NEAR(ink.height() / 2.0, expected.height(), 2);
    }
};

TEST_F(PageTest, APageTakesThePicturesThatFit) {
    using Positions = std::vector<int>;
    EXPECT_EQ(Starts(sheetText), (Positions{0})) << "an empty text is one page";
    EXPECT_TRUE(Print(RTB()));
    EXPECT_EQ(PrintedPages(), 1);
    AddPictures(3, 500, 310);
    EXPECT_EQ(Starts({0, 0, 9020, 930 * 15}), (Positions{0})) << "it is filled to its last dot";
    EXPECT_EQ(Starts({0, 0, 9020, 929 * 15}), (Positions{0, 4}));
    AddPictures(4, 500, 300);
    EXPECT_EQ(RTB().TextLength(), 13);
    EXPECT_EQ(Starts(sheetText), (Positions{0, 6, 12})) << "laid out anew";
    EXPECT_EQ(Starts({0, 0, 9020, 2 * 310 * 15}), (Positions{0, 4, 8, 12}));
    EXPECT_EQ(Starts({0, 0, 9020, 15}).size(), 7U);
    // Any position may begin a page.
    EXPECT_EQ(RTB().FormatRange(nullptr, {sheetText, sheetText, {}, 2}), 8);
    EXPECT_EQ(RTB().FormatRange(nullptr, {sheetText, sheetText, {}, 12}), 13);
    EXPECT_TRUE(Print(RTB()));
    EXPECT_EQ(PrintedPages(), 3);
    const auto pdf = folder.read("out.pdf");
    EXPECT_EQ(countOf(pdf, "DCTDecode"), 0) << "nothing of a picture is lost";
    EXPECT_NE(pdf.find("/Width 2000\n/Height 1240"), std::string::npos);
}

TEST_F(PageTest, APictureThatIsLargerThanThePageIsMadeToFit) {
    Add(2400, 600);
    Add(300, 3000);
    EXPECT_EQ(Starts(sheetText), (std::vector<int>{0, 2}));
    const TwipsRect page{0, 0, 11900, 16840}, drawing{1440, 1440, 10460, 15400};
    ExpectInk({page, drawing, {}, 0}, {96, 96, 601.3, 150.3});
    ExpectInk({page, drawing, {}, 2}, {96, 96, 93, 930});
}

TEST_F(PageTest, TheTextStandsInTheDrawingRectangle) {
    AddPictures(4, 400, 300);
    const TwipsRect page{0, 0, 11500, 16440}, drawing{1440, 1440, 10060, 15000};
    const double scale = 8620.0 / 9020;
    ExpectInk({page, drawing, sheetText, 0}, {96, 96, 400 * scale, 900 * scale});
    ExpectInk({page, drawing, sheetText, 6}, {96, 96, 400 * scale, 300 * scale});
    const TwipsRect none{1440, 1440, 1000, 15000};
    EXPECT_EQ(RTB().FormatRange(nullptr, {page, none, sheetText, 0}), 6);
    ExpectInk({page, none, sheetText, 0}, {});
}

TEST_F(PageTest, ScreenAndPaperBreakAlike) {
    for (const int high : {50, 180, 231, 232, 233, 309, 310, 311, 464, 466, 800, 1300}) {
        Select(0, RTB().TextLength());
        Cut();
        for (int i = 0; i < 7; ++i)
            Add(560, high, 1);
        EXPECT_TRUE(Print(RTB()));
        EXPECT_EQ(Preview().cboPageno.ListCount(), PrintedPages()) << "height " << high;
        Preview().Unload();
        Settle();
    }
}

TEST_F(PageTest, ThePrintLeavesAnInchFromTheEdgesOfTheSheet) {
    if (QStandardPaths::findExecutable("pdftoppm").isEmpty())
        GTEST_SKIP() << "needs poppler-utils";
    Add(601, 930);
    ASSERT_TRUE(Print(RTB()));
    const auto path = QString::fromStdString(folder.path().string());
    run("pdftoppm", {"-r", "96", "-png", "-singlefile", path + "/out.pdf", path + "/page"});
    const QRect ink = inkOf(QImage(path + "/page.png"));
    EXPECT_LE((ink.topLeft() - QPoint(97, 97)).manhattanLength(), 2);
    EXPECT_LE((ink.bottomRight() - QPoint(96 + 600, 96 + 929)).manhattanLength(), 3);
}

/// A page service that comes no further than its second page.
class StuckBox : public RichTextBox {
  public:
    using RichTextBox::RichTextBox;
    int FormatRange(PageCanvas* canvas, const PageFormat& format) override {
        RichTextBox::FormatRange(canvas, format);
        return 6;
    }
};

TEST_F(PageTest, APrintThatEndsEarlyIsTold) {
    StuckBox box(Report());
    box.SetLocked(false);
    outside.clipboardPicture = pictureOf(500, 300);
    for (int i = 0; i < 7; ++i)
        box.Paste();
    const auto stuck = Print(box);
    ASSERT_FALSE(stuck);
    EXPECT_EQ(
        stuck.refusal().sentence,
        "The print ends with page 2, because the rest could not be laid out. Cut the rest out "
        "of the report, then print again.");
    EXPECT_EQ(PrintedPages(), 2);

    EXPECT_FALSE(Print(box, "missing/out.pdf"));
    folder.write("out.pdf", "old");
    const auto before = folder.contents();
    const FullDisk disk(4096);
    EXPECT_EQ(Print(box).refusal().sentence, "The report could not be printed to \"" +
                                                 (folder / "out.pdf").string() +
                                                 "\". Choose another file, then try again.");
    EXPECT_EQ(folder.contents(), before);
}

}  // namespace
}  // namespace trabeon::test
