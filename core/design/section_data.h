// What a section is designed from.
#pragma once

namespace trabeon {

/// The size, the materials and the forces of a section, in the order in which GetData reads them.
struct SectionData {
    double b = 0;             // breadth, mm
    double d = 0;             // overall depth, mm; from DesignMoment on the effective depth
    double effd = 0;          // effective depth, mm
    double fcu = 0;           // strength of the concrete, N/mm2
    double fy = 0;            // strength of the main steel, N/mm2
    double YM = 0;            // modulus of the steel, N/mm2
    double fyv = 0;           // strength of the links, N/mm2
    double L = 0;             // length of the member, m
    double dist = 0;          // distance from the member's left end, m
    double Moment = 0;        // bending moment without its sign, kNm
    double Shear = 0;         // shear force without its sign, kN
    double OriginMoment = 0;  // bending moment, sagging positive, kNm
    double OriginShear = 0;   // shear force with its sign, kN

    bool operator==(const SectionData&) const = default;
};

}  // namespace trabeon
