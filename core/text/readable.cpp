#include "core/text/readable.h"

#include <array>

namespace trabeon {
namespace {

/// A character of UTF-8: its code point, and how many bytes it takes. 0 bytes: there is none.
struct Character {
    char32_t code = 0;
    std::size_t size = 0;
};

unsigned char byteAt(std::string_view text, std::size_t at) {
    return static_cast<unsigned char>(text[at]);
}

/// The first character of a text that is not empty. Refuses overlong forms, surrogates, and code
/// points above 10FFFF.
Character firstCharacter(std::string_view text) {
    const auto lead = byteAt(text, 0);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < size)
        return {};
    char32_t code = lead & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        const auto next = byteAt(text, i);
        if ((next & 0xC0) != 0x80)
            return {};
        code = code << 6 | (next & 0x3FU);
    }
    constexpr std::array<char32_t, 5> least{0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = code >= 0xD800 && code <= 0xDFFF;
    return code < least[size] || code > 0x10FFFF || surrogate ? Character{} : Character{code, size};
}

bool isUtf8(std::string_view text) {
    while (!text.empty()) {
        const auto size = firstCharacter(text).size;
        if (size == 0)
            return false;
        text.remove_prefix(size);
    }
    return true;
}

std::string fromLatin1(std::string_view text) {
    std::string utf8;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const unsigned byte = byteAt(text, i);
        if (byte >= 0x80)
            utf8 += static_cast<char>(0xC0 | byte >> 6);
        utf8 += static_cast<char>(byte < 0x80 ? byte : 0x80 | (byte & 0x3F));
    }
    return utf8;
}

/// Whether a character has an effect on a screen or a terminal, or is not allowed in XML.
bool isControl(char32_t code) {
    return code < 0x20 || (code >= 0x7F && code < 0xA0) || code == 0xFFFE || code == 0xFFFF;
}

char shownFor(char32_t control) {
    return control == '\t' || control == '\r' || control == '\n' ? ' ' : '?';
}

bool beginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) != 0x80;
}

}  // namespace

std::string readable(std::string_view text) {
    const auto utf8 = isUtf8(text) ? std::string(text) : fromLatin1(text);
    std::string shown;
    for (std::string_view rest = utf8; !rest.empty();) {
        const auto [code, size] = firstCharacter(rest);
        if (isControl(code))
            shown += shownFor(code);
        else
            shown += rest.substr(0, size);
        rest.remove_prefix(size);
    }
    return shown;
}

std::string excerpt(std::string_view field) {
    constexpr std::size_t most = 80;
    constexpr std::string_view more = "...";
    auto shown = readable(field);
    std::size_t count = 0, cut = 0;
    for (std::size_t at = 0; at < shown.size(); ++at) {
        if (!beginsCharacter(shown[at]))
            continue;
        if (count == most - more.size())
            cut = at;
        if (++count > most)
            return shown.replace(cut, shown.npos, more);
    }
    return shown;
}

std::size_t unitsInBox(std::string_view text) {
    std::size_t units = 0;
    for (const char byte : readable(text)) {
        const bool pair = static_cast<unsigned char>(byte) >= 0xF0;
        units += pair ? 2 : beginsCharacter(byte) ? 1 : 0;
    }
    return units;
}

bool isUtf16(std::string_view file) {
    if (file.starts_with("\xFF\xFE") || file.starts_with("\xFE\xFF"))
        return true;
    const auto start = file.substr(0, 16);
    const auto nulsFrom = [&](std::size_t first) {
        bool nuls = true;
        for (std::size_t i = 0; i < start.size(); ++i)
            nuls = nuls && (start[i] == '\0') == (i % 2 == first);
        return nuls;
    };
    return start.size() >= 4 && (nulsFrom(0) || nulsFrom(1));
}

}  // namespace trabeon
