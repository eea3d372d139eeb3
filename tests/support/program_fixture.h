// The whole program in a working folder of its own, with a scripted way out.
#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <algorithm>

#include "forms/main/frmTrabeon.h"
#include "tests/support/scripted_outside.h"
#include "tests/support/temporary_folder.h"
#include "toolkit/controls/control.h"

namespace trabeon::test {

class ProgramTest : public testing::Test {
  protected:
    /// Starts the program: the manual opens, no other copy runs.
    void Start() {
        outside.ExpectDocument((folder / "Contents and Index.htm").string());
        ASSERT_TRUE(program.Start());
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    }

    /// The entry of a path of captions, as "File|New"; null if it is not there.
    QAction* Entry(const QString& path) {
        QAction* entry = nullptr;
        auto actions = menuBar().actions();
        for (const auto& caption : path.split('|')) {
            const auto found = std::find_if(actions.begin(), actions.end(), [&](auto* action) {
                return action->text().remove('&') == QString(caption).remove('&');
            });
            entry = found == actions.end() ? nullptr : *found;
            actions = entry && entry->menu() ? entry->menu()->actions() : QList<QAction*>();
        }
        return entry;
    }
    /// Chooses an entry; it must be there and enabled.
    void Choose(const QString& path) {
        auto* entry = Entry(path);
        ASSERT_TRUE(entry != nullptr && entry->isEnabled()) << path.toStdString();
        entry->trigger();
    }

    static void Type(Control& control, const QString& keys) {
        QTest::keyClicks(control.Widget(), keys);
    }
    static void Press(Control& control, Qt::Key key) { QTest::keyClick(control.Widget(), key); }
    static void Click(Control& control) { QTest::mouseClick(control.Widget(), Qt::LeftButton); }

    /// Whatever was put off until the handlers have ended, forms that go included.
    static void Settle() {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    /// The one question that follows says that a file cannot be written.
    void ExpectUnwritten(const std::string& name, const std::string& before = "") {
        outside.ExpectMsgBox(before + "\"" + (folder / name).string() +
                             "\" is write-protected. Allow writing to it or choose another name; "
                             "nothing was changed.");
    }

    QWidget& window() { return *program.window().Widget(); }
    QMenuBar& menuBar() { return *window().findChild<QMenuBar*>(); }
    Context& context() { return program.context(); }
    Forms& forms() { return program.context().forms; }
    std::string caption() { return program.window().Caption(); }

    ScriptedOutside outside;
    TemporaryFolder folder;
    frmTrabeon program{folder.path()};
};

}  // namespace trabeon::test
