// The words of a command line: what is asked for, or one line that says what is wrong.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/outcome.h"

namespace trabeon {

/// A command as users call it.
struct CommandForm {
    std::string_view name;
    std::string_view operands;  // as the help shows them: "DIR FILE.TB"
    std::vector<std::string_view>
        options;  // as the help shows them: "--places N" takes a value, "--no-restrict" none
    std::string_view purpose;
    std::string_view example;
};

/// All commands of trabeon-batch.
[[nodiscard]] const std::vector<CommandForm>& commandForms();

/// What `--help` prints.
[[nodiscard]] std::string helpText();

/// A command line that fits one of the forms.
struct CommandLine {
    std::string command;
    std::vector<std::string> operands;
    std::vector<std::pair<std::string, std::string>> options;  // name with its dashes, value

    [[nodiscard]] std::optional<std::string> option(std::string_view name) const;

    /// Puts the number of an option, if it is there, into value; refuses what is no number.
    [[nodiscard]] Failure readNumber(std::string_view name, double& value) const;
};

/// Reads the words behind the program's name. "--help" anywhere is the command "--help". Options
/// stand anywhere behind the command, as "--name value" or "--name=value"; the last one counts.
[[nodiscard]] Outcome<CommandLine> readCommandLine(const std::vector<std::string>& words);

}  // namespace trabeon
