// Walks as they are written in their files, and strokes as they are written there.
#include <algorithm>
#include <cmath>
#include <fstream>

#include "tests/support/walk.h"

namespace trabeon::test {
namespace {

Step stepOf(const std::string& place, const std::string& line) {
    Step step{place, line.substr(0, line.find(' ')), "", "", {}};
    if (step.word.size() == line.size())
        return step;
    auto rest = line.substr(step.word.size() + 1);
    const auto equals = (' ' + rest + ' ').find(" = ");
    if (equals == std::string::npos) {
        step.subject = rest;
    } else {
        step.subject = rest.substr(0, equals == 0 ? 0 : equals - 1);
        step.value = rest.size() > equals + 2 ? rest.substr(equals + 2) : "";
    }
    return step;
}

}  // namespace

std::vector<Walk> readWalks(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<Walk> walks;
    for (const auto& file : files) {
        std::ifstream in(file);
        int number = 0;
        for (std::string line; std::getline(in, line);) {
            ++number;
            if (line.starts_with('['))
                walks.push_back({file.stem().string() + ' ' + line.substr(1, line.size() - 2), {}});
            else if (line.starts_with("|"))
                walks.back().steps.back().lines.push_back(
                    line.substr(std::min<std::size_t>(line.size(), 2)));
            else if (!line.empty() && !line.starts_with('#'))
                walks.back().steps.push_back(
                    stepOf(file.string() + ':' + std::to_string(number), line));
        }
    }
    return walks;
}

void PrintTo(const Walk& walk, std::ostream* out) {
    *out << walk.name;
}

std::string nameOf(const testing::TestParamInfo<Walk>& walk) {
    auto name = walk.param.name;
    std::replace_if(
        name.begin(), name.end(), [](unsigned char c) { return std::isalnum(c) == 0; }, '_');
    return name;
}

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

}  // namespace trabeon::test
