#include "core/analysis/member_loads.h"

#include <cmath>
#include <string>
#include <utility>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

Refusal named(std::string_view load, std::size_t row, std::size_t member, const Refusal& why) {
    return {"Row " + std::to_string(row) + " of the " + std::string(load) + "s, on member " +
            std::to_string(member) + ": " + why.sentence};
}

}  // namespace

std::size_t memberOf(std::string_view text, std::size_t members) {
    const double number = leadingNumber(text);
    const bool one =
        number >= 1 && number <= static_cast<double>(members) && number == std::floor(number);
    return one ? static_cast<std::size_t>(number) : 0;
}

PointLoad::PointLoad(const PointRow& row) : a(leadingNumber(row.a)), P(leadingNumber(row.P)) {}

Failure PointLoad::unfit() const {
    if (std::isfinite(a) && std::isfinite(P))
        return std::nullopt;
    return Refusal{"a or P is too large a number. Enter a smaller one."};
}

UdlLoad::UdlLoad(const UdlRow& row)
    : a(leadingNumber(row.a)),
      b(leadingNumber(row.b)),
      w1(leadingNumber(row.w1)),
      w2(leadingNumber(row.w2)) {}

Failure UdlLoad::unfit() const {
    if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(w1) || !std::isfinite(w2))
        return Refusal{"a, b, w1 or w2 is too large a number. Enter a smaller one."};
    if (b == 0)
        return Refusal{"its width b is 0. Give it a width, or make it a point load."};
    return std::nullopt;
}

template <class Load>
Outcome<MemberLoads<Load>> normalForm(std::vector<typename Load::Row> rows, std::size_t members) {
    // Loads counted per member give each member's place; the rows then go there in their order.
    std::vector<std::pair<std::size_t, Load>>
        kept;  // member and load, row by row; member 0: dropped
    std::vector<std::size_t> first(members + 2, 0);
    kept.reserve(rows.size());
    for (std::size_t k = 0; k < rows.size(); ++k) {
        Load load(rows[k]);
        const auto member = load.isZero() ? 0 : memberOf(rows[k].member, members);
        if (member > 0)
            if (const auto why = load.unfit())
                return named(Load::name, k + 1, member, *why);
        kept.emplace_back(member, load);
        if (member > 0)
            ++first[member];
    }
    std::size_t place = 0;
    for (std::size_t i = 1; i <= members; ++i) {
        const auto count = std::max<std::size_t>(first[i], 1);
        first[i] = place;
        place += count;
    }
    first[members + 1] = place;

    MemberLoads<Load> normal{{}, {}, std::move(first)};
    normal.rows.resize(place);
    normal.loads.resize(place, Load(Load::zeroRow()));
    auto next = normal.first;
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const auto member = kept[k].first;
        if (member == 0)
            continue;
        normal.rows[next[member]] = std::move(rows[k]);
        normal.loads[next[member]++] = kept[k].second;
    }
    for (std::size_t i = 1; i <= members; ++i) {
        if (next[i] == normal.first[i])
            normal.rows[next[i]] = Load::zeroRow();
        const auto number = generatedText(static_cast<double>(i));
        for (auto k = normal.first[i]; k < normal.first[i + 1]; ++k)
            normal.rows[k].member = number;
    }
    return normal;
}

template Outcome<MemberLoads<PointLoad>> normalForm(std::vector<PointRow>, std::size_t);
template Outcome<MemberLoads<UdlLoad>> normalForm(std::vector<UdlRow>, std::size_t);

}  // namespace trabeon
