#include <gtest/gtest.h>
#include <quazip.h>
#include <quazipfile.h>

#include <QBuffer>
#include <QXmlStreamReader>
#include <cmath>

#include "output/docx_writer.h"
#include "output/lotus_document.h"
#include "output/lotus_output.h"
#include "output/table_layout.h"
#include "output/word_document.h"
#include "output/word_output.h"
#include "tests/output/recording.h"
#include "tests/support/scripted_outside.h"
#include "tests/support/temporary_folder.h"

namespace trabeon::test {
namespace {

std::string textOf(const std::vector<TextRun>& runs) {
    std::string text;
    for (const auto& run : runs)
        text += run.text;
    return text;
}

/// A line a paragraph; a table as its cells; a picture as its place.
std::vector<std::string> outline(const Document& document) {
    std::vector<std::string> lines;
    for (const auto& block : document.blocks) {
        std::string line;
        if (const auto* table = std::get_if<DocumentTable>(&block))
            for (const auto& row : table->rows)
                for (const auto& cell : row)
                    line += "|" + textOf(cell) + (&cell == &row.back() ? "/" : "");
        else {
            const auto& paragraph = std::get<Paragraph>(block);
            line = textOf(paragraph.runs);
            for (const auto& picture : paragraph.pictures)
                line += "<" + std::to_string(std::lround(picture.left)) + ">";
        }
        if (!line.empty())
            lines.push_back(line);
    }
    return lines;
}

using Lines = std::vector<std::string>;

class PaintingCharts : public RecordingCharts {
  public:
    using RecordingCharts::RecordingCharts;
    void CopyMoment(int) override { paint(200, 100); }
    void CopyShear(int) override { paint(200, 100); }
    void CopyContinuousMoment() override { paint(2000, 900); }
    void CopyContinuousShear() override { paint(2000, 900); }

  private:
    static void paint(int width, int height) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::red);
        Outside::Current().PutPicture(image);
    }
};

