#include "core/design/links.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "core/design/bars.h"
#include "core/text/number_text.h"

namespace trabeon {
namespace {

constexpr double pi = 3.1415936512;
constexpr std::array<double, 4> sizes{6, 8, 10, 12};
constexpr double closestSpacing = 100;
constexpr int maxSets = 20;

struct Links {
    double sets = 0, size = 0, spacing = 0;
};

/// The widest spacing that is enough, if one is. The quotient is at most one step off, so only that
/// step is walked.
std::optional<double> widestSpacing(double sets, double size, double AsvOsvreq, double widest) {
    if (!(linksProvided(sets, size, closestSpacing) > AsvOsvreq))
        return std::nullopt;
    double spacing = widest;
    if (AsvOsvreq > 0)
        spacing = std::min(widest, std::floor(linksProvided(sets, size, 1) / AsvOsvreq) + 1);
    while (!(linksProvided(sets, size, spacing) > AsvOsvreq))
        --spacing;
    return spacing;
}

std::optional<Links> firstLinks(double widest, double AsvOsvreq) {
    if (!(widest >= closestSpacing))
        return std::nullopt;
    for (int sets = 1; sets <= maxSets; ++sets)
        for (const double size : sizes)
            if (const auto spacing = widestSpacing(sets, size, AsvOsvreq, widest))
                return Links{static_cast<double>(sets), size, *spacing};
    return std::nullopt;
}

}  // namespace

double legArea(double size) {
    return pi * size * size / 4;
}

double linksProvided(double sets, double size, double spacing) {
    return sets * 2 * legArea(size) / spacing;
}

ShearLinks ProvideShearLinks(double fyv, double d, double AsvOsvreq) {
    const auto links = firstLinks(std::floor(0.75 * d), AsvOsvreq);
    if (!links)
        return {};
    const auto& [sets, size, spacing] = *links;
    return {linksProvided(sets, size, spacing), generatedText(sets) + gradeLetter(fyv) +
                                                    generatedText(size) + '-' +
                                                    generatedText(spacing)};
}

}  // namespace trabeon
