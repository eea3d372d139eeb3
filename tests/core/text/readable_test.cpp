#include "core/text/readable.h"

#include <gtest/gtest.h>

namespace trabeon {
namespace {

TEST(Readable, ReadsWhatIsNoUtf8AsLatin1AndShowsNoControlCharacter) {
    const std::pair<std::string, const char*> rows[] = {
        {"Träger €😀", "Träger €😀"},
        {"Tr\xE4ger", "Träger"},
        {"\xFF\xC3\xA4", "ÿÃ¤"},       // of a text all or nothing
        {"\xC0\xAF\xE4", "À¯ä"},       // an overlong form
        {"\xED\xA5\x80", "í¥?"},       // a surrogate
        {"\xF4\x90\x80\x80", "ô???"},  // above 10FFFF
        {"\xE2\x82", "â?"},            // cut short
        {std::string("a\0b\x1B[2J\x7F", 8), "a?b?[2J?"},
        {"1\t2\r\n3\xC2\x85\xEF\xBF\xBF", "1 2  3??"}};
    for (const auto& [text, shown] : rows)
        EXPECT_EQ(readable(text), shown);
}

TEST(Readable, AnExcerptHasAtMostEightyCharacters) {
    const auto times = [](int count, const std::string& text) {
        std::string all;
        while (count-- > 0)
            all += text;
        return all;
    };
    EXPECT_EQ(excerpt(times(80, "ä")), times(80, "ä"));
    EXPECT_EQ(excerpt(times(81, "€")), times(77, "€") + "...");
    EXPECT_EQ(excerpt(times(1'000'000, "\xE4\n")), times(38, "ä ") + "ä...");
    EXPECT_EQ(unitsInBox("ä€😀"), 4U);
    EXPECT_EQ(unitsInBox("\xE4\xFF"), 2U);
}

TEST(Readable, KnowsUtf16) {
    for (const auto& [file, is] : {std::pair{std::string("\xFF\xFE"), true},
                                   {std::string("\xFE\xFFW"), true},
                                   {std::string("W\0A\0", 4), true},
                                   {std::string("\0W\0A\0R\0N\0N\0I\0N\0G\x20\x1C", 18), true},
                                   {std::string("W\0A", 3), false},
                                   {std::string("W\0AR\0N", 6), false},
                                   {std::string("\0\0\0\0", 4), false},
                                   {std::string("\xEF\xBB\xBFWARN"), false},
                                   {std::string(), false}})
        EXPECT_EQ(isUtf16(file), is) << file;
}

}  // namespace
}  // namespace trabeon
