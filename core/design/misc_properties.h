// The properties that all sections of a beam have in common.
#pragma once

namespace trabeon {

/// cover, links (the assumed link size) and hagg (the aggregate size) in mm. restrictDeflection:
/// spans over 10 m are held to a smaller ratio, so that finishes and partitions stay whole.
struct MiscProperties {
    double cover = 25;
    double links = 10;
    double hagg = 0;
    bool restrictDeflection = true;
};

}  // namespace trabeon
