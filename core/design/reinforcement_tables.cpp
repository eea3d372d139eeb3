#include "core/design/reinforcement_tables.h"

#include <cmath>

#include "core/design/links.h"
#include "core/store/replacing_file.h"
#include "core/store/working_files.h"
#include "core/text/number_masks.h"
#include "core/text/number_text.h"

namespace trabeon {

std::string steelAreas() {
    std::string text;
    for (const double size : {8, 10, 12, 16, 20, 25, 32, 40}) {
        text += printForm(size);
        for (int count = 1; count <= 10; ++count)
            text += ',' + generatedText(std::floor(legArea(size) * count));
        text += "\r\n";
    }
    return text;
}

std::string linkResistances() {
    std::string text;
    for (int spacing = 50; spacing <= 400; spacing += 25) {
        text += generatedText(spacing);
        for (const double size : {6, 8, 10, 12, 14, 16})
            text += ',' + threePlaces(linksProvided(1, size, spacing));
        text += "\r\n";
    }
    return text;
}

Status writeSteelAreas(const std::filesystem::path& folder) {
    return replaceFile(folder / working_file::steelAreas, steelAreas());
}

Status writeLinkResistances(const std::filesystem::path& folder) {
    return replaceFile(folder / working_file::linkResistances, linkResistances());
}

}  // namespace trabeon
