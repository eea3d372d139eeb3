#include "tests/support/walk.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <algorithm>
#include <cmath>

#include "core/store/project_file.h"
#include "forms/results/frmAnalysis.h"

namespace trabeon::test {
namespace {

std::string bare(const QString& caption) {
    return QString(caption).remove('&').toStdString();
}

/// What a user calls a control: its caption, or what a screen reader says.
std::string nameOf(const QWidget& widget) {
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    const auto said = widget.accessibleName();
    return button != nullptr && said.isEmpty() ? bare(button->text()) : bare(said.trimmed());
}

/// "P" of "Point Load, P".
std::string shortName(const std::string& name) {
    const auto comma = name.rfind(',');
    return comma == std::string::npos
               ? name
               : bare(QString::fromStdString(name.substr(comma + 1)).trimmed());
}

std::string textOf(const QWidget& widget) {
    for (const char* property : {"currentText", "text", "value"})
        if (const auto value = widget.property(property); value.isValid())
            return value.toString().toStdString();
    return widget.property("plainText").toString().toStdString();
}

Answer answerOf(const std::string& word) {
    static const std::map<std::string, Answer> answers{{"", Answer::Ok},
                                                       {"yes", Answer::Yes},
                                                       {"no", Answer::No},
                                                       {"cancel", Answer::Cancel},
                                                       {"other", Answer::Other}};
    return answers.at(word);
}

}  // namespace

std::string strokesOf(const PictureBox& picture) {
    std::string text;
    std::vector<double> rows;  // the heights of texts depend on the font
    const auto whole = [](double twips) { return ' ' + std::to_string(std::lround(twips)); };
    for (const auto& stroke : picture.Drawn()) {
        if (stroke.kind == Stroke::Kind::Text) {
            if (rows.empty() || stroke.y1 > rows.back())
                rows.push_back(stroke.y1);
            text +=
                "row " + std::to_string(rows.size()) + whole(stroke.x1) + " \"" + stroke.text + '"';
        } else if (stroke.kind == Stroke::Kind::Line) {
            text +=
                "line" + whole(stroke.x1) + whole(stroke.y1) + whole(stroke.x2) + whole(stroke.y2);
        } else {
            text += "circle" + whole(stroke.x1) + whole(stroke.y1) + whole(stroke.x2);
        }
        text += stroke.colour == Colour() ? "" : " colour " + std::to_string(stroke.colour);
        text += "\r\n";
    }
    return text;
}

WalkTest::WalkTest() : Walker(folder) {
    AddActions();
    AddExpectations();
    AddStates();
    AddListStates();
}

/// The text of a control.
std::string WalkTest::Look(const std::string& control) {
    return textOf(Find(control));
}

QWidget& WalkTest::Front() {
    auto* front = program.window().Area().activeSubWindow();
    return front == nullptr ? window() : *front;
}

QWidget* WalkTest::Window(const std::string& form) {
    for (auto* child : program.window().Area().subWindowList())
        if (child->objectName().toStdString() == form && forms().IsLoaded(form))
            return child;
    return nullptr;
}

/// A control of the window in front by its name, or "frmPoint/Add >" of another one.
QWidget& WalkTest::Find(const std::string& name) {
    const auto slash = name.starts_with("frm") ? name.find('/') : std::string::npos;
    auto* window = slash == std::string::npos ? &Front() : Window(name.substr(0, slash));
    auto* form = window == nullptr ? &Front() : window;
    const auto wanted = slash == std::string::npos ? name : name.substr(slash + 1);
    for (const bool whole : {true, false})
        for (auto* widget : form->findChildren<QWidget*>())
            if ((whole ? nameOf(*widget) : shortName(nameOf(*widget))) == wanted)
                return *widget;
    ADD_FAILURE() << "there is no \"" << name << "\" in " << form->objectName().toStdString();
    return *form;
}

QTreeWidget& WalkTest::List() {
    auto* list = Front().findChild<QTreeWidget*>();
    EXPECT_NE(list, nullptr);
    return *list;
}

QPoint WalkTest::PlaceOf(const Step& step) {
    auto* item = List().topLevelItem(std::stoi(step.subject) - 1);
    List().scrollToItem(item);
    List().setFocus(Qt::MouseFocusReason);
    return List().visualItemRect(item).center();
}

/// Keys to what has the focus; "{Alt+A}" is one key with its name.
void WalkTest::Keys(const std::string& keys) {
    for (std::size_t at = 0; at < keys.size(); ++at) {
        auto* focus = QApplication::focusWidget();
        auto* target = focus == nullptr ? &window() : focus;
        if (keys[at] != '{') {
            QTest::keyClick(target, keys[at]);
            continue;
        }
        const auto end = keys.find('}', at);
        const auto name = QString::fromStdString(keys.substr(at + 1, end - at - 1));
        const auto key = QKeySequence::fromString(name)[0];
        QTest::keyClick(target, key.key(), key.keyboardModifiers());
        at = end;
    }
}

void WalkTest::AddActions() {
    actions["show"] = [this](const Step& step) { forms().Show(step.subject); };
    actions["unload"] = [this](const Step& step) { forms().Unload(step.subject); };
    actions["reopen"] = [this](const Step& step) {
        forms().Unload(step.subject);
        Settle();
        forms().Show(step.subject);
    };
    actions["unpack"] = [this](const Step& step) {
        ASSERT_TRUE(unpackProject(EXAMPLES "/" + step.subject + ".TB", folder.path()));
    };
    actions["analysed"] = [this](const Step& step) {
        actions["unpack"](step);
        forms().Get<frmAnalysis>().cmdAnalyse.Press();
        forms().Unload("frmAnalysis");
    };
    actions["menu"] = [this](const Step& step) { Choose(QString::fromStdString(step.subject)); };
    actions["keys"] = [this](const Step& step) { Keys(step.subject); };
    actions["paste"] = [this](const Step& step) {
        QGuiApplication::clipboard()->setText(QString::fromStdString(step.subject));
        Keys("{Ctrl+V}");
    };
    actions["click"] = [this](const Step& step) {
        auto& widget = Find(step.subject);
        QTest::mouseClick(&widget, Qt::LeftButton, {},
                          {std::min(8, widget.width() / 2), widget.height() / 2});
    };
    actions["focus"] = [this](const Step& step) { Find(step.subject).setFocus(); };
    actions["set"] = [this](const Step& step) {
        auto& widget = Find(step.subject);
        const auto text = QString::fromStdString(step.value);
        if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
            combo->setCurrentIndex(combo->findText(text));
            emit combo->activated(combo->currentIndex());
        } else {
            widget.setProperty("text", text);
        }
    };
    actions["row"] = [this](const Step& step) {
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, PlaceOf(step));
    };
    actions["double"] = [this](const Step& step) {
        const auto place = PlaceOf(step);
        QTest::mouseClick(List().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(List().viewport(), Qt::LeftButton, {}, place);
        QTest::mouseRelease(List().viewport(), Qt::LeftButton, {}, place);
    };
    actions["title"] = [this](const Step& step) {
        const auto& header = *List().header();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          {header.sectionViewportPosition(std::stoi(step.subject) - 1) + 10, 5});
    };
}

