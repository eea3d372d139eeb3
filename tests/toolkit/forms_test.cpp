// The registry of forms: what loads, shows, hides and unloads them, and when.
#include "toolkit/forms.h"

#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>

#include "tests/support/gui_fixture.h"
#include "toolkit/button.h"
#include "toolkit/form.h"
#include "toolkit/text_box.h"

namespace trabeon {
namespace {

struct SharedRun {
    Forms* forms = nullptr;
    std::vector<std::string> log;
    bool hideOnLoad = false;
};

class frmFirst : public Form {
  public:
    static constexpr const char* Name = "frmFirst";
    explicit frmFirst(SharedRun& run) : Form("First"), run_(run) {
        cmdClose.Click = [this] {
            Unload();
            text.SetText("still here");  // the handler runs to its end
            run_.log.push_back("closed with " + text.Text());
        };
    }
    ~frmFirst() override { run_.log.push_back("first gone"); }

    Button cmdClose{*this, "&Close"};
    TextBox text{*this, "default"};
    std::vector<std::pair<int, int>> sizes;

  protected:
    void Form_Load() override {
        Move(150, 300, 4500, 3000);
        if (run_.hideOnLoad)
            Hide();
        run_.log.push_back("first loads");
    }
    void Form_Resize() override { sizes.emplace_back(ScaleWidth(), ScaleHeight()); }

    SharedRun& run_;
};

class frmSecond : public Form {
  public:
    static constexpr const char* Name = "frmSecond";
    explicit frmSecond(SharedRun& run) : Form("Second", FormBorder::FixedToolWindow), run_(run) {}
    ~frmSecond() override { run_.log.push_back("second gone"); }

    std::string seen;

  protected:
    void Form_Load() override {
        run_.log.push_back("second loads");
        // Its own text is read back by another form while it is still loading.
        run_.forms->Get<frmFirst>().text.SetText("from second");
        seen = run_.forms->Get<frmSecond>().Caption();
    }

    SharedRun& run_;
};

class frmAsk : public Form {
  public:
    static constexpr const char* Name = "frmAsk";
    explicit frmAsk(SharedRun& run) : Form("Ask", FormBorder::FixedDialog), run_(run) {
        cmdClose.Click = [this] { Unload(); };
    }
    ~frmAsk() override { run_.log.push_back("ask gone"); }

    Button cmdClose{*this, "Close"};

    SharedRun& run_;
};

class FormsTest : public GuiTest {
  protected:
    FormsTest() {
        run.forms = &forms;
        forms.Register<frmFirst>(run);
        forms.Register<frmSecond>(run);
        forms.Register<frmAsk>(run);
    }
    ~FormsTest() override {
        forms.UnloadAll();
        Settle();  // they write to the log as they go
    }

