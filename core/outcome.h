// The results of operations and checks that can fail.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>

namespace trabeon {

/// Why something was not done: one sentence for the user that names the problem and the solution.
struct Refusal {
    std::string sentence;
};

/// What a check found: the reason to refuse, or nothing.
using Objection = std::optional<Refusal>;

/// The result of an operation that gives no value: it was done, or it failed for a reason.
class [[nodiscard]] Status {
  public:
    Status() = default;                                                // done
    Status(Refusal refusal) : objection_(std::move(refusal)) {}        // NOLINT: implicit
    Status(Objection objection) : objection_(std::move(objection)) {}  // NOLINT: implicit

    [[nodiscard]] bool done() const { return !failed(); }
    [[nodiscard]] bool failed() const { return objection_.has_value(); }
    /// The reason. Call it only after a failure.
    [[nodiscard]] const Refusal& refusal() const { return *objection_; }

  private:
    Objection objection_;
};

/// The result of an operation that returns a value: the value, or the reason why there is none.
template <class Value>
class [[nodiscard]] Outcome {
  public:
    Outcome(Value value) : content_(std::move(value)) {}        // NOLINT: implicit
    Outcome(Refusal refusal) : content_(std::move(refusal)) {}  // NOLINT: implicit

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
