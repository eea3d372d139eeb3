// The properties that all sections of a beam have in common.
#pragma once

namespace trabeon {

/// cover, links (the assumed link size) and hagg (the aggregate size) are in mm. With
/// restrictDeflection spans over 10 m have a smaller ratio, so that finishes and partitions do not
/// crack.
struct MiscProperties {
    double cover = 25;
    double links = 10;
    double hagg = 0;
    bool restrictDeflection = true;
};

}  // namespace trabeon
