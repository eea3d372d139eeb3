// What an operation answers that may well fail.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace trabeon {

/// Why something was not done: one sentence for the user that names the thing and the cure.
struct Refusal {
    std::string sentence;
};

/// Nothing when all went well.
using Failure = std::optional<Refusal>;

/// The value asked for, or why there is none.
template <class Value>
class [[nodiscard]] Outcome {
  public:
    Outcome(Value value) : content_(std::move(value)) {}        // NOLINT: a value is an outcome
    Outcome(Refusal refusal) : content_(std::move(refusal)) {}  // NOLINT: and so is a refusal

    explicit operator bool() const { return content_.index() == 0; }
    Value& operator*() { return std::get<0>(content_); }
    const Value& operator*() const { return std::get<0>(content_); }
    Value* operator->() { return &std::get<0>(content_); }
    const Value* operator->() const { return &std::get<0>(content_); }
    [[nodiscard]] const Refusal& refusal() const { return std::get<1>(content_); }

  private:
    std::variant<Value, Refusal> content_;
};

}  // namespace trabeon
