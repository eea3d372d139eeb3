// What a document of the project may hold: one flag for each tick of the printing options.
#pragma once

namespace trabeon {

struct OutputKinds {
    bool joints = true;
    bool members = true;
    bool loads = true;
    bool table = false;  // the balance table
    bool values = true;  // moments and shears at the stations
    bool diagrams = true;
    bool continuous = true;
    bool dimensions = true;
    bool design = true;
};

}  // namespace trabeon