/// Questions that the next step must ask, and their answers.
void WalkTest::AddExpectations() {
    actions["asks"] = [this](const Step& step) {
        outside.ExpectMsgBox(step.subject, answerOf(step.value));
    };
    actions["replaces"] = [this](const Step& step) {
        outside.ExpectReplace(step.subject, answerOf(step.value));
    };
    actions["opens"] = [this](const Step& step) {
        outside.ExpectOpen("Open Trabeon File", step.subject);
    };
    actions["saves"] = [this](const Step& step) {
        outside.ExpectSave(step.value.empty() ? "Save Trabeon File" : step.value, step.subject);
    };
    actions["prints"] = [this](const Step& step) {
        outside.ExpectPrinter(step.subject, step.value);
    };
    actions["page"] = [this](const Step& step) {
        outside.ExpectDocument((folder / step.subject).string(), step.value != "no");
    };
    actions["ends"] = [this](const Step&) { outside.ExpectEnd(); };
    actions["unwritten"] = [this](const Step& step) { ExpectUnwritten(step.subject, step.value); };
}

void WalkTest::AddStates() {
    states["flag"] = [this](const std::string&) {
        return std::to_string(std::exchange(context().dataChanged, 0));
    };
    states["changed"] = [this](const std::string&) {
        return std::to_string(context().dataChanged);
    };
    states["focus"] = [](const std::string&) -> std::string {
        const auto* focus = QApplication::focusWidget();
        return focus == nullptr ? "" : nameOf(*focus);
    };
    states["selected"] = [](const std::string&) {
        return QApplication::focusWidget()->property("selectedText").toString().toStdString();
    };
    states["enabled"] = [this](const std::string& name) { return yes(Find(name).isEnabled()); };
    states["marked"] = [this](const std::string& name) {
        return yes(Find(name).palette().color(QPalette::Base) != QPalette().color(QPalette::Base));
    };
    states["shows"] = [this](const std::string& text) {
        const auto labels = Front().findChildren<QLabel*>();
        return yes(std::any_of(labels.begin(), labels.end(), [&](auto* label) {
            return label->isVisible() && bare(label->text()) == text;
        }));
    };
    states["tip"] = [this](const std::string& name) { return Find(name).toolTip().toStdString(); };
    states["form"] = [this](const std::string& name) {
        const auto* window = Window(name);
        return window == nullptr ? "gone" : window->isVisible() ? "shown" : "hidden";
    };
    states["front"] = [this](const std::string&) { return Front().windowTitle().toStdString(); };
    states["event"] = [this](const std::string&) { return program.window().Event(); };
    states["summary"] = [this](const std::string&) { return program.window().Summary(); };
    states["caption"] = [this](const std::string&) { return caption(); };
    states["boxtitle"] = [this](const std::string&) { return outside.lastTitle; };
    states["boxstyle"] = [this](const std::string&) { return std::to_string(outside.lastStyle); };
    states["question"] = [this](const std::string&) {
        const auto& asked = outside.lastQuestion;
        return asked.filter + (asked.asksBeforeOverwriting ? ", asks to overwrite" : "") +
               (asked.asksBeforeCreating ? ", asks to create" : "") +
               (asked.folderMustExist ? ", in a folder that exists" : "");
    };
    states["clipboard"] = [this](const std::string&) { return outside.clipboardText; };
}

