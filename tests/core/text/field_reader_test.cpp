#include "core/text/field_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace trabeon {
namespace {

using Fields = std::vector<std::string>;

Fields fieldsOf(std::string_view text) {
    Fields fields;
    FieldReader reader(text);
    while (!reader.atEnd())
        fields.emplace_back(reader.next());
    return fields;
}

TEST(FieldReader, TakesBareAndQuotedFieldsAlike) {
    EXPECT_EQ(fieldsOf(""), Fields{});
    EXPECT_EQ(fieldsOf(" 3,Fixed,\"None\"\r\n 4,Fixed,None\r\n"),
              (Fields{"3", "Fixed", "None", "4", "Fixed", "None"}));
    EXPECT_EQ(fieldsOf("a b , c  ,\" d, e \" , f\n"), (Fields{"a b", "c", " d, e ", "f"}));
    EXPECT_EQ(fieldsOf("1,\"\",2"), (Fields{"1", "", "2"}));
    EXPECT_EQ(fieldsOf("1,,\r\n2\r3\n"),
              (Fields{"1", "", "", "2", "3"}));              // every line end closes a field
    EXPECT_EQ(fieldsOf("ab\"c,d"), (Fields{"ab\"c", "d"}));  // a quote inside is a character
    EXPECT_EQ(fieldsOf("\"open,\r\nto the end"), Fields{"open,\r\nto the end"});
    EXPECT_EQ(fieldsOf("\tx\t"), Fields{"\tx\t"});  // a blank is the character 32 alone
}

TEST(FieldReader, KnowsItsLineAndWhereItEnds) {
    FieldReader reader("1,\"a\nb\"\r\nrest, of it\r\nlast");
    reader.next();
    EXPECT_FALSE(reader.lineEnded());
    EXPECT_EQ(reader.next(), "a\nb");
    EXPECT_TRUE(reader.lineEnded());
    EXPECT_EQ(reader.line(), 3);
    EXPECT_EQ(reader.nextLine(), "rest, of it");
    EXPECT_EQ(reader.next(), "last");
    EXPECT_TRUE(reader.lineEnded());
    EXPECT_TRUE(reader.atEnd());
    EXPECT_EQ(reader.next(), "");
}

}  // namespace
}  // namespace trabeon
