#include "core/design/bars.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr double pi = 3.141592654;
constexpr std::array<double, 5> sizes{10, 12, 16, 20, 25};

double areaOf(double count, double size) {
    return count * pi * ((size / 2) * (size / 2));
}

double areaProvided(const Bars& bars) {
    return pi * bars.size * bars.size / 4 * bars.count;
}

std::string textOf(const Bars& bars, double fy) {
    return generatedText(bars.count) + gradeLetter(fy) + generatedText(bars.size);
}

}  // namespace

char gradeLetter(double strength) {
    return strength <= 250 ? 'R' : 'Y';
}

double barsNeeded(double area, double size) {
    double count = std::max(0.0, std::ceil(area / areaOf(1, size)));
    if (count > 0 && areaOf(count - 1, size) >= area)  // the quotient was rounded up,
        --count;
    if (areaOf(count, size) < area)  // or down
        ++count;
    return count == 1 ? 2 : count;
}

double breadthNeeded(const Bars& bars, const MiscProperties& misc) {
    return bars.count * bars.size + (bars.count - 1) * (2 * misc.hagg + 5) + 2 * misc.links +
           2 * misc.cover;
}

Bars barsFor(double area, double b, const MiscProperties& misc) {
    Bars chosen;
    for (const double size : sizes) {
        const Bars bars{barsNeeded(area, size), size};
        if (!(breadthNeeded(bars, misc) < b || size == sizes.back()))
            continue;
        chosen = bars;
        if (bars.count < 3)
            break;
    }
    return chosen;
}

void ProvideReinforcement(double b, double fy, Reinforcement& steel, const MiscProperties& misc) {
    const auto lower = barsFor(steel.Asreq, b, misc);
    const auto upper = barsFor(steel.Aspreq, b, misc);
    steel.Asprov = areaProvided(lower);
    steel.Aspprov = areaProvided(upper);
    steel.MomentRein = textOf(lower, fy) + " &  " + textOf(upper, fy);
}

}  // namespace trabeon