    SharedRun run;
    using Log = std::vector<std::string>;
};

TEST_F(FormsTest, TheFirstTouchLoadsAndBringsUp) {
    EXPECT_FALSE(forms.IsLoaded("frmFirst"));
    EXPECT_EQ(forms.Loaded<frmFirst>(), nullptr);
    frmFirst& first = forms.Get<frmFirst>();
    EXPECT_TRUE(first.Visible());
    EXPECT_EQ(&forms.Get<frmFirst>(), &first);
    EXPECT_EQ(forms.PlaceOf("frmFirst"), &first);
    EXPECT_EQ(forms.PlaceOf("frmSecond"), nullptr);
    forms.Show("frmFirst");
    EXPECT_EQ(run.log, Log{"first loads"});
    forms.Unload("frmFirst");
    run.hideOnLoad = true;  // stays out of sight until shown
    EXPECT_FALSE(forms.Get<frmFirst>().Visible());
    forms.Show("frmFirst");
    EXPECT_TRUE(forms.Get<frmFirst>().Visible());
    forms.Unload("frmNobody");
    EXPECT_FALSE(forms.IsLoaded("frmNobody") || forms.IsRegistered("frmNobody"));
    EXPECT_TRUE(forms.IsRegistered("frmSecond"));
}

TEST_F(FormsTest, LoadMayTouchOtherFormsAndItself) {
    EXPECT_EQ(forms.Get<frmSecond>().seen, "Second");
    EXPECT_EQ(forms.Get<frmFirst>().text.Text(), "from second");
    EXPECT_EQ(run.log, (Log{"second loads", "first loads"}));
}

TEST_F(FormsTest, AHiddenFormKeepsItsTextsAnUnloadedOneLosesThem) {
    forms.Get<frmFirst>().text.SetText("typed");
    forms.Get<frmFirst>().Hide();
    EXPECT_FALSE(forms.Get<frmFirst>().Visible());
    forms.Show("frmFirst");
    EXPECT_EQ(forms.Get<frmFirst>().text.Text(), "typed");
    forms.Unload("frmFirst");
    EXPECT_FALSE(forms.IsLoaded("frmFirst"));
    EXPECT_EQ(forms.Get<frmFirst>().text.Text(), "default");
}

TEST_F(FormsTest, AFormUnloadsItselfInItsOwnClickAndByItsCloseBox) {
    forms.Get<frmFirst>().cmdClose.Press();
    EXPECT_FALSE(forms.IsLoaded("frmFirst"));
    EXPECT_EQ(run.log, (Log{"first loads", "closed with still here"}));
    Settle();
    EXPECT_EQ(run.log.back(), "first gone");
    EXPECT_TRUE(window.Area().subWindowList().isEmpty());
    forms.Show("frmSecond");
    forms.Get<frmSecond>().Widget()->close();
    EXPECT_FALSE(forms.IsLoaded("frmSecond"));
    Settle();
    EXPECT_EQ(run.log.back(), "second gone");
}

TEST_F(FormsTest, UnloadAllTakesTheLastLoadedFirstAndTheHiddenToo) {
    forms.Show("frmFirst");
    forms.Show("frmSecond");
    forms.Get<frmFirst>().Hide();
    forms.Show("frmFirst");
    forms.Get<frmFirst>().Hide();
    forms.UnloadAll();
    Settle();
    EXPECT_EQ(run.log, (Log{"first loads", "second loads", "second gone", "first gone"}));
}

TEST_F(FormsTest, ShowBringsToTheFrontAndHidingBringsUpTheOneBefore) {
    const auto inFront = [this] { return window.Area().activeSubWindow()->windowTitle(); };
    forms.Show("frmFirst");
    forms.Show("frmSecond");
    EXPECT_EQ(inFront(), "Second");
    forms.Show("frmFirst");
    EXPECT_EQ(inFront(), "First");
    forms.Get<frmFirst>().Hide();
    EXPECT_EQ(inFront(), "Second");
}

TEST_F(FormsTest, AFormKeepsItsFocusWhileAnotherIsInFront) {
    frmFirst& first = forms.Get<frmFirst>();
    EXPECT_TRUE(first.cmdClose.HasFocus());  // the first in the tab order
    first.text.SetFocus();
    forms.Show("frmSecond");
    EXPECT_FALSE(first.text.HasFocus());
    forms.Show("frmFirst");
    EXPECT_TRUE(first.text.HasFocus());
}

TEST_F(FormsTest, PlaceIsTheOuterOneAndResizeTellsTheInnerOne) {
    frmFirst& first = forms.Get<frmFirst>();
    EXPECT_EQ((std::vector{first.Left(), first.Top(), first.Width(), first.Height()}),
              (std::vector{150, 300, 4500, 3000}));
    const auto before = first.sizes.back();
    EXPECT_LT(before.first, 4500);
    EXPECT_LT(before.second, 3000 - 300);
    first.SetWidth(6000);
    EXPECT_EQ(first.sizes.back(), std::make_pair(before.first + 1500, before.second));
    first.SetScaleSize(6690, 4485);
    EXPECT_EQ(first.sizes.back(), std::make_pair(6690, 4485));
    first.Move(0, 0, -100, -100);
    EXPECT_GE(std::min(first.sizes.back().first, first.sizes.back().second), 0);
    const QWidget& tool =
        *forms.Get<frmSecond>().Widget();  // cannot be sized, has a close box only
    EXPECT_EQ(tool.minimumSize(), tool.maximumSize());
    EXPECT_EQ(tool.windowFlags() & (Qt::WindowCloseButtonHint | Qt::WindowMinMaxButtonsHint),
              Qt::WindowCloseButtonHint);
}

TEST_F(FormsTest, TheUserCannotMakeAFormSmallerThanItAllows) {
    auto& form = forms.Get<frmFirst>();
    form.SetSmallestScaleSize(3000, 1500);
    Settle();
    EXPECT_GE(form.Widget()->minimumSizeHint().width(), 200);
    EXPECT_GE(form.Widget()->minimumSizeHint().height(), 100);
    form.Move(0, 0, 1500, 900);
    EXPECT_EQ(form.ScaleWidth(), 3000);  // what stands there is cut off, and keeps its place
    EXPECT_EQ(form.ScaleHeight(), 1500);
}

TEST_F(FormsTest, AnAccessKeyGoesToTheFormInFrontBeforeTheMenuBar) {
    window.AddMenu("&Copy").Add("&Entry", "", [] {});
    auto& form = forms.Get<frmFirst>();
    Settle();
    int clicks = 0;
    form.cmdClose.Click = [&clicks] { ++clicks; };
    const auto press = [&form] {
        QTest::keyClick(form.text.Widget(), Qt::Key_C, Qt::AltModifier);
        const bool menu = QApplication::activePopupWidget() != nullptr;
        if (menu)
            QApplication::activePopupWidget()->close();
        return menu;
    };
    EXPECT_FALSE(press());
    EXPECT_FALSE(press());
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(form.text.Text(), "default");
    form.cmdClose.SetEnabled(false);
    EXPECT_TRUE(press());
    EXPECT_EQ(clicks, 2);
}

TEST_F(FormsTest, MenusThatShareAnAccessKeyBeginWithTheFirstEachTime) {
    window.AddMenu("&Diagram").Add("&Plot", "", [] {});
    window.AddMenu("&Design").Add("&Beam", "", [] {});
    Settle();
    const auto* bar = static_cast<QMainWindow*>(window.Widget())->menuBar();
    const auto opened = [&](QWidget* target) {
        QTest::keyClick(target, Qt::Key_D, Qt::AltModifier);
        return bar->activeAction() ? bar->activeAction()->text() : "none";
    };
    for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(opened(window.Widget()), "&Diagram");
        EXPECT_EQ(opened(QApplication::activePopupWidget()), "&Design");
        while (QApplication::activePopupWidget())
            QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
    }
}

TEST_F(FormsTest, ADialogHoldsTheCallerUntilItIsUnloaded) {
    QTimer::singleShot(0, [this] {
        run.log.push_back("in dialog");
        const auto buttons = Qt::CustomizeWindowHint | Qt::WindowMinMaxButtonsHint;
        EXPECT_EQ(forms.Get<frmAsk>().Widget()->windowFlags() & buttons, Qt::CustomizeWindowHint);
        QTest::mouseClick(forms.Get<frmAsk>().cmdClose.Widget(), Qt::LeftButton);
    });
    forms.Show("frmAsk");
    EXPECT_FALSE(forms.IsLoaded("frmAsk"));
    Settle();
    EXPECT_EQ(run.log, (Log{"in dialog", "ask gone"}));
}

TEST_F(FormsTest, TheWindowMenuListsTheFormsInSight) {
    window.AddWindowList("&Window");
    auto* bar = static_cast<QMainWindow*>(window.Widget())->menuBar();
    QMenu* menu = bar->actions().last()->menu();
    const auto captions = [&] {
        emit menu->aboutToShow();
        QStringList all;
        for (const QAction* action : menu->actions())
            all << action->text();
        return all.join(", ").toStdString();
    };
    EXPECT_EQ(captions(), "(No window is open)");
    forms.Show("frmFirst");
    forms.Show("frmSecond");
    forms.Get<frmSecond>().Hide();
    EXPECT_EQ(captions(), "&1 First");
    forms.Show("frmSecond");
    EXPECT_EQ(captions(), "&1 First, &2 Second");
    menu->actions().first()->trigger();
    EXPECT_EQ(window.Area().activeSubWindow()->windowTitle(), "First");
}

TEST_F(FormsTest, ClosingTheWindowAsksQueryUnloadThenUnload) {
    std::vector<std::string> log;
    bool refuse = true;
    window.QueryUnload = [&](bool&) { log.push_back("query"); };
    window.Unload = [&](bool& cancel) {
        log.push_back("unload");
        cancel = refuse;
    };
    window.Close();
    EXPECT_TRUE(window.Widget()->isVisible());
    refuse = false;
    window.Close();
    EXPECT_FALSE(window.Widget()->isVisible());
    EXPECT_EQ(log, (Log{"query", "unload", "query", "unload"}));
}

TEST_F(FormsTest, AMaximisedFormLeavesTheCaptionProperAlone) {
    forms.Get<frmFirst>().Maximize();
    Settle();
    EXPECT_EQ(window.Caption(), "Trabeon - Untitled");
    window.SetCaption("Trabeon - One.TB");
    EXPECT_EQ(window.Caption(), "Trabeon - One.TB");
    forms.Unload("frmFirst");
    EXPECT_EQ(window.Widget()->windowTitle(), "Trabeon - One.TB");
}

TEST_F(FormsTest, WindowsFillTheirPlaceAndGoBackToTheirSize) {
    auto& first = forms.Get<frmFirst>();
    const int width = first.Width();
    EXPECT_EQ(first.State(), WindowState::Normal);
    first.SetState(WindowState::Maximized);
    EXPECT_EQ(first.State(), WindowState::Maximized);
    EXPECT_GE(first.Width(), window.ScaleWidth());
    first.SetState(WindowState::Normal);
    EXPECT_EQ(first.Width(), width);

    const int narrow = window.Width();
    forms.Window().SetState(WindowState::Maximized);
    EXPECT_EQ(window.State(), WindowState::Maximized);
    EXPECT_GT(window.Width(), narrow);
    window.SetState(WindowState::Normal);
    EXPECT_EQ(window.Width(), narrow);
}

TEST_F(FormsTest, MenuEntriesRunTheirCommandByKeyAndChoiceWhileEnabled) {
    int runs = 0;
    Menu file = window.AddMenu("&File");
    MenuEntry entry = file.Add("&New", "Ctrl+N", [&] { ++runs; });
    Settle();  // the bar comes up with its first menu
    QTest::keyClick(window.Widget(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(runs, 1);
    entry.SetEnabled(false);
    QTest::keyClick(window.Widget(), Qt::Key_N, Qt::ControlModifier);
    entry.Choose();
    EXPECT_EQ(runs, 1);
    entry.SetEnabled(true);
    entry.Choose();
    EXPECT_EQ(runs, 2);
    Menu loading = file.AddMenu("&Loading");
    loading.Entry().SetEnabled(false);
    EXPECT_EQ(loading.Entry().Caption(), "&Loading");
    EXPECT_FALSE(loading.Entry().Enabled());
}

}  // namespace
}  // namespace trabeon
