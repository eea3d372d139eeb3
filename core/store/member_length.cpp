#include "core/store/member_length.h"

#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {

double memberLength(const std::filesystem::path& folder, std::size_t member) {
    const auto text = readWhole(folder / MemberRow::file);
    FieldReader reader(text);
    for (std::size_t k = 1; !reader.atEnd(); ++k) {
        const auto row = readRow<MemberRow>(reader);
        if (k == member)
            return leadingNumber(row.L);
    }
    return 0;
}

}  // namespace trabeon
