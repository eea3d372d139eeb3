#include "core/analysis/member_loads.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

Refusal refusalOfRow(std::string_view load, std::size_t row, std::size_t member,
                     const Refusal& why) {
    return {"Row " + std::to_string(row) + " of the " + std::string(load) + "s, on member " +
            std::to_string(member) + ": " + why.sentence};
}

}  // namespace

PointLoad::PointLoad(const PointRow& row) : a(leadingNumber(row.a)), P(leadingNumber(row.P)) {}

Objection PointLoad::objection() const {
    if (std::isfinite(a) && std::isfinite(P))
        return std::nullopt;
    return Refusal{"a or P is too large. Enter a smaller number."};
}

UdlLoad::UdlLoad(const UdlRow& row)
    : a(leadingNumber(row.a)),
      b(leadingNumber(row.b)),
      w1(leadingNumber(row.w1)),
      w2(leadingNumber(row.w2)) {}

Objection UdlLoad::objection() const {
    if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(w1) || !std::isfinite(w2))
        return Refusal{"a, b, w1 or w2 is too large. Enter a smaller number."};
    if (b == 0)
        return Refusal{"its width b is 0. Give it a width, or make it a point load."};
    return std::nullopt;
}

template <class Load>
Outcome<MemberLoads<Load>> normalForm(std::vector<typename Load::Row> rows, std::size_t members) {
    struct Kept {
        std::size_t member, row;
        Load load;
    };
    std::vector<Kept> kept;
    kept.reserve(rows.size());
    for (std::size_t k = 0; k < rows.size(); ++k) {
        const Load load(rows[k]);
        const auto member = load.isZero() ? 0 : wholeNumberUpTo(members, rows[k].member);
        if (member == 0)
            continue;
        if (const auto why = load.objection())
            return refusalOfRow(Load::name, k + 1, member, *why);
        kept.push_back({member, k, load});
    }
    std::stable_sort(kept.begin(), kept.end(),
                     [](const Kept& a, const Kept& b) { return a.member < b.member; });

    MemberLoads<Load> normal;
    normal.rows.reserve(kept.size() + members);
    normal.loads.reserve(kept.size() + members);
    normal.first.assign(members + 2, 0);
    auto next = kept.begin();
    for (std::size_t i = 1; i <= members; ++i) {
        normal.first[i] = normal.rows.size();
        for (; next != kept.end() && next->member == i; ++next) {
            normal.rows.push_back(std::move(rows[next->row]));
            normal.loads.push_back(next->load);
        }
        if (normal.first[i] == normal.rows.size()) {
            normal.rows.push_back(Load::zeroRow());
            normal.loads.emplace_back(normal.rows.back());
        }
        for (auto k = normal.first[i]; k < normal.rows.size(); ++k)
            normal.rows[k].member = generatedText(i);
    }
    normal.first[members + 1] = normal.rows.size();
    return normal;
}

template Outcome<MemberLoads<PointLoad>> normalForm(std::vector<PointRow>, std::size_t);
template Outcome<MemberLoads<UdlLoad>> normalForm(std::vector<UdlRow>, std::size_t);

}  // namespace trabeon
