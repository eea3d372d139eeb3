// The loads of a beam in normal form: in member order, every member with at least one row.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "core/outcome.h"
#include "core/store/rows.h"

namespace trabeon {

/// P, positive downward, at the distance a from the member's left joint.
struct PointLoad {
    double a = 0, P = 0;

    using Row = PointRow;
    static constexpr std::string_view name = "point load";
    explicit PointLoad(const PointRow& row);
    [[nodiscard]] bool isZero() const { return P == 0; }
    [[nodiscard]] std::array<double, 2> numbers() const { return {a, P}; }
    [[nodiscard]] static PointRow zeroRow() { return {"", "1", "0", "Zero Load"}; }
    [[nodiscard]] Objection objection() const;
};

/// A load whose intensity goes straight from w1 at a to w2 at a + b, positive downward.
struct UdlLoad {
    double a = 0, b = 0, w1 = 0, w2 = 0;

    using Row = UdlRow;
    static constexpr std::string_view name = "distributed load";
    explicit UdlLoad(const UdlRow& row);
    [[nodiscard]] bool isZero() const { return w1 == 0 && w2 == 0; }
    [[nodiscard]] std::array<double, 4> numbers() const { return {a, b, w1, w2}; }
    [[nodiscard]] static UdlRow zeroRow() { return {"", "0", "1", "0", "0", "Zero Load"}; }
    [[nodiscard]] Objection objection() const;

    /// The force of the load on the first t of its width; t = b gives the whole load.
    [[nodiscard]] double resultant(double t) const { return t * (w1 + intensityAt(t)) / 2; }

    /// The moment of the load on the first t of its width, about a point at the distance c from the
    /// start of the load.
    [[nodiscard]] double momentAbout(double c, double t) const {
        return t / 6 * (w1 * (3 * c - t) + intensityAt(t) * (3 * c - 2 * t));
    }

  private:
    [[nodiscard]] double intensityAt(double t) const {
        return t == b ? w2 : w1 + (w2 - w1) * (t / b);
    }
};

/// One load file in normal form, as text and as numbers in the same order.
template <class Load>
struct MemberLoads {
    std::vector<typename Load::Row> rows;
    std::vector<Load> loads;
    std::vector<std::size_t> first;  // of member i from 1 on; first[n + 1] is the count of loads

    [[nodiscard]] std::span<const Load> on(std::size_t member) const {
        return std::span(loads).subspan(first[member], first[member + 1] - first[member]);
    }
};

/// Drops the rows whose load is 0 or whose member is not from 1 to `members`. Sorts the rest
/// by member; rows of one member keep their order. Writes member numbers as generated text, and
/// gives every member without a load a "Zero Load" row. Refuses a load that cannot be calculated:
/// a number that is not finite, or a distributed load on a width of 0. The refusal names the row's
/// place among `rows`.
template <class Load>
[[nodiscard]] Outcome<MemberLoads<Load>> normalForm(std::vector<typename Load::Row> rows,
                                                    std::size_t members);

extern template Outcome<MemberLoads<PointLoad>> normalForm(std::vector<PointRow>, std::size_t);
extern template Outcome<MemberLoads<UdlLoad>> normalForm(std::vector<UdlRow>, std::size_t);

}  // namespace trabeon
