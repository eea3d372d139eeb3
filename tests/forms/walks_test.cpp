// The windows of input and settings, walked through by the files in "walks".
#include <algorithm>
#include <sstream>

#include "forms/input/frmDiagram.h"
#include "forms/input/frmPoint.h"
#include "forms/input/frmUDL.h"
#include "forms/results/frmAnalysis.h"
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
            return text.substr(text.rfind('\n') + 1);  // its last line
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
