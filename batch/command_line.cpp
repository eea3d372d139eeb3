#include "batch/command_line.h"

#include <algorithm>

#include "core/text/number_text.h"
#include "core/text/readable.h"

namespace trabeon {
namespace {

/// "FILE.TB [FILE.TB ...] TABLE" takes two names or more, "DIR FILE.TB" just two.
bool takesNames(const CommandForm& form, std::size_t count) {
    const auto optional = form.operands.find('[');
    const auto blanks = std::count(form.operands.begin(), form.operands.end(), ' ');
    if (optional == form.operands.npos)
        return count == static_cast<std::size_t>(1 + blanks);
    constexpr int blanksOfOptional = 2;
    return count >= static_cast<std::size_t>(1 + blanks - blanksOfOptional);
}

const CommandForm* formOf(std::string_view command, const std::vector<CommandForm>& commands) {
    const auto found = std::find_if(commands.begin(), commands.end(),
                                    [&](const CommandForm& form) { return form.name == command; });
    return found == commands.end() ? nullptr : &*found;
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

std::string helpText(const std::vector<CommandForm>& commands) {
    std::string text =
        "Analyses continuous beams by Hardy Cross moment distribution and designs their\n"
        "reinforced concrete sections to BS 8110. Needs no display.\n";
    for (const auto& form : commands)
        text += "\n" + usageOf(form) + "\n    " + std::string(form.purpose) +
                "\n    Example: " + std::string(form.example) + "\n";
    return text +
           "\n--format csv|json  comma separated values (default) or JSON\n"
           "--divisions N    equal parts of each span, 1 to 10000 (default 10)\n"
           "--places N       decimal places of the position of a maximum, 0 to 12 (default 3)\n"
           "--cover MM       concrete cover (default 25)\n"
           "--link MM        assumed size of the links (default 10)\n"
           "--aggregate MM   largest size of the aggregate (default 0)\n"
           "--no-restrict    do not reduce the span to depth ratio of spans over 10 m\n"
           "\nAll cores work on several projects. The results come in the order of the names.\n"
           "A refused project is named on standard error; the others go on.\n"
           "\nExit code: 0 done\n"
           "           1 refused; or done, but a section fails in shear or a table is outdated\n"
           "             (standard error gives the reason)\n"
           "           2 wrong command line\n";
}

std::optional<std::string> CommandLine::option(std::string_view name) const {
    for (auto it = options.rbegin(); it != options.rend(); ++it)
        if (it->first == name)
            return it->second;
    return std::nullopt;
}

Status CommandLine::readNumber(std::string_view name, double& value) const {
    const auto text = option(name);
    if (!text)
        return {};
    const auto number = numberOfWholeText(*text);
    if (!number)
        return Refusal{std::string(name) + " takes a number, not \"" + excerpt(*text) + "\"."};
    value = *number;
    return {};
}

Outcome<CommandLine> readCommandLine(const std::vector<std::string>& words,
                                     const std::vector<CommandForm>& commands) {
    constexpr auto seeHelp = " See trabeon-batch --help.";
    if (std::find(words.begin(), words.end(), "--help") != words.end())
        return CommandLine{};
    if (words.empty())
        return Refusal{std::string("A command is missing.") + seeHelp};
    const auto* form = formOf(words[0], commands);
    if (form == nullptr)
        return Refusal{"There is no command \"" + excerpt(words[0]) + "\"." + seeHelp};
    CommandLine line{form, {}, {}};
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
            return Refusal{"\"" + words[0] + "\" has no option " + excerpt(name) +
                           ". Usage: " + usageOf(*form)};
        if (shown == name) {
            if (sign != std::string::npos)
                return Refusal{name + " takes no value. Usage: " + usageOf(*form)};
            line.options.emplace_back(name, "");
            continue;
        }
        if (sign == std::string::npos && i + 1 == words.size())
            return Refusal{"A value is missing after " + name + ". Usage: " + usageOf(*form)};
        line.options.emplace_back(name,
                                  sign == std::string::npos ? words[++i] : word.substr(sign + 1));
    }
    if (!takesNames(*form, line.operands.size()))
        return Refusal{"\"" + words[0] + "\" takes " + std::string(form->operands) + ", not " +
                       std::to_string(line.operands.size()) + " names. Usage: " + usageOf(*form)};
    return line;
}

}  // namespace trabeon
