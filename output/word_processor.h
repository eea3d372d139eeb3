// The interface of a word processor: an object with members that are called by name.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace trabeon {

using Value = std::variant<bool, int, double, std::string>;

/// An argument. The name is empty for an argument by position.
struct Argument {
    std::string_view name;
    Value value;
};

using Arguments = std::vector<Argument>;

/// Builds a document from the calls. The one in the tests records them.
class WordProcessor {
  public:
    WordProcessor() = default;
    virtual ~WordProcessor() = default;
    WordProcessor(const WordProcessor&) = delete;
    WordProcessor& operator=(const WordProcessor&) = delete;

    /// Calls a member of the object, for example "Selection.TypeText". An unknown member is a bug
    /// and fails an assertion.
    virtual void Call(std::string_view member, const Arguments& arguments = {}) = 0;

    void Set(std::string_view property, Value value) { Call(property, {{"", std::move(value)}}); }
};

}  // namespace trabeon
