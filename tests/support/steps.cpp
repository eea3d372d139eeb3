#include "tests/support/steps.h"

#include <algorithm>
#include <sstream>

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

void readWalksOf(const std::filesystem::path& file, std::vector<Walk>& walks) {
    std::ifstream in(file);
    int number = 0;
    for (std::string line; std::getline(in, line);) {
        ++number;
        if (line.starts_with('['))
            walks.push_back({file.stem().string() + ' ' + line.substr(1, line.size() - 2), {}});
        else if (line.starts_with('|'))
            walks.back().steps.back().lines.push_back(
                line.substr(std::min<std::size_t>(line.size(), 2)));
        else if (!line.empty() && !line.starts_with('#'))
            walks.back().steps.push_back(
                stepOf(file.string() + ':' + std::to_string(number), line));
    }
}

/// "one two" is "one" and "two".
std::pair<std::string, std::string> cut(const std::string& words) {
    const auto blank = words.find(' ');
    return {words.substr(0, blank), blank == words.npos ? "" : words.substr(blank + 1)};
}

}  // namespace

std::vector<Walk> readWalks(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        if (entry.path().extension() == ".txt")
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<Walk> walks;
    for (const auto& file : files)
        readWalksOf(file, walks);
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

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const auto& line : lines)
        text += line + "\r\n";
    return text;
}

std::string yes(bool so) {
    return so ? "yes" : "no";
}

Walker::Walker(const TemporaryFolder& folder) : files_(folder) {
    places = {{"{folder}", folder.path().string()}, {"{examples}", EXAMPLES}};
    AddFileActions();
    AddFileStates();
}

void Walker::Take(const std::vector<Step>& steps) {
    for (const auto& written : steps) {
        SCOPED_TRACE(written.place);
        const auto step = Filled(written);
        if (step.word == "?") {
            const auto [word, subject] = cut(step.subject);
            const auto found = states.count(word) > 0 ? states[word](subject) : Look(step.subject);
            EXPECT_EQ(found, step.lines.empty() ? step.value : joined(step.lines));
        } else if (actions.count(step.word) > 0) {
            actions[step.word](step);
        } else {
            ADD_FAILURE() << "there is no step " << step.word;
        }
        AfterStep();
    }
}

std::string Walker::Look(const std::string& subject) {
    ADD_FAILURE() << "there is no \"" << subject << "\" to look at";
    return "";
}

/// "{folder}" and the like in a text are paths, "\r\n" is a line end.
Step Walker::Filled(Step step) const {
    for (const auto& [name, path] : places) {
        for (auto* text : {&step.subject, &step.value})
            *text = replaced(*text, name, path);
        for (auto& line : step.lines)
            line = replaced(line, name, path);
    }
    for (auto* text : {&step.subject, &step.value})
        for (const auto& [escape, character] :
             {std::pair{"\\r", "\r"}, {"\\n", "\n"}, {"\\t", "\t"}})
            *text = replaced(*text, escape, character);
    return step;
}

void Walker::AddFileActions() {
    actions["write"] = [this](const Step& step) {
        files_.write(step.subject, step.lines.empty() ? step.value : joined(step.lines));
    };
    actions["append"] = [this](const Step& step) {
        files_.write(step.subject, files_.read(step.subject) + joined(step.lines));
    };
    // "edit FILE FROM = TO": the first one.
    actions["edit"] = [this](const Step& step) {
        const auto [name, from] = cut(step.subject);
        auto text = files_.read(name);
        ASSERT_NE(text.find(from), text.npos);
        files_.write(name, text.replace(text.find(from), from.size(), step.value));
    };
    actions["copy"] = [this](const Step& step) {
        files_.write(step.value, TemporaryFolder::readFile(step.subject));
    };
    actions["remove"] = [this](const Step& step) {
        std::filesystem::remove(files_ / step.subject);
    };
    actions["protect"] = [this](const Step& step) { files_.protect(step.subject); };
    actions["free"] = [this](const Step& step) { files_.protect(step.subject, false); };
    actions["keep"] = [this](const Step&) { kept_ = files_.contents(); };
}

void Walker::AddFileStates() {
    states["file"] = [this](const std::string& name) { return files_.read(name); };
    states["line"] = [this](const std::string& numberAndFile) {
        const auto [number, name] = cut(numberAndFile);
        std::istringstream text(files_.read(name));
        std::string line;
        for (auto left = std::stoi(number); left > 0; --left)
            std::getline(text, line);
        return line.substr(0, line.find('\r'));
    };
    states["files"] = [this](const std::string&) {
        std::string names;
        for (const auto& [name, text] : files_.contents())
            names += (names.empty() ? "" : " ") + name;
        return names;
    };
    states["kept"] = [this](const std::string&) {
        const auto now = files_.contents();
        EXPECT_EQ(now, kept_);
        return yes(now == kept_);
    };
    // Whether a file has the bytes of another one.
    states["twins"] = [this](const std::string& nameAndPath) {
        const auto [name, path] = cut(nameAndPath);
        return yes(files_.read(name) == TemporaryFolder::readFile(path));
    };
}

}  // namespace trabeon::test
