#include "core/store/member_length.h"

#include "core/store/rows.h"
#include "core/text/number_text.h"

namespace trabeon {

double memberLength(const std::filesystem::path& folder, std::size_t member) {
    const auto text = readWhole(folder / MemberRow::file);
    FieldReader reader(text);
    for (std::size_t k = 1; !reader.atEnd(); ++k)
        for (const auto field : MemberRow::fields) {
            const auto read = reader.next();
            if (k == member && field == &MemberRow::L)
                return leadingNumber(read);
        }
    return 0;
}

}  // namespace trabeon
