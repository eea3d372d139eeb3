#include "core/design/flexure.h"

#include <algorithm>
#include <cmath>

namespace trabeon {
namespace {

/// The depth of the neutral axis that belongs to a lever arm: the stress block is 0.9 x deep.
double neutralAxis(double d, double z) {
    return (d - z) / 0.45;
}

/// Hogging turns the section over; a moment of exactly 0 counts as sagging.
bool isSagging(double OriginMoment) {
    return OriginMoment >= 0;
}

}  // namespace

double bendingRatio(double b, double d, double fcu, double Moment) {
    return Moment * 1e6 / (b * d * d * fcu);
}

double leverArm(double d, double K) {
    return std::min(d * (0.5 + std::sqrt(0.25 - K / 0.9)), 0.9 * d);
}

double compressionSteelDepth(double cover) {
    return cover + 25.0 / 2;
}

double compressionSteelStress(double d, double dPrime, double fy, double YM) {
    if (!(dPrime / d > 0.215))
        return 0.87 * fy;
    const double x = neutralAxis(d, leverArm(d, greatestSinglyReinforcedK));
    return 0.0035 * (x - dPrime) / x * YM;
}

SteelAreas steelFor(const SectionData& section, double dPrime) {
    const double b = section.b, d = section.d, fcu = section.fcu, fy = section.fy;
    const double M = section.Moment * 1e6;
    const double K = bendingRatio(b, d, fcu, section.Moment);
    if (K < greatestSinglyReinforcedK)
        return {M / (0.87 * fy * leverArm(d, K)), 0};
    const double fsc = compressionSteelStress(d, dPrime, fy, section.YM);
    const double Asp = (K - greatestSinglyReinforcedK) * fcu * b * d * d / (fsc * (d - dPrime));
    const double z = leverArm(d, greatestSinglyReinforcedK);
    return {greatestSinglyReinforcedK * fcu * b * d * d / (0.87 * fy * z) + Asp, Asp};
}

Reinforcement DesignMoment(SectionData& section, const MiscProperties& misc) {
    section.d = section.effd;
    const auto [As, Asp] = steelFor(section, compressionSteelDepth(misc.cover));
    Reinforcement steel;
    steel.Asreq = isSagging(section.OriginMoment) ? As : Asp;
    steel.Aspreq = isSagging(section.OriginMoment) ? Asp : As;
    return steel;
}

MinimumSteel MinReinforcement(double fy, double b, double d) {
    return {(fy <= 250 ? 0.24 : 0.2) * b * d / 100, 0.2 * b * d / 100};
}

double MaxReinforcement(double b, double d) {
    return 4 * b * d / 100;
}

void raiseToMinimum(double OriginMoment, const MinimumSteel& minimum, Reinforcement& steel) {
    double& tension = isSagging(OriginMoment) ? steel.Asreq : steel.Aspreq;
    double& compression = isSagging(OriginMoment) ? steel.Aspreq : steel.Asreq;
    tension = std::max(tension, minimum.MinTenRein);
    compression = std::max(compression, minimum.MinCompRein);
}

}  // namespace trabeon
