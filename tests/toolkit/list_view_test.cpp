// The list view: which row is selected, how rows sort, and that each keeps its place in the file.
#include "toolkit/list_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>
#include <QTreeWidget>

#include "tests/support/gui_fixture.h"
#include "toolkit/form.h"

namespace trabeon {
namespace {

struct Nothing {};

class frmList : public Form {
  public:
    static constexpr const char* Name = "frmList";
    explicit frmList(Nothing&) : Form("List") {
        list.Move(0, 0, 4500, 3000);
        list.Click = [this] { log += 'c'; };
        list.DblClick = [this] { log += 'd'; };
        list.ColumnClick = [this](int column) { log += std::to_string(column); };
    }

    ListView list{*this, {{"Member", 1235}, {"a", 1058}}};
    std::string log;
};

class ListViewTest : public GuiTest {
  protected:
    ListViewTest() {
        forms.Register<frmList>(nothing);
        Settle();
    }

    frmList& form() { return forms.Get<frmList>(); }
    ListView& list() { return form().list; }
    QTreeWidget& tree() { return *static_cast<QTreeWidget*>(list().Widget()); }
    void Add(const std::string& text, const std::string& a) {
        list().ListItems.Add(text).SetSubItems(1, a);
    }
    void AddThree() {
        Add("Member  2", "9");
        Add("Member  10", "10");
        Add("Member  1", "b");
    }
    std::string Shown() {
        std::string all;
        for (int i = 1; i <= list().ListItems.Count(); ++i)
            all += std::to_string(list().ListItems(i).FilePosition());
        return all;
    }
    QPoint At(int index) { return tree().visualItemRect(tree().topLevelItem(index - 1)).center(); }
    void Click(int index) { QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, At(index)); }

    Nothing nothing;
};

TEST_F(ListViewTest, RowsReadBackWhatWasSet) {
    AddThree();
    EXPECT_EQ(list().ListItems.Count(), 3);
    EXPECT_EQ(list().ListItems(2).Text(), "Member  10");
    EXPECT_EQ(list().ListItems(2).SubItems(1), "10");
    EXPECT_FALSE(list().ListItems(4));
    list().ListItems.Clear();
    EXPECT_EQ(list().ListItems.Count(), 0);
}

TEST_F(ListViewTest, SortsAsTextByTheKeyAndStaysSoWhenTheSortGoesOff) {
    AddThree();
    list().SetSortKey(1);
    list().SetSorted(true);
    EXPECT_EQ(Shown(), "213");  // "10" before "9" before "b"
    list().SetSortOrder(ListSortOrder::Falling);
    EXPECT_EQ(Shown(), "312");
    list().SetSortKey(0);
    EXPECT_EQ(Shown(), "123");
    list().SetSortOrder(ListSortOrder::Rising);
    EXPECT_EQ(Shown(), "321");
    list().SetSorted(false);
    EXPECT_EQ(Shown(), "321");
    list().SetSortKey(1);
    EXPECT_EQ(Shown(), "321");
    Add("Member  0", "0");
    EXPECT_EQ(Shown(), "3214");
    list().ListItems.Clear();
    AddThree();
    EXPECT_EQ(Shown(), "123");
}

TEST_F(ListViewTest, ARowAddedToASortedListTakesItsPlaceThere) {
    list().SetSorted(true);
    AddThree();
    EXPECT_EQ(Shown(), "321");
    EXPECT_EQ(list().ListItems(1).Index(), 1);
    list().ListItems(1).SetSubItems(1, "c");
    EXPECT_EQ(list().ListItems.Add("Member  11").Index(), 3);
}

TEST_F(ListViewTest, TheSelectedRowKeepsItsPlaceInTheFileThroughASort) {
    AddThree();
    list().SetSelectedItem(list().ListItems(2));
    EXPECT_EQ(list().SelectedItem().Index(), 2);
    list().SetSorted(true);
    list().SetSortOrder(ListSortOrder::Falling);
    list().SetSortKey(1);
    EXPECT_EQ(list().SelectedItem().Text(), "Member  10");
    EXPECT_EQ(list().SelectedItem().Index(), 3);
    EXPECT_EQ(list().SelectedItem().FilePosition(), 2);
}

TEST_F(ListViewTest, TheFirstRowCountsAsSelectedWhileNoneIs) {
    EXPECT_FALSE(list().SelectedItem());
    EXPECT_EQ(list().SelectedItem().Index(), 0);
    EXPECT_EQ(list().SelectedItem().FilePosition(), 0);
    AddThree();
    EXPECT_EQ(list().SelectedItem().FilePosition(), 1);
    list().SetSelectedItem(list().ListItems(3));
    list().ListItems.Clear();
    AddThree();
    Settle();
    EXPECT_TRUE(tree().topLevelItem(0)->isSelected());  // and the user sees it
}

TEST_F(ListViewTest, TheUserClicksRowsTitlesAndTheSpaceBelow) {
    AddThree();
    list().SetSelectedItem(list().ListItems(2));  // code fires nothing
    list().SetSorted(true);
    list().SetSorted(false);
    Settle();
    Click(3);
    EXPECT_EQ(list().SelectedItem().Index(), 3);
    QTest::mouseClick(tree().viewport(), Qt::LeftButton, {}, {10, tree().viewport()->height() - 4});
    EXPECT_EQ(list().SelectedItem().Index(), 3);
    EXPECT_EQ(form().log, "cc");
    const QHeaderView* header = tree().header();
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                      {header->sectionViewportPosition(1) + 20, 5});
    EXPECT_EQ(form().log, "cc2");
}

