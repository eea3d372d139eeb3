// Reads a command line. A refusal is one line that says what is wrong.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/outcome.h"

namespace trabeon {

/// Exit codes: 0 done, 1 refused, 2 wrong command line.
enum class Exit { done = 0, refused = 1, usage = 2 };

struct CommandForm;

/// A command line that matches one of the command forms.
struct CommandLine {
    const CommandForm* command = nullptr;  // none: "--help"
    std::vector<std::string> operands;
    std::vector<std::pair<std::string, std::string>> options;  // name with its dashes, value

    [[nodiscard]] std::optional<std::string> option(std::string_view name) const;

    /// Sets `value` to the number of an option, if the option is there. Refuses a text that is not
    /// a number.
    [[nodiscard]] Status readNumber(std::string_view name, double& value) const;
};

/// A command as users call it, and the function that carries it out.
struct CommandForm {
    std::string_view name;
    Exit (*execute)(const CommandLine& line);
    std::string_view operands;  // as the help shows them: "DIR FILE.TB", "FILE.TB [FILE.TB ...]"
    std::vector<std::string_view>
        options;  // as the help shows them: "--places N" takes a value, "--no-restrict" none
    std::string_view purpose;
    std::string_view example;
};

/// What `--help` prints.
[[nodiscard]] std::string helpText(const std::vector<CommandForm>& commands);

/// Reads the words after the program's name. `commands` must outlive the line. "--help" anywhere
/// gives a line without a command. Options come anywhere after the command, as "--name value" or
/// "--name=value"; the last one counts.
[[nodiscard]] Outcome<CommandLine> readCommandLine(const std::vector<std::string>& words,
                                                   const std::vector<CommandForm>& commands);

}  // namespace trabeon
