// The list view: which row is selected, how rows sort, and that each keeps its place in the file.
#include "toolkit/controls/list_view.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QToolTip>
#include <QTreeWidget>

#include "tests/toolkit/controls_fixture.h"

namespace trabeon {
namespace {

class ListViewTest : public ControlsTest {
  protected:
    ListViewTest() {
        list.Move(0, 0, 4500, 3000);
        list.Click = [this] { log += 'c'; };
        list.DblClick = [this] { log += 'd'; };
        list.ColumnClick = [this](int column) { log += std::to_string(column); };
        AddThree();
        Settle();
    }

    void Add(const std::string& text, const std::string& a) {
        list.ListItems.Add(text).SetSubItems(1, a);
    }
    void AddThree() {
        Add("Member  2", "9");
        Add("Member  10", "10");
        Add("Member  1", "b");
    }
    void Select(int index) { list.SetSelectedItem(list.ListItems(index)); }
    // The rows' places in the file in the order that shows.
    std::string Shown() {
        std::string all;
        for (int i = 1; i <= list.ListItems.Count(); ++i)
            all += std::to_string(list.ListItems(i).FilePosition());
        return all;
    }
    QPoint At(int row) { return tree.visualItemRect(tree.topLevelItem(row - 1)).center(); }
    QPoint Below() { return {10, tree.viewport()->height() - 4}; }
    void ClickAt(QPoint at) { QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, at); }
    void DoubleClickAt(QPoint at) {
        QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseRelease(tree.viewport(), Qt::LeftButton, {}, at);
    }

    ListView list{Bench(), {{"Member", 1235}, {"a", 1058}}};
    QTreeWidget& tree = *static_cast<QTreeWidget*>(list.Widget());
    std::string log;
};

TEST_F(ListViewTest, SortsAsTextAndKeepsTheSelectedRowAndItsPlaceInTheFile) {
    EXPECT_EQ(list.SelectedItem().FilePosition(), 1) << "the first counts while none is selected";
    Select(2);
    list.SetSortKey(1);
    list.SetSorted(true);
    EXPECT_EQ(Shown(), "213");  // "10" before "9" before "b"
    list.SetSortOrder(ListSortOrder::Falling);
    EXPECT_EQ(Shown(), "312");
    EXPECT_EQ(list.SelectedItem().FilePosition(), 2);
    EXPECT_EQ(list.SelectedItem().Index(), 3);
    list.SetSorted(false);
    list.SetSortKey(0);
    Add("Member  0", "0");
    EXPECT_EQ(Shown(), "3124") << "the order stays when the sort goes off";
    EXPECT_FALSE(list.ListItems(5));
    list.ListItems.Clear();
    EXPECT_EQ(list.SelectedItem().Index() + list.SelectedItem().FilePosition(), 0);
}

TEST_F(ListViewTest, TheUserClicksRowsTitlesAndTheSpaceBelow) {
    Select(2);  // code fires nothing
    list.SetSorted(true);
    list.SetSorted(false);
    Settle();
    ClickAt(At(3));
    EXPECT_EQ(list.SelectedItem().Index(), 3);
    ClickAt(Below());
    EXPECT_EQ(list.SelectedItem().Index(), 3);
    EXPECT_TRUE(tree.topLevelItem(2)->isSelected()) << "and the user sees it";
    EXPECT_EQ(log, "cc");
    QTest::mouseClick(tree.header()->viewport(), Qt::LeftButton, {},
                      {tree.header()->sectionViewportPosition(1) + 20, 5});
    EXPECT_EQ(log, "cc2");
    Select(1);
    Key(list, Qt::Key_Down);
    EXPECT_EQ(list.SelectedItem().Index(), 2);
    EXPECT_EQ(log, "cc2c");
}

TEST_F(ListViewTest, ADoubleClickFiresOnARowOnly) {
    ClickAt(At(2));
    DoubleClickAt(At(2));
    EXPECT_EQ(log, "cd");
    DoubleClickAt(Below());
    EXPECT_EQ(log.find('d'), log.rfind('d'));
    list.DblClick = [this] { list.ListItems.Clear(); };  // it may empty the list
    DoubleClickAt(At(2));
    EXPECT_EQ(list.ListItems.Count(), 0);
}

TEST_F(ListViewTest, ATextThatIsCutShowsWholeUnderThePointer) {
    list.ListItems(1).SetSubItems(1, std::string(200, 'x'));
    Settle();
    const auto hover = [this](int column) {
        const QPoint at = tree.visualRect(tree.model()->index(0, column)).center();
        QHelpEvent event(QEvent::ToolTip, at, tree.viewport()->mapToGlobal(at));
        QApplication::sendEvent(tree.viewport(), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(hover(0), "");
    EXPECT_TRUE(hover(1).contains(QString(200, 'x')));
    QToolTip::hideText();
}

}  // namespace
}  // namespace trabeon
