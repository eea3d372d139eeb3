#include "core/design/shear.h"

#include <algorithm>
#include <cmath>

namespace trabeon {

double shearStress(double b, double d, double Shear) {
    return Shear * 1e3 / (b * d);
}

double greatestShearStress(double fcu) {
    return std::min(0.87 * std::sqrt(fcu), 5.0);
}

double concreteShearStress(double b, double d, double fcu, double Asprov) {
    const double percentage = std::min(100 * Asprov / (b * d), 3.0);
    const double depthFactor = std::min(400 / d, 1.0);
    const double strengthFactor = std::cbrt(std::min(fcu, 40.0) / 25);
    return 0.79 * std::cbrt(percentage) * std::pow(depthFactor, 0.25) / 1.25 * strengthFactor;
}

double linksRequired(double b, double fyv, double v, double vc) {
    const double stress = v <= vc + 0.4 ? 0.4 : v - vc;
    return stress * b / (0.87 * fyv);
}

std::optional<double> DesignShear(const SectionData& section, double Asprov) {
    const double v = shearStress(section.b, section.d, section.Shear);
    if (v > greatestShearStress(section.fcu))
        return std::nullopt;
    const double vc = concreteShearStress(section.b, section.d, section.fcu, Asprov);
    return linksRequired(section.b, section.fyv, v, vc);
}

}  // namespace trabeon
