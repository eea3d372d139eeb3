#include "batch/command_line.h"

#include <algorithm>

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

bool takes(const CommandForm& form, std::string_view option) {
    return std::any_of(form.options.begin(), form.options.end(), [&](std::string_view shown) {
        return shown.substr(0, shown.find(' ')) == option;
    });
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
         "reactions. The "
         "result files go to DIR, or to a folder beside the project that is named after it.",
         "trabeon-batch run examples/two-span-floor-beam.TB"},
        {"analyse",
         "DIR",
         {"--divisions N", "--places N"},
         "Analyses the beam whose working files stand in a folder, and leaves the result files "
         "there.",
         "trabeon-batch analyse work --divisions 20"},
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
        "Analyses continuous beams by Hardy Cross moment distribution, without a window.\n";
    for (const auto& form : commandForms())
        text += "\n" + usageOf(form) + "\n    " + std::string(form.purpose) +
                "\n    Example: " + std::string(form.example) + "\n";
    return text +
           "\n--divisions: equal parts of each span, 1 to 10000 (default 10). --places: decimal "
           "places to\n"
           "which the position of a maximum is searched, 0 to 12 (default 3).\n"
           "Exit code: 0 done, 1 refused (the reason stands on standard error), 2 wrong usage.\n";
}

std::optional<std::string> CommandLine::option(std::string_view name) const {
    for (auto it = options.rbegin(); it != options.rend(); ++it)
        if (it->first == name)
            return it->second;
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
        if (!takes(*form, name))
            return Refusal{"\"" + words[0] + "\" has no option " + name +
                           ". Usage: " + usageOf(*form)};
        if (sign == std::string::npos && i + 1 == words.size())
            return Refusal{"A value is missing behind " + name + ". Usage: " + usageOf(*form)};
        line.options.emplace_back(name,
                                  sign == std::string::npos ? words[++i] : word.substr(sign + 1));
    }
    if (line.operands.size() != operandCount(*form))
        return Refusal{"Usage: " + usageOf(*form)};
    return line;
}

}  // namespace trabeon
