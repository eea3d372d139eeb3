// The windows of input and settings, walked through by the files in "walks".
#include <QListWidget>
#include <QMdiSubWindow>
#include <algorithm>
#include <sstream>

#include "core/analysis/result_files.h"
#include "forms/design/frmBeamDesign.h"
#include "forms/input/frmDiagram.h"
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "forms/results/frmAnalysis.h"
#include "forms/results/frmContinuousS.h"
#include "forms/results/frmContinuousTB.h"
#include "forms/results/frmMoment1.h"
#include "forms/results/frmShear1.h"
#include "forms/settings/frmMisc.h"
#include "forms/settings/frmOptions.h"
#include "tests/support/walk.h"

namespace trabeon::test {
namespace {

class Windows : public WalkTest {
  protected:
    Windows() {
        places["{pictures}"] = PICTURES;
        AddBeams();
        AddPictures();
        AddResults();
        AddProjects();
        AddDesign();
        AddDiagrams();
        Start();
    }

    void AddBeams() {
        actions["beam"] = [this](const Step&) {
            folder.write("Joint.txt", "1,Pin Jointed,a\r\n2,Continuous,b\r\n3,Pin Jointed,c\r\n");
            folder.write("Member.txt", "1,200,2,6,a\r\n2,200,2,6,b\r\n");
            folder.write("Udl.txt", "1,0,6,12,12,\"None\"\r\n2,0,6,12,12,\"None\"\r\n");
        };
        actions["report"] = [this](const Step&) {
            context().pasteIntoReport = [this] { pasted_ += !outside.clipboardPicture.isNull(); };
        };
        states["pasted"] = [this](const std::string&) { return std::to_string(pasted_); };
    }

    void AddPictures() {
        actions["size"] = [this](const Step& step) {
            const auto height = step.value.find(' ');
            forms().Get<frmDiagram>().SetScaleSize(std::stoi(step.value),
                                                   std::stoi(step.value.substr(height)));
        };
        const auto picture = [this](const std::string& form) -> const PictureBox& {
            return form == "frmPoint" ? forms().Get<frmPoint>().picPt
                   : form == "frmUDL" ? forms().Get<frmUDL>().picUDL
                                      : forms().Get<frmDiagram>().picContBeam;
        };
        states["drawn"] = [picture](const std::string& form) { return strokesOf(picture(form)); };
        // Without the hatching.
        states["outline"] = [picture](const std::string& form) {
            return linesWith(strokesOf(picture(form)), "colour", false);
        };
        states["texts"] = [picture](const std::string& form) {
            return linesWith(strokesOf(picture(form)), "row", true);
        };
        states["lines"] = [picture](const std::string& form) {
            const auto& drawn = picture(form).Drawn();
            return std::to_string(std::count_if(drawn.begin(), drawn.end(), [](auto& stroke) {
                return stroke.kind == Stroke::Kind::Line;
            }));
        };
        states["picture"] = [this](const std::string& name) {
            const QImage face = Find(name).grab().toImage();
            QImage blank = face;
            blank.fill(Qt::white);
            return face == blank ? "no" : "yes";
        };
    }

    void AddResults() {
        // The state after an analysis: the menus are on and the window is up.
        actions["results"] = [this](const Step&) {
            forms().Show("frmAnalysis");
            context().mnuContinuous.SetEnabled(true);
            context().mnuSingle.SetEnabled(true);
        };
        actions["withdraw"] = [this](const Step&) { DisablePlot(context()); };
        states["results"] = [this](const std::string&) {
            const bool loaded = forms().IsLoaded("frmAnalysis");
            EXPECT_EQ(context().mnuContinuous.Enabled(), loaded);
            EXPECT_EQ(context().mnuSingle.Enabled(), loaded);
            return loaded ? "yes" : "no";
        };
        states["table"] = [this](const std::string&) {
            const auto text = forms().Get<frmAnalysis>().txtTBResults.Text();
            const auto end = text.find_last_not_of("\r\n") + 1;
            const auto line = text.substr(0, end);
            return line.substr(line.rfind('\n') + 1);  // the last one
        };
        states["stations"] = [this](const std::string&) {
            const auto text = folder.read("BM.txt");
            const auto rows = text.substr(0, text.find("Span 2"));
            return std::to_string(std::count(rows.begin(), rows.end(), '\n') - 1);
        };
        states["menu"] = [this](const std::string& path) {
            return Entry(QString::fromStdString(path))->isEnabled() ? "on" : "off";
        };
        states["conventions"] = [this](const std::string&) {
            const auto& options = forms().Get<frmOptions>();
            return options.lblMOption.Caption() + ", " + options.lblSOption.Caption();
        };
    }

    void AddProjects() {
        places["{bare}"] = folder.path().string().substr(1);
        places["{bareexamples}"] = std::string(EXAMPLES).substr(1);
        actions["close"] = [this](const Step&) { window().close(); };
        // An example with two letters of another character set.
        actions["latin"] = [this](const Step& step) {
            auto text = TemporaryFolder::readFile(EXAMPLES "/two-span-floor-beam.TB");
            text.replace(text.find("Library"), 7, "Tr\xE4ger");
            text.replace(text.find("Wall A"), 1, "\xDC");
            folder.write(step.subject, text);
        };
        states["menus"] = [this](const std::string&) {
            return Menus(menuBar().actions(), "").toStdString();
        };
    }

