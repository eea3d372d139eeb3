// The registry of forms: what loads, shows, hides and unloads them, and when.
#include "toolkit/windows/forms.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

#include "tests/toolkit/controls_fixture.h"
#include "toolkit/controls/button.h"
#include "toolkit/controls/text_box.h"

namespace trabeon {
namespace {

struct SharedRun {
    Forms& forms;
    std::string log = {};
    bool hideOnLoad = false;
};

class frmFirst : public Form {
  public:
    static constexpr const char* Name = "frmFirst";
    explicit frmFirst(SharedRun& run) : Form("First"), run_(run) {
        cmdClose.Click = [this] {
            Unload();
            text.SetText("still here");  // the handler runs to its end
            run_.log += "closed with " + text.Text() + ";";
        };
    }
    ~frmFirst() override { run_.log += "first gone;"; }

    Button cmdClose{*this, "&Close"};
    TextBox text{*this, "default"};
    std::vector<std::pair<int, int>> sizes;

  protected:
    void Form_Load() override {
        Move(150, 300, 4500, 3000);
        if (run_.hideOnLoad)
            Hide();
        run_.log += "first loads;";
    }
    void Form_Resize() override { sizes.emplace_back(ScaleWidth(), ScaleHeight()); }

    SharedRun& run_;
};

class frmSecond : public Form {
  public:
    static constexpr const char* Name = "frmSecond";
    explicit frmSecond(SharedRun& run) : Form("Second", FormBorder::FixedToolWindow), run_(run) {}
    ~frmSecond() override { run_.log += "second gone;"; }

  protected:
    void Form_Load() override {
        // Other forms and itself may be touched while it is still loading.
        run_.forms.Get<frmFirst>().text.SetText("from " + run_.forms.Get<frmSecond>().Caption());
        run_.log += "second loads;";
    }

    SharedRun& run_;
};

class FormsTest : public ControlsTest {
  protected:
    FormsTest() {
        forms.Register<frmFirst>(run);
        forms.Register<frmSecond>(run);
    }
    ~FormsTest() override {
        forms.UnloadAll();
        Settle();  // they write to the log as they go
    }

    frmFirst& First() { return forms.Get<frmFirst>(); }
    QMenuBar& Bar() { return *static_cast<QMainWindow*>(window.Widget())->menuBar(); }
    std::string InFront() { return window.Area().activeSubWindow()->windowTitle().toStdString(); }