TEST_F(ListViewTest, ADoubleClickFiresOnARowOnly) {
    AddThree();
    Settle();
    Click(2);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, At(2));
    QTest::mouseRelease(tree().viewport(), Qt::LeftButton, {}, At(2));
    EXPECT_EQ(form().log, "cd");
    EXPECT_EQ(list().SelectedItem().Index(), 2);
    const QPoint below(10, tree().viewport()->height() - 4);
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(form().log.find('d'), form().log.rfind('d'));
    list().DblClick = [this] { list().ListItems.Clear(); };  // it may empty the list
    QTest::mouseDClick(tree().viewport(), Qt::LeftButton, {}, At(2));
    EXPECT_EQ(list().ListItems.Count(), 0);
}

TEST_F(ListViewTest, AnArrowKeyChoosesARowAndCountsAsAClick) {
    AddThree();
    list().SetSelectedItem(list().ListItems(1));
    QTest::keyClick(list().Widget(), Qt::Key_Down);
    EXPECT_EQ(list().SelectedItem().Index(), 2);
    EXPECT_EQ(form().log, "c");
}

TEST_F(ListViewTest, ATextThatIsCutShowsWholeUnderThePointer) {
    Add("short", std::string(200, 'x'));
    Settle();
    const auto hover = [this](int column) {
        QToolTip::hideText();
        const QModelIndex index = tree().model()->index(0, column);
        const QPoint at = tree().visualRect(index).center();
        QHelpEvent event(QEvent::ToolTip, at, tree().viewport()->mapToGlobal(at));
        QApplication::sendEvent(tree().viewport(), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(hover(0), "");
    EXPECT_TRUE(hover(1).contains(QString(200, 'x')));
    QToolTip::hideText();
}

TEST_F(ListViewTest, CtrlCCopiesTheSelectedRows) {
    AddThree();
    list().SetMultiSelect(true);
    list().SetSelectedItem(list().ListItems(2));
    QTest::keyClick(list().Widget(), Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(list().Widget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "Member  10\t10\nMember  1\tb\n");
}

TEST_F(ListViewTest, AColouredRowWithASignKeepsItsTextsAndItsHeight) {
    AddThree();
    Settle();
    const int high = tree().visualItemRect(tree().topLevelItem(1)).height();
    list().ListItems(2).SetForeColor(0xA61B1B);
    list().ListItems(2).SetWarningSign(true);
    Settle();
    const QTreeWidgetItem& row = *tree().topLevelItem(1);
    EXPECT_EQ(row.foreground(0).color(), QColor(0xA61B1B));
    EXPECT_EQ(row.foreground(1).color(), QColor(0xA61B1B));
    EXPECT_FALSE(row.icon(0).isNull());
    EXPECT_EQ(list().ListItems(2).Text(), "Member  10");
    EXPECT_EQ(tree().visualItemRect(&row).height(), high);
    EXPECT_LE(tree().iconSize().height(), high);
    EXPECT_TRUE(tree().topLevelItem(0)->icon(0).isNull());
    list().ListItems(2).SetWarningSign(false);
    EXPECT_TRUE(row.icon(0).isNull());
}

TEST_F(ListViewTest, WrappedTitlesHaveRoomForTwoLines) {
    const int high = tree().header()->height();
    list().SetWrapsTitles(true);
    Settle();
    EXPECT_GE(tree().header()->height(), 2 * tree().header()->fontMetrics().lineSpacing());
    EXPECT_GT(tree().header()->height(), high);
    EXPECT_EQ(tree().headerItem()->text(0), "Member");
}

TEST_F(ListViewTest, BlanksAroundANumberStayOutOfTheCopy) {
    Add(" 0.6", "1.40E+01 ");
    list().SetSelectedItem(list().ListItems(1));
    QTest::keyClick(list().Widget(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(outside.clipboardText, "0.6\t1.40E+01\n");
}

}  // namespace
}  // namespace trabeon
