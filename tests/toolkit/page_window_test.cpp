// The window that shows the manual where there is no browser, with the pages of the manual.
#include "toolkit/desktop/page_window.h"

#include <QDirIterator>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTextBrowser>

#include "tests/toolkit/controls_fixture.h"

namespace trabeon {
namespace {

class PageWindowTest : public ControlsTest {
  protected:
    PageWindowTest() {
        for (const char* source : {RESOURCES "/help", RESOURCES "/pictures"})
            for (QDirIterator file(source, QDir::Files); file.hasNext();) {
                const QString path = file.next();
                QFile::link(path, folder.filePath(file.fileName()));
            }
        page.Open(folder.filePath("Contents and Index.htm"));
        EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
    }

    // A click on the link to that place, which is in sight.
    void Follow(const QString& link) {
        for (int y = 0; y < view.height(); y += 4)
            for (int x = 0; x < view.width(); x += 4)
                if (view.anchorAt({x, y}) == link)
                    return QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {x, y});
        ADD_FAILURE() << "no link to " << link.toStdString();
    }
    void Press(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(&view, key, held); }
    std::string Title() const {
        EXPECT_EQ(view.accessibleName(), page.windowTitle());
        return page.windowTitle().toStdString();
    }
    // Whether Back and Forward can be pressed.
    std::pair<bool, bool> Ways() const { return {back.isEnabled(), forward.isEnabled()}; }

    QTemporaryDir folder;
    PageWindow page;
    QTextBrowser& view = *page.findChild<QTextBrowser*>();
    QPushButton& back = *page.findChildren<QPushButton*>().at(0);
    QPushButton& forward = *page.findChildren<QPushButton*>().at(1);
    const std::string contents = "Trabeon: Contents and Index";
};

TEST_F(PageWindowTest, LinksAreRetracedWithButtonsAndKeys) {
    EXPECT_EQ(Title(), contents);
    EXPECT_EQ(Ways(), std::pair(false, false));
    Follow("Example2.htm");
    const std::string example = Title();
    EXPECT_NE(example, contents);
    EXPECT_EQ(Ways(), std::pair(true, false));
    QTest::mouseClick(&back, Qt::LeftButton);
    EXPECT_EQ(Title(), contents);
    EXPECT_EQ(Ways(), std::pair(false, true));
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Title(), example);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Title(), contents);
    QTest::mouseClick(&forward, Qt::LeftButton);
    EXPECT_EQ(Title(), example);
    page.Open(folder.filePath("Contents and Index.htm"));
    Follow("#w-members");
    EXPECT_GT(view.verticalScrollBar()->value(), 0);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(view.verticalScrollBar()->value(), 0);
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Title(), example);
}

}  // namespace
}  // namespace trabeon