class Documents : public testing::Test {
  protected:
    Documents() {
        folder.write("Joint.txt", "1,Fixed,\"Wall, west\"\r\n2,Fixed,\"None\"\r\n");
        folder.write("BM.txt", "Span 1 \r\n0,1,2\r\n1,2,3\r\n1,2,4\r\n");
    }
    template <class Output, class Processor>
    Document Write(const OutputKinds& kinds, const ProjectTitle& title = {"P", "D", "B1"}) {
        Calls ignored;
        PaintingCharts charts(ignored, 2);
        const OutputSource source{folder.path(), title, 1, charts};
        Processor objWord;
        Output writer(source, objWord);
        EXPECT_TRUE(writeProject(source, kinds, writer));
        return objWord.document();
    }
    static QByteArray Part(const std::string& docx, const QString& name) {
        QByteArray bytes = QByteArray::fromStdString(docx);
        QBuffer buffer(&bytes);
        QuaZip zip(&buffer);
        if (!zip.open(QuaZip::mdUnzip) || !zip.setCurrentFile(name))
            return "(no such part)";
        QuaZipFile file(&zip);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    static constexpr OutputKinds joints{true,  false, false, false, false,
                                        false, false, false, false};
    static constexpr OutputKinds pictures{false, false, false, false, false,
                                          true,  true,  false, false};
    ScriptedOutside outside;
    TemporaryFolder folder;
};

TEST_F(Documents, WordTurnsLinesIntoCells) {
    const auto document = Write<WordOutput, WordDocument>(joints);
    EXPECT_EQ(outline(document), (Lines{"TRABEON (P) by D", "B1", "Joints",
                                        "|Joint|Type|Name/|1|Fixed|Wall, west/|2|Fixed|None/"}));
    for (const auto& block : document.blocks)
        if (const auto* table = std::get_if<DocumentTable>(&block)) {
            EXPECT_TRUE(table->headed);
            EXPECT_EQ(table->rows[1][0][0].style.points, 7);
            EXPECT_TRUE(table->rows[1][0][0].style.bold);
            EXPECT_FALSE(table->rows[1][1][0].style.bold);
        }
    const auto& title = std::get<Paragraph>(document.blocks[0]).runs[0].style;
    EXPECT_TRUE(title.underline);
    EXPECT_EQ(title.face, "Arial Black");
}

TEST_F(Documents, BothPutTheSecondDiagramOfAPairThreeInchesOn) {
    const Lines expected{"TRABEON (P) by D",
                         "B1",
                         "Bending Moments & Shear Force Diagrams By Members",
                         "Member  1",
                         "<0><216>",
                         "Member  2",
                         "<0><216>",
                         "Continuous Bending Moment & Shear Force Diagrams",
                         "<0>",
                         "<0>"};
    EXPECT_EQ(outline(Write<WordOutput, WordDocument>(pictures)), expected);
    EXPECT_EQ(outline(Write<LotusOutput, LotusDocument>(pictures)), expected);
}

TEST_F(Documents, LotusTablesHaveTheRowsTypedAndNoMore) {
    OutputKinds kinds = joints;
    kinds.values = true;
    const auto document = Write<LotusOutput, LotusDocument>(kinds);
    EXPECT_EQ(
        outline(document),
        (Lines{"TRABEON (P) by D", "B1", "Joints", "|1|Fixed|Wall, west/|2|Fixed|None/",
               "Bending Moment & Shear Force Values", "|Span 1||/|x|M|S/|0|1|2/|1|2|3/|1|2|4/"}));
    const auto& table = std::get<DocumentTable>(document.blocks.at(document.blocks.size() - 4));
    EXPECT_TRUE(table.rows[2][0][0].style.bold);
    EXPECT_FALSE(table.rows[2][1][0].style.bold);
    EXPECT_TRUE(table.rows[3][0][0].style.bold);
}

/// Each character is half as wide as the type is high.
double half(const std::string& text, const TextStyle&) {
    return 0.5 * static_cast<double>(text.size());
}

DocumentTable tableOf(const Lines& row) {
    DocumentTable table{row.size(), {{}}};
    for (const auto& text : row)
        table.rows[0].push_back({{text, {}}});
    return table;
}

TEST(TableLayout, TakesTheRoomItWantsThenBreaksThenShrinksThenSplits) {
    const auto table = tableOf({"ab", "abcd abcd"});
    const double margins = 2 * cellMargin + cellSlack;
    auto layout = layOut(table, 500, half);
    EXPECT_EQ(layout.points, 10);
    EXPECT_NEAR(layout.strips.at(0).widths[1], 45 + margins, 1e-9);

    layout = layOut(table, 10 + 25 + 2 * margins, half);  // five more than its words need
    EXPECT_EQ(layout.points, 10);
    EXPECT_NEAR(layout.strips.at(0).widths[1], 25 + margins, 1e-9);

    const auto wide = tableOf({"ab", "abcd", "abcd", "abcd"});
    layout = layOut(wide, 8 + 48 + 4 * margins, half);
    EXPECT_EQ(layout.points, 8);
    EXPECT_EQ(layout.strips.size(), 1U);

    layout = layOut(wide, 7 + 28 + 3 * margins, half);
    EXPECT_EQ(layout.points, 7);
    ASSERT_EQ(layout.strips.size(), 2U);
    EXPECT_EQ(layout.strips[0].columns, (std::vector<std::size_t>{0, 1, 2}));
    EXPECT_EQ(layout.strips[1].columns, (std::vector<std::size_t>{0, 3}));
}

TEST_F(Documents, TheFileIsLandscapeLetterWithItsPictures) {
    const auto docx = docxBytes(Write<LotusOutput, LotusDocument>(pictures));
    ASSERT_TRUE(docx);
    const auto body = Part(*docx, "word/document.xml");
    QXmlStreamReader xml(body);
    int drawings = 0;
    double widest = 0, tallest = 0;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        drawings += xml.name() == QString("drawing");
        if (xml.qualifiedName() == QString("wp:extent")) {
            widest = std::max(widest, xml.attributes().value("cx").toDouble() / 12700);
            tallest = std::max(tallest, xml.attributes().value("cy").toDouble() / 12700);
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(drawings, 6);
    EXPECT_LE(widest, 648.01);
    EXPECT_LE(tallest, 612 - 2 * 89.85);
    EXPECT_TRUE(body.contains("<w:pgSz w:w=\"15840\" w:h=\"12240\" w:orient=\"landscape\"/>"));
    EXPECT_TRUE(body.contains("Diagrams By Members"));
    EXPECT_TRUE(body.contains("&amp; Shear"));
    EXPECT_TRUE(Part(*docx, "word/media/picture6.png").startsWith("\x89PNG"));
    EXPECT_TRUE(Part(*docx, "word/_rels/document.xml.rels").contains("media/picture6.png"));
    folder.write("Joint.txt", "1,Fixed,\"M\xFChle\x1B\"\r\n");
    const auto mixed =
        docxBytes(Write<WordOutput, WordDocument>(joints, {"Tr\xE4ger", "Jörg", "B\x01"}));
    const auto texts = Part(*mixed, "word/document.xml");
    for (const auto* text : {"TRABEON (Träger) by Jörg<", ">B?<", ">Mühle?<"})
        EXPECT_TRUE(texts.contains(text)) << text;
    const auto wide = docxBytes({{}, {tableOf(Lines(40, "0123456789"))}});
    EXPECT_TRUE(Part(*wide, "word/document.xml").contains("</w:tbl><w:p>")) << "or they are one";
}

}  // namespace
}  // namespace trabeon::test
