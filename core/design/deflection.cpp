#include "core/design/deflection.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/design/notes.h"
#include "core/rules/joint_types.h"

namespace trabeon {

SpanKind spanKind(std::string_view leftType, std::string_view rightType) {
    const auto left = jointOf(leftType), right = jointOf(rightType);
    if (left == Joint::cantilever || right == Joint::cantilever)
        return SpanKind::cantilever;
    if (left == Joint::pin || right == Joint::pin)
        return SpanKind::simplySupported;
    return SpanKind::continuous;
}

SpanKind spanKind(const std::vector<JointRow>& joints, std::size_t Member) {
    const auto typeOf = [&](std::size_t joint) {
        return joint <= joints.size() ? std::string_view(joints[joint - 1].type) : "";
    };
    return spanKind(typeOf(Member), typeOf(Member + 1));
}

double basicRatio(SpanKind kind, double b) {
    const double webRatio = 1 / b;
    if (webRatio > 0.3)
        return 20.8 + (webRatio - 0.3) * (5.2 / 0.7);
    if (kind == SpanKind::cantilever)
        return 5.6;
    return kind == SpanKind::simplySupported ? 16 : 20.8;
}

std::optional<double> ratioForLength(SpanKind kind, double b, double L, bool restrictDeflection) {
    const double ratio = basicRatio(kind, b);
    if (!(L > 10 && restrictDeflection))
        return ratio;
    if (kind == SpanKind::cantilever)
        return std::nullopt;
    return ratio * 10 / L;
}

double serviceStress(double fy, double Asreq, double Asprov) {
    return 5.0 / 8 * fy * Asreq / Asprov;
}

double tensionFactor(const SectionData& section, double Asreq, double Asprov) {
    if (Asprov == 0)
        return 1;
    const double m = std::fabs(section.Moment) * 1e6 / (section.b * section.d * section.d);
    const double fs = serviceStress(section.fy, Asreq, Asprov);
    return std::min(0.55 + (477 - fs) / (120 * (0.9 + m)), 2.0);
}

double compressionFactor(double Aspprov, double b, double d) {
    const double p = 100 * Aspprov / (b * d);
    return std::min(1 + p / (3 + p), 1.5);
}

Deflection DesignDeflection(const SectionData& section, SpanKind kind, const Reinforcement& steel,
                            bool restrictDeflection, std::string DefNote) {
    const auto ratio = ratioForLength(kind, section.b, section.L, restrictDeflection);
    if (!ratio)
        return {0, 0, std::string(note::manualCalculation)};
    const double DefAllow = *ratio * tensionFactor(section, steel.Asreq, steel.Asprov) *
                            compressionFactor(steel.Aspprov, section.b, section.d);
    const double DefActual = section.L * 1e3 / section.d;
    DefNote += DefActual > DefAllow ? note::deflectionFailed : note::deflectionOK;
    return {DefActual, DefAllow, std::move(DefNote)};
}

}  // namespace trabeon
