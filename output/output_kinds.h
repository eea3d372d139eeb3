// The possible parts of a project's document, one flag for each check box of the printing options.
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
