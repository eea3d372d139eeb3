// The longitudinal steel of a section.
#pragma once

#include <string>

namespace trabeon {

/// Areas in mm2. The first face is the lower one, which is in tension under a sagging moment; the
/// primed quantities (Asp...) belong to the upper face.
struct Reinforcement {
    double Asreq = 0, Aspreq = 0;    // required
    double Asprov = 0, Aspprov = 0;  // provided
    std::string MomentRein;          // the bars of both faces: " 3Y 25 &   2Y 12"
};

}  // namespace trabeon
