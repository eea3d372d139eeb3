#include "batch/messages.h"

#include <algorithm>
#include <cstdio>

namespace trabeon {

void complain(std::string_view sentence) {
    std::string line(sentence);
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
    std::fprintf(stderr, "%s\n", line.c_str());
}

Exit refused(const Refusal& refusal) {
    complain(refusal.sentence);
    return Exit::refused;
}

Exit wrongUsage(const Refusal& refusal) {
    complain("trabeon-batch: " + refusal.sentence);
    return Exit::usage;
}

void showComplaints(const Answer& answer, std::string_view file) {
    const auto name = file.empty() ? std::string() : std::string(file) + ": ";
    for (const auto& sentence : answer.complaints)
        complain(name + sentence);
}

}  // namespace trabeon
