// Sentences for the user on standard error.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "batch/command_line.h"

namespace trabeon {

/// Writes one line to standard error.
void complain(std::string_view sentence);

/// Says why a command was refused, or how its words are wrong, and returns the exit code.
Exit refused(const Refusal& refusal);
Exit wrongUsage(const Refusal& refusal);

/// What the work on one of several files says. It is kept until the turn of that file.
struct Answer {
    std::string out;                      // for standard output
    std::vector<std::string> complaints;  // for standard error, one line each
    Exit end = Exit::done;

    void refuse(const Refusal& refusal) {
        complaints.push_back(refusal.sentence);
        end = Exit::refused;
    }
};

/// Writes the complaints to standard error. With a file's name each of them begins with it.
void showComplaints(const Answer& answer, std::string_view file);

/// The answer of some work. An exception, as from memory that ran out, refuses that file only.
template <class Work>
[[nodiscard]] Answer answerOf(const Work& work) {
    Answer answer;
    try {
        answer = work();
    } catch (const std::bad_alloc&) {
        answer.refuse({"There is not enough memory for this file."});
    } catch (const std::exception& error) {
        answer.refuse({std::string("The command failed (") + error.what() + ")."});
    }
    return answer;
}

}  // namespace trabeon
