// The values that a chart shows.
#pragma once

#include <string>

namespace trabeon {

struct GraphTitles {
    std::string title;
    std::string x;
    std::string value;
};

/// A marked place on the x axis, for example a joint of the beam.
struct GraphMark {
    double x;
    std::string label;
};

struct GraphPoint {
    double x = 0;
    double y = 0;
};

}  // namespace trabeon