void WalkTest::AddListStates() {
    states["list"] = [this](const std::string& column) {
        std::string texts;
        for (int i = 0; i < List().topLevelItemCount(); ++i)
            texts += (i > 0 ? "|" : "") +
                     List().topLevelItem(i)->text(std::stoi(column) - 1).toStdString();
        return texts;
    };
    states["rows"] = [this](const std::string&) {
        return std::to_string(List().topLevelItemCount());
    };
    states["at"] = [this](const std::string&) {
        const auto chosen = List().selectedItems();
        return chosen.isEmpty() ? std::string("none")
                                : std::to_string(List().indexOfTopLevelItem(chosen.first()) + 1);
    };
    /// The rows whose tip has a word.
    states["tipped"] = [this](const std::string& word) {
        std::string rows;
        for (int i = 0; i < List().topLevelItemCount(); ++i)
            if (List().topLevelItem(i)->toolTip(0).contains(QString::fromStdString(word)))
                rows += (rows.empty() ? "" : " ") + std::to_string(i + 1);
        return rows;
    };
    states["row"] = [this](const std::string& row) {
        const auto* item = List().topLevelItem(std::stoi(row) - 1);
        std::string texts;
        for (int column = 0; column < List().columnCount(); ++column)
            texts += (column > 0 ? "|" : "") + item->text(column).toStdString();
        return texts;
    };
    states["insight"] = [this](const std::string& row) {
        return yes(List().viewport()->rect().contains(
            List().visualItemRect(List().topLevelItem(std::stoi(row) - 1))));
    };
    states["choices"] = [this](const std::string& name) {
        const auto& combo = dynamic_cast<QComboBox&>(Find(name));
        const auto last = combo.itemText(combo.count() - 1).toStdString();
        return std::to_string(combo.count()) + (last.empty() ? "" : ", last " + last);
    };
}

}  // namespace trabeon::test
