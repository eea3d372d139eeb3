// The program with an editor in it, used as a person does: keys go to whatever has the focus, rows
// and titles are clicked where they show.
#pragma once

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <map>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"
#include "toolkit/controls/list_view.h"
#include "toolkit/controls/picture_box.h"
#include "toolkit/controls/text_box.h"

namespace trabeon::test {

class EditorTest : public ProgramTest {
  protected:
    EditorTest() { Start(); }

    /// As its menu entry shows it.
    template <class F>
    F& Open() {
        forms().Show(F::Name);
        Settle();
        return forms().Get<F>();
    }
    /// Anew, from the files as they are now.
    template <class F>
    F& Reopen() {
        forms().Unload(F::Name);
        Settle();
        return Open<F>();
    }
    /// The data-changed flag, which is 0 from then on.
    int TakeFlag() { return std::exchange(context().dataChanged, 0); }
    /// In twips, to a pixel.
    static void ExpectBounds(const Placement& placed, int left, int top, int width, int height) {
        for (const auto& [got, expected] : {std::pair{placed.Left(), left},
                                            {placed.Top(), top},
                                            {placed.Width(), width},
                                            {placed.Height(), height}})
            EXPECT_NEAR(got, expected, TwipsPerPixel);
    }
    static void Fill(std::initializer_list<TextBox*> boxes, const char* const* texts) {
        for (auto* box : boxes)
            box->SetText(*texts++);
    }

    /// '\n' is Enter, '\t' is Tab, '\b' is Backspace.
    static void Keys(const char* keys) {
        static const std::map<char, Qt::Key> named{
            {'\n', Qt::Key_Return}, {'\t', Qt::Key_Tab}, {'\b', Qt::Key_Backspace}};
        for (; *keys != 0; ++keys) {
            ASSERT_NE(QApplication::focusWidget(), nullptr);
            if (const auto key = named.find(*keys); key != named.end())
                Key(key->second);
            else
                QTest::keyClick(QApplication::focusWidget(), *keys);
        }
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
    static void Alt(Qt::Key key) { Key(key, Qt::AltModifier); }
    /// Takes the place of what the box with the focus has selected.
    static void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        Key(Qt::Key_V, Qt::ControlModifier);
    }

    static QTreeWidget& Tree(const ListView& list) {
        return *static_cast<QTreeWidget*>(list.Widget());
    }
    static QPoint Place(const ListView& list, int row) {
        Tree(list).scrollToItem(Tree(list).topLevelItem(row - 1));
        return Tree(list).visualItemRect(Tree(list).topLevelItem(row - 1)).center();
    }
    static void ClickRow(const ListView& list, int row) {
        Tree(list).setFocus(Qt::MouseFocusReason);
        QTest::mouseClick(Tree(list).viewport(), Qt::LeftButton, {}, Place(list, row));
    }
    static void DoubleClickRow(const ListView& list, int row) {
        const QPoint place = Place(list, row);
        ClickRow(list, row);
        QTest::mouseDClick(Tree(list).viewport(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(Tree(list).viewport(), Qt::LeftButton, {}, place);
    }
    static void ClickTitle(const ListView& list, int column) {
        const QHeaderView& header = *Tree(list).header();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(column - 1) + 10, 5});
        Settle();
    }

    /// The texts of one column in the order that shows, apart by bars; column 1 is the first.
    static std::string Shown(const ListView& list, int column) {
        std::string texts;
        for (int i = 1; i <= list.ListItems.Count(); ++i)
            texts += (i > 1 ? "|" : "") + list.ListItems(i).SubItems(column - 1);
        return texts;
    }

    static std::string MemberRows(int count) {
        std::string rows;
        for (int i = 1; i <= count; ++i)
            rows += std::to_string(i) + ",200,2,6,\"a description of the usual length\"\r\n";
        return rows;
    }

    /// Every control stands inside its form and none on another; captions are not cut.
    static void ExpectTidy(const Form& form) {
        SCOPED_TRACE(form.Caption());
        const QList<QWidget*> placed =
            form.Canvas()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
        for (const auto* widget : placed) {
            const auto* name = widget->metaObject()->className();
            EXPECT_TRUE(form.Canvas()->rect().contains(widget->geometry())) << name;
            for (const auto* other : placed)
                EXPECT_TRUE(widget == other || !widget->geometry().intersects(other->geometry()))
                    << name << " on " << other->metaObject()->className();
        }
        for (const auto* label : form.Canvas()->findChildren<QLabel*>())
            EXPECT_LE(label->sizeHint().width(), label->width()) << label->text().toStdString();
    }
    /// All columns show.
    static void ExpectFits(const ListView& list) {
        EXPECT_LE(Tree(list).header()->length(), Tree(list).viewport()->width());
    }

    static std::vector<Stroke> StrokesOf(const PictureBox& picture, Stroke::Kind kind) {
        std::vector<Stroke> found;
        for (const auto& stroke : picture.Drawn())
            if (stroke.kind == kind)
                found.push_back(stroke);
        return found;
    }
    static void ExpectLine(const Stroke& stroke, double x1, double y1, double x2, double y2) {
        EXPECT_EQ(stroke.kind, Stroke::Kind::Line);
        for (const auto& [got, expected] :
             {std::pair{stroke.x1, x1}, {stroke.y1, y1}, {stroke.x2, x2}, {stroke.y2, y2}})
            EXPECT_NEAR(got, expected, 1e-6);
    }
};

}  // namespace trabeon::test