    void AddDesign() {
        // An example with its results, the dimensions window in front.
        actions["example"] = [this](const Step& step) {
            actions["unpack"](step);
            ASSERT_TRUE(analyseFolder(folder.path(), {10, 3}, {[](const Message&) {}}));
            forms().Show("frmBeamDimensions");
        };
        // The controls beside the list that cover a part of it.
        states["overlaps"] = [this](const std::string&) {
            std::string names;
            for (const auto* other : List().parentWidget()->findChildren<QWidget*>(
                     QString(), Qt::FindDirectChildrenOnly))
                if (other != &List() && other->isVisible() &&
                    other->geometry().intersects(List().geometry()))
                    names += other->metaObject()->className();
            return names;
        };
        states["failed"] = [this](const std::string&) {
            std::string rows;
            for (int i = 0; i < List().topLevelItemCount(); ++i) {
                const auto& item = *List().topLevelItem(i);
                const bool coloured = item.foreground(13).style() != Qt::NoBrush;
                EXPECT_EQ(coloured, !item.icon(0).isNull());
                rows += coloured ? (rows.empty() ? "" : " ") + std::to_string(i + 1) : "";
            }
            return rows;
        };
        states["remark"] = [this](const std::string&) {
            const auto& strip = forms().Get<frmBeamDesign>().remark.lblRemark;
            return strip.Visible() ? strip.Caption() : "";
        };
        states["properties"] = [this](const std::string&) {
            const auto misc = forms().Get<frmMisc>().Properties();
            std::ostringstream text;
            text << misc.cover << ' ' << misc.links << ' ' << misc.hagg
                 << (misc.restrictDeflection ? " restricted" : "");
            return text.str();
        };
    }

    void AddDiagrams() {
        actions["select"] = [this](const Step& step) {
            auto& list = dynamic_cast<QListWidget&>(Find(step.subject));
            QItemSelection chosen;
            std::istringstream members(step.value);
            for (int member; members >> member;) {
                const auto item = list.model()->index(member - 1, 0);
                chosen.select(item, item);
            }
            list.selectionModel()->select(chosen, QItemSelectionModel::ClearAndSelect);
        };
        // "cut FILE = MARK N" leaves N lines from the first mark on.
        actions["cut"] = [this](const Step& step) {
            const auto text = folder.read(step.subject), mark = step.value.substr(0, 6);
            auto end = text.find(mark);
            for (auto lines = std::stoi(step.value.substr(7)); lines > 0; --lines)
                end = text.find('\n', end) + 1;
            folder.write(step.subject, text.substr(0, end));
        };
        actions["move"] = [this](const Step& step) {
            const auto top = step.value.substr(step.value.find(' '));
            Window(step.subject)->move(std::stoi(step.value), std::stoi(top));
        };
        states["place"] = [this](const std::string& form) {
            const auto place = Window(form)->pos();
            return std::to_string(place.x()) + ' ' + std::to_string(place.y());
        };
        states["chart"] = [this](const std::string& form) {
            const auto& chart = Chart(form);
            std::ostringstream text;
            text << states["note"](form) << "\r\n" << states["labels"](form) << "\r\n";
            for (const auto& [x, label] : chart.Marks())
                text << x << ": " << label << "; ";
            text << states["count"](form) << "\r\n";
            for (const auto& [x, y] : chart.Points())
                text << x << ' ' << y << "\r\n";
            return text.str();
        };
        states["note"] = [this](const std::string& form) { return Chart(form).Note(); };
        states["labels"] = [this](const std::string& form) {
            return Chart(form).GreatestLabel() + ", " + Chart(form).LeastLabel();
        };
        states["count"] = [this](const std::string& form) {
            return std::to_string(Chart(form).Points().size()) + " of " +
                   std::to_string(Chart(form).PointCount());
        };
        states["readout"] = [this](const std::string& form) {
            auto* widget = Chart(form).Widget();
            QTest::mouseMove(widget, widget->rect().center() + QPoint(20, 0));
            return Chart(form).ReadOut();
        };
    }

    const Graph& Chart(const std::string& form) {
        return form == "frmContinuousTB"  ? forms().Get<frmContinuousTB>().GraphCMoment
               : form == "frmContinuousS" ? forms().Get<frmContinuousS>().GraphCshear
               : form == "frmMoment1"     ? forms().Get<frmMoment1>().GraphMoment1
                                          : forms().Get<frmShear1>().GraphShear1;
    }

    /// The menus, each entry with its key and the form that it shows.
    QString Menus(const QList<QAction*>& entries, const QString& indent) {
        QString text;
        for (auto* action : entries) {
            const auto key = action->shortcut().toString();
            text += indent + (action->isSeparator() ? "-" : action->text()) +
                    (key.isEmpty() ? "" : " [" + key + "]") +
                    (action->isEnabled() ? "" : " (off)") + ShownBy(*action) + "\r\n";
            if (action->menu() != nullptr && action->text() != "&Window")
                text += Menus(action->menu()->actions(), indent + "  ");
        }
        return text;
    }
    /// What an entry of the middle menus brings to the front.
    QString ShownBy(QAction& entry) {
        static const QStringList others{
            "&New", "&Open", "&Save", "Save &As", "E&xit", "&Contents and Index", "&Example"};
        const auto before = Front().windowTitle();
        if (entry.menu() == nullptr && !others.contains(entry.text()))
            entry.trigger();
        const auto now = Front().windowTitle();
        return now == before ? "" : ": " + now;
    }

    static std::string linesWith(const std::string& text, const std::string& part, bool with) {
        std::istringstream in(text);
        std::string found;
        for (std::string line; std::getline(in, line);)
            if ((line.find(part) != std::string::npos) == with)
                found += line + '\n';
        return found;
    }

    int pasted_ = 0;
};

TEST_P(Windows, Walk) {
    Take(GetParam().steps);
}

INSTANTIATE_TEST_SUITE_P(Windows, Windows, testing::ValuesIn(readWalks(WALKS)), nameOf);

}  // namespace
}  // namespace trabeon::test
