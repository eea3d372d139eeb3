// A word processor as its callers know it: an object whose members are called by name.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace trabeon {

using Value = std::variant<bool, int, double, std::string>;

/// An argument with its name, or with none where its place tells what it is.
struct Argument {
    std::string_view name;
    Value value;
};

using Arguments = std::vector<Argument>;

/// Builds a document from the calls that it gets; a test's one writes them down.
class WordProcessor {
  public:
    WordProcessor() = default;
    virtual ~WordProcessor() = default;
    WordProcessor(const WordProcessor&) = delete;
    WordProcessor& operator=(const WordProcessor&) = delete;

    /// Calls a member of the object ("Selection.TypeText"). A member that the object does not have
    /// ends the program.
    virtual void Call(std::string_view member, const Arguments& arguments = {}) = 0;

    void Set(std::string_view property, Value value) { Call(property, {{"", std::move(value)}}); }
};

}  // namespace trabeon