    SharedRun run{forms};
};

TEST_F(FormsTest, TheFirstTouchLoadsAndBringsUp) {
    EXPECT_EQ(forms.Loaded<frmFirst>(), nullptr);
    EXPECT_TRUE(First().Visible());
    EXPECT_EQ(forms.PlaceOf("frmFirst"), &First());
    EXPECT_EQ(forms.PlaceOf("frmSecond"), nullptr);
    First().text.SetText("typed");
    First().Hide();
    EXPECT_FALSE(First().Visible());
    forms.Show("frmFirst");
    EXPECT_TRUE(First().Visible());
    EXPECT_EQ(First().text.Text(), "typed");
    EXPECT_EQ(run.log, "first loads;");
    forms.Unload("frmFirst");
    EXPECT_FALSE(forms.IsLoaded("frmFirst"));
    run.hideOnLoad = true;  // stays out of sight until shown
    EXPECT_FALSE(First().Visible());
    EXPECT_EQ(First().text.Text(), "default");
    forms.Unload("frmNobody");
    EXPECT_FALSE(forms.IsLoaded("frmNobody") || forms.IsRegistered("frmNobody"));
}

TEST_F(FormsTest, UnloadAllTakesTheLastLoadedFirstAndTheHiddenToo) {
    First();
    forms.Show("frmSecond");
    EXPECT_EQ(First().text.Text(), "from Second");
    First().Hide();
    forms.UnloadAll();
    Settle();
    EXPECT_EQ(run.log, "first loads;second loads;second gone;first gone;");
}

TEST_F(FormsTest, AFormUnloadsItselfInItsOwnClickAndByItsCloseBox) {
    First().cmdClose.Press();
    EXPECT_FALSE(forms.IsLoaded("frmFirst"));
    Settle();
    EXPECT_EQ(run.log, "first loads;closed with still here;first gone;");
    EXPECT_TRUE(window.Area().subWindowList().isEmpty());
    First().Widget()->close();
    EXPECT_FALSE(forms.IsLoaded("frmFirst"));
}

TEST_F(FormsTest, ShowBringsToTheFrontWithItsFocusAndHidingBringsUpTheOneBefore) {
    EXPECT_TRUE(First().cmdClose.HasFocus());  // the first in the tab order
    First().text.SetFocus();
    forms.Show("frmSecond");
    EXPECT_EQ(InFront(), "Second");
    EXPECT_FALSE(First().text.HasFocus());
    forms.Show("frmFirst");
    EXPECT_EQ(InFront(), "First");
    EXPECT_TRUE(First().text.HasFocus());
    First().Hide();
    EXPECT_EQ(InFront(), "Second");
}

TEST_F(FormsTest, PlaceIsTheOuterOneAndResizeTellsTheInnerOne) {
    frmFirst& first = First();
    EXPECT_EQ((std::vector{first.Left(), first.Top(), first.Width(), first.Height()}),
              (std::vector{150, 300, 4500, 3000}));
    const auto before = first.sizes.back();
    EXPECT_LT(before.second, 3000 - 300);
    first.SetWidth(6000);
    EXPECT_EQ(first.sizes.back(), std::make_pair(before.first + 1500, before.second));
    first.SetScaleSize(6690, 4485);
    EXPECT_EQ(first.sizes.back(), std::make_pair(6690, 4485));
    first.Move(0, 0, -100, -100);
    EXPECT_GE(std::min(first.ScaleWidth(), first.ScaleHeight()), 0);
    first.SetSmallestScaleSize(3000, 1500);
    first.Move(0, 0, 1500, 900);
    EXPECT_EQ(first.ScaleWidth(), 3000);  // what is beyond the frame keeps its place
}

TEST_F(FormsTest, AnAccessKeyGoesToTheFormInFrontBeforeTheMenuBar) {
    window.AddMenu("&Copy").Add("&Entry", "", [] {});
    int clicks = 0;
    First().cmdClose.Click = Count(clicks);
    Settle();
    const auto opensMenu = [this] {
        Key(First().text, Qt::Key_C, Qt::AltModifier);
        QWidget* menu = QApplication::activePopupWidget();
        return menu != nullptr && menu->close();
    };
    EXPECT_FALSE(opensMenu());
    EXPECT_FALSE(opensMenu());
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(First().text.Text(), "default");
    First().cmdClose.SetEnabled(false);
    EXPECT_TRUE(opensMenu());
    EXPECT_EQ(clicks, 2);
}

TEST_F(FormsTest, MenusThatShareAnAccessKeyBeginWithTheFirstEachTime) {
    window.AddMenu("&Diagram").Add("&Plot", "", [] {});
    window.AddMenu("&Design").Add("&Beam", "", [] {});
    Settle();
    const auto opened = [&](QWidget* target) {
        QTest::keyClick(target, Qt::Key_D, Qt::AltModifier);
        return Bar().activeAction() ? Bar().activeAction()->text() : "none";
    };
    for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(opened(window.Widget()), "&Diagram");
        EXPECT_EQ(opened(QApplication::activePopupWidget()), "&Design");
        while (QApplication::activePopupWidget())
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    }
}

TEST_F(FormsTest, TheWindowMenuListsTheFormsInSight) {
    window.AddWindowList("&Window");
    QMenu* menu = Bar().actions().last()->menu();
    const auto captions = [&] {
        emit menu->aboutToShow();
        QStringList all;
        for (const QAction* action : menu->actions())
            all << action->text();
        return all.join(", ").toStdString();
    };
    EXPECT_EQ(captions(), "(No window is open)");
    First();
    forms.Get<frmSecond>().Hide();
    EXPECT_EQ(captions(), "&1 First");
    forms.Show("frmSecond");
    EXPECT_EQ(captions(), "&1 First, &2 Second");
    menu->actions().first()->trigger();
    EXPECT_EQ(InFront(), "First");
}

}  // namespace
}  // namespace trabeon
