#include "output/program/command_line.h"

#include <algorithm>
#include <array>

#include "core/text/number_text.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

constexpr auto usage =
    "Usage: trabeon-report FILE.TB --out FILE.docx [--divisions N] [--places N] [--kinds K,K,...]";

constexpr std::array<std::pair<std::string_view, bool OutputKinds::*>, 9> kindNames{{
    {"joints", &OutputKinds::joints},
    {"members", &OutputKinds::members},
    {"loads", &OutputKinds::loads},
    {"table", &OutputKinds::table},
    {"values", &OutputKinds::values},
    {"diagrams", &OutputKinds::diagrams},
    {"continuous", &OutputKinds::continuous},
    {"dimensions", &OutputKinds::dimensions},
    {"design", &OutputKinds::design},
}};

std::string allKinds() {
    std::string names;
    for (const auto& [name, kind] : kindNames)
        names += (names.empty() ? "" : ",") + std::string(name);
    return names;
}

void setAll(OutputKinds& kinds, bool wanted) {
    for (const auto& [name, kind] : kindNames)
        kinds.*kind = wanted;
}

Status readKinds(const std::string& text, OutputKinds& kinds) {
    setAll(kinds, false);
    for (std::size_t from = 0; from <= text.size();) {
        const auto comma = std::min(text.find(',', from), text.size());
        const auto word = text.substr(from, comma - from);
        const auto known = std::find_if(kindNames.begin(), kindNames.end(),
                                        [&](const auto& each) { return each.first == word; });
        if (known == kindNames.end())
            return Refusal{"There is no kind \"" + excerpt(word) + "\". The kinds are " +
                           allKinds() + "."};
        kinds.*known->second = true;
        from = comma + 1;
    }
    return {};
}

Status readNumber(const std::string& name, const std::string& text, double& value) {
    const auto number = numberOfWholeText(text);
    if (!number)
        return Refusal{name + " takes a number, not \"" + excerpt(text) + "\"."};
    value = *number;
    return {};
}

Status readOption(const std::string& name, const std::string& value, ReportCommand& command) {
    if (name == "--divisions")
        return readNumber(name, value, command.settings.Divisions);
    if (name == "--places")
        return readNumber(name, value, command.settings.places);
    if (name == "--kinds")
        return readKinds(value, command.kinds);
    if (name != "--out")
        return Refusal{"There is no option " + excerpt(name) + ". " + usage};
    command.out = value;
    return {};
}

}  // namespace

std::string reportHelp() {
    return std::string(
               "Analyses and designs a project and writes its document. Needs no display.\n\n") +
           usage +
           "\n    Example: trabeon-report examples/two-span-floor-beam.TB --out beam.docx\n\n" +
           "--out FILE       the document; replaces no file except a document\n"
           "--divisions N    equal parts of each span, 1 to 10000 (default 10)\n"
           "--places N       decimal places of the position of a maximum, 0 to 12 (default 3)\n"
           "--kinds K,K,...  what the document contains (default: everything), of\n"
           "                 " +
           allKinds() +
           "\n\nExit code: 0 done\n"
           "           1 refused (standard error gives the reason)\n"
           "           2 wrong command line\n";
}

Outcome<ReportCommand> readReportCommand(const std::vector<std::string>& words) {
    ReportCommand command;
    setAll(command.kinds, true);
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto& word = words[i];
        if (word == "--help") {
            command.help = true;
            return command;
        }
        if (!word.starts_with("--")) {
            if (!command.file.empty())
                return Refusal{"Give only one project, without \"" + excerpt(word) + "\". " +
                               usage};
            command.file = word;
            continue;
        }
        const auto sign = word.find('=');
        if (sign == std::string::npos && i + 1 == words.size())
            return Refusal{"A value is missing after " + excerpt(word) + ". " + usage};
        const auto value = sign == std::string::npos ? words[++i] : word.substr(sign + 1);
        if (const auto status = readOption(word.substr(0, sign), value, command); status.failed())
            return status.refusal();
    }
    if (command.file.empty() || command.out.empty())
        return Refusal{usage};
    return command;
}

}  // namespace trabeon
