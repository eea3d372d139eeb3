#include "batch/command_line.h"

#include <algorithm>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

std::size_t operandCount(const CommandForm& form) {
    return 1 +
           static_cast<std::size_t>(std::count(form.operands.begin(), form.operands.end(), ' '));
}

const CommandForm* formOf(std::string_view command) {
    const auto& forms = commandForms();
    const auto found = std::find_if(forms.begin(), forms.end(),
                                    [&](const CommandForm& form) { return form.name == command; });
    return found == forms.end() ? nullptr : &*found;
}

/// An option as the form shows it; nothing if the command has no such option.
std::optional<std::string_view> shownOption(const CommandForm& form, std::string_view option) {
    for (const auto shown : form.options)
        if (shown.substr(0, shown.find(' ')) == option)
            return shown;
    return std::nullopt;
}

std::string usageOf(const CommandForm& form) {
    std::string usage =
        "trabeon-batch " + std::string(form.name) + ' ' + std::string(form.operands);
    for (const auto option : form.options)
        usage += " [" + std::string(option) + ']';
    return usage;
}

}  // namespace

const std::vector<CommandForm>& commandForms() {
    static const std::vector<CommandForm> forms{
        {"run",
         "FILE.TB",
         {"--divisions N", "--places N", "--out DIR"},
         "Analyses a project and shows the balance table, the moments, the maxima and the "
         "reactions; "
         "with dimensions, also the governing sections of its design. The "
         "result files go to DIR, or to a folder beside the project that is named after it.",
         "trabeon-batch run examples/two-span-floor-beam.TB"},
        {"analyse",
         "DIR",
         {"--divisions N", "--places N"},
         "Analyses the beam whose working files stand in a folder, and leaves the result files "
         "there.",
         "trabeon-batch analyse work --divisions 20"},
        {"design",
         "DIR",
         {"--divisions N", "--cover MM", "--link MM", "--aggregate MM", "--no-restrict"},
         "Designs the sections of the analysed beam in a folder, at the divisions of its analysis, "
         "and "
         "leaves the design results there.",
         "trabeon-batch design work --aggregate 20"},
        {"tables",
         "DIR",
         {},
         "Writes the tables of bar areas and link resistances into a folder.",
         "trabeon-batch tables work"},
        {"unpack",
         "FILE.TB DIR",
         {},
         "Takes a project file apart into the working files of a folder.",
         "trabeon-batch unpack examples/two-span-floor-beam.TB work"},
        {"pack",
         "DIR FILE.TB",
         {"--title T", "--designer D", "--beam B"},
         "Packs the working files of a folder into a project file.",
         "trabeon-batch pack work beam.TB --title \"Warehouse\" --designer \"A. Engineer\" --beam "
         "B1"},
    };
    return forms;
}

std::string helpText() {
    std::string text =
        "Analyses continuous beams by Hardy Cross moment distribution and designs their\n"
        "reinforced concrete sections to BS 8110, without a window.\n";
    for (const auto& form : commandForms())
        text += "\n" + usageOf(form) + "\n    " + std::string(form.purpose) +
                "\n    Example: " + std::string(form.example) + "\n";
    return text +
           "\n--divisions: equal parts of each span, 1 to 10000 (default 10). --places: decimal "
           "places to\n"
           "which the position of a maximum is searched, 0 to 12 (default 3). --cover, --link and\n"
           "--aggregate: cover, assumed link size and aggregate size (defaults 25, 10, 0).\n"
           "--no-restrict: spans over 10 m keep their basic span to depth ratio.\n"
           "Exit code: 0 done, 1 refused or a section failed in shear (the reason stands on "
           "standard\n"
           "error), 2 wrong usage.\n";
}

std::optional<std::string> CommandLine::option(std::string_view name) const {
    for (auto it = options.rbegin(); it != options.rend(); ++it)
        if (it->first == name)
            return it->second;
    return std::nullopt;
}

Failure CommandLine::readNumber(std::string_view name, double& value) const {
    const auto text = option(name);
    if (!text)
        return std::nullopt;
    const auto number = numberOfWholeText(*text);
    if (!number)
        return Refusal{std::string(name) + " takes a number, not \"" + *text + "\"."};
    value = *number;
    return std::nullopt;
}

Outcome<CommandLine> readCommandLine(const std::vector<std::string>& words) {
    constexpr auto seeHelp = " See trabeon-batch --help.";
    if (std::find(words.begin(), words.end(), "--help") != words.end())
        return CommandLine{"--help", {}, {}};
    if (words.empty())
        return Refusal{std::string("A command is missing.") + seeHelp};
    const auto* form = formOf(words[0]);
    if (form == nullptr)
        return Refusal{"There is no command \"" + words[0] + "\"." + seeHelp};
    CommandLine line{words[0], {}, {}};
    for (std::size_t i = 1; i < words.size(); ++i) {
        const auto& word = words[i];
        if (!word.starts_with("--")) {
            line.operands.push_back(word);
            continue;
        }
        const auto sign = word.find('=');
        const auto name = word.substr(0, sign);
        const auto shown = shownOption(*form, name);
        if (!shown)
            return Refusal{"\"" + words[0] + "\" has no option " + name +
                           ". Usage: " + usageOf(*form)};
        if (shown == name) {
            if (sign != std::string::npos)
                return Refusal{name + " takes no value. Usage: " + usageOf(*form)};
            line.options.emplace_back(name, "");
            continue;
        }
        if (sign == std::string::npos && i + 1 == words.size())
            return Refusal{"A value is missing behind " + name + ". Usage: " + usageOf(*form)};
        line.options.emplace_back(name,
                                  sign == std::string::npos ? words[++i] : word.substr(sign + 1));
    }
    if (const auto wanted = operandCount(*form); line.operands.size() != wanted)
        return Refusal{"\"" + words[0] + "\" takes " + std::string(form->operands) + ", not " +
                       std::to_string(line.operands.size()) + " names. Usage: " + usageOf(*form)};
    return line;
}

}  // namespace trabeon
