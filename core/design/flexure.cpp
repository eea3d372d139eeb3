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

SteelAreas steelFor(double b, double d, double fcu, double fy, double YM, double Moment,
                    double dPrime) {
    const double K = bendingRatio(b, d, fcu, Moment);
    if (K < greatestSinglyReinforcedK)
        return {Moment * 1e6 / (0.87 * fy * leverArm(d, K)), 0};
    const double fsc = compressionSteelStress(d, dPrime, fy, YM);
    const double Asp = (K - greatestSinglyReinforcedK) * fcu * b * d * d / (fsc * (d - dPrime));
    const double z = leverArm(d, greatestSinglyReinforcedK);
    return {greatestSinglyReinforcedK * fcu * b * d * d / (0.87 * fy * z) + Asp, Asp};
}

void DesignMoment(double b, double& d, double effd, double fcu, double fy, double YM,
                  double /*fyv*/, double /*L*/, double /*x*/, double Moment, double /*Shear*/,
                  double& Asreq, double& Aspreq, double OriginMoment, double /*OriginShear*/,
                  const MiscProperties& misc) {
    d = effd;
    const auto steel = steelFor(b, d, fcu, fy, YM, Moment, compressionSteelDepth(misc.cover));
    Asreq = isSagging(OriginMoment) ? steel.As : steel.Asp;
    Aspreq = isSagging(OriginMoment) ? steel.Asp : steel.As;
}

void MinReinforcement(double fy, double b, double d, double& MinTenRein, double& MinCompRein) {
    MinTenRein = (fy <= 250 ? 0.24 : 0.2) * b * d / 100;
    MinCompRein = 0.2 * b * d / 100;
}

void MaxReinforcement(double b, double d, double& MaxRein) {
    MaxRein = 4 * b * d / 100;
}

void raiseToMinimum(double OriginMoment, double MinTenRein, double MinCompRein, double& Asreq,
                    double& Aspreq) {
    double& tension = isSagging(OriginMoment) ? Asreq : Aspreq;
    double& compression = isSagging(OriginMoment) ? Aspreq : Asreq;
    tension = std::max(tension, MinTenRein);
    compression = std::max(compression, MinCompRein);
}

}  // namespace trabeon
