// The program with an editor in it, used as a person does: keys go to whatever has the focus, rows
// and titles are clicked where they show.
#pragma once

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QTreeWidget>
#include <string>
#include <vector>

#include "tests/support/program_fixture.h"
#include "toolkit/list_view.h"

namespace trabeon::test {

class EditorTest : public ProgramTest {
  protected:
    template <class F>
    F& Open(const QString& entry) {
        Choose(entry);
        Settle();
        return forms().Get<F>();
    }

    /// '\n' is Enter, '\t' is Tab, '\b' is Backspace.
    static void Keys(const char* keys) {
        for (; *keys != 0; ++keys) {
            QWidget* focus = QApplication::focusWidget();
            ASSERT_NE(focus, nullptr);
            if (*keys == '\n')
                QTest::keyClick(focus, Qt::Key_Return);
            else if (*keys == '\t')
                QTest::keyClick(focus, Qt::Key_Tab);
            else if (*keys == '\b')
                QTest::keyClick(focus, Qt::Key_Backspace);
            else
                QTest::keyClick(focus, *keys);
        }
    }
    static void Key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(QApplication::focusWidget(), key, held);
    }
    /// Takes the place of what the box with the focus has selected.
    static void Paste(const QString& text) {
        QGuiApplication::clipboard()->setText(text);
        Key(Qt::Key_V, Qt::ControlModifier);
    }

    static QTreeWidget& Tree(const ListView& list) {
        return *static_cast<QTreeWidget*>(list.Widget());
    }
    static QPoint Place(const ListView& list, int row) {
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

    /// The texts of one column in the order that shows; column 1 is the first.
    static std::vector<std::string> Shown(const ListView& list, int column) {
        std::vector<std::string> texts;
        for (int i = 1; i <= list.ListItems.Count(); ++i)
            texts.push_back(list.ListItems(i).SubItems(column - 1));
        return texts;
    }
    using Texts = std::vector<std::string>;

    /// From here on a rewrite of that file fails.
    void BlockWriting(const std::string& scratch) {
        std::filesystem::create_directory(folder / (scratch + ".new"));
        outside.ExpectMsgBox("\"" + (folder / scratch).string() +
                             "\" could not be written (Is a directory). What stood there before is "
                             "unchanged; make room or choose another folder, then try again.");
    }
};

}  // namespace trabeon::test
