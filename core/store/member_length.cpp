#include "core/store/member_length.h"

#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {

double memberLength(const std::filesystem::path& folder, std::size_t member) {
    const auto text = readWhole(folder / MemberRow::file);
    FieldReader reader(text);
    for (std::size_t k = 1; !reader.atEnd(); ++k) {
        std::string_view L;
        for (const auto field : MemberRow::fields)
            if (const auto value = reader.next(); field == &MemberRow::L)
                L = value;
        if (k == member)
            return leadingNumber(L);
    }
    return 0;
}

}  // namespace trabeon
