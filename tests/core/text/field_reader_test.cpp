#include "core/text/field_reader.h"

#include <gtest/gtest.h>

#include <string>

namespace trabeon {
namespace {

/// The fields, each in brackets; a stroke where a line ended.
std::string fieldsOf(std::string_view text) {
    std::string fields;
    FieldReader reader(text);
    while (!reader.atEnd()) {
        fields += '[' + std::string(reader.next()) + ']';
        fields += reader.lineEnded() ? "/" : "";
    }
    return fields;
}

TEST(FieldReader, TakesBareAndQuotedFieldsAlikeAndKnowsItsLine) {
    EXPECT_EQ(fieldsOf(""), "");
    EXPECT_EQ(fieldsOf(" 3,Fixed,\"None\"\r\n 4,Fixed,None\r\n"),
              "[3][Fixed][None]/[4][Fixed][None]/");
    EXPECT_EQ(fieldsOf("a b , c  ,\" d, e \" , f\n"), "[a b][c][ d, e ][f]/");
    EXPECT_EQ(fieldsOf("1,\"\",2"), "[1][][2]/");
    EXPECT_EQ(fieldsOf("1,,\r\n2\r3\n"), "[1][][]/[2]/[3]/");
    EXPECT_EQ(fieldsOf("ab\"c,d"), "[ab\"c][d]/");
    EXPECT_EQ(fieldsOf("\"open,\r\nto the end"), "[open,\r\nto the end]/");
    EXPECT_EQ(fieldsOf("\tx\t"), "[\tx\t]/");  // a blank is the character 32 alone
    FieldReader reader("1,\"a\nb\"\r\nrest, of it\r\nlast");
    reader.next();
    reader.next();
    EXPECT_EQ(reader.line(), 3);
    EXPECT_EQ(reader.nextLine(), "rest, of it");
    EXPECT_EQ(reader.next(), "last");
    EXPECT_EQ(reader.next(), "");
}

}  // namespace
}  // namespace trabeon
