#include "core/rules/structure_rules.h"

#include "tests/support/table.h"

namespace trabeon {
namespace {

using test::Row;

/// What a check shows, one message behind the other; each is an error.
template <class Check>
std::vector<test::Cell> shownBy(const Check& check) {
    std::string shown;
    bool error = false;
    check(error, [&](const Message& message) {
        EXPECT_EQ(message.kind, MessageKind::structure);
        shown += message.text;
    });
    EXPECT_EQ(error, !shown.empty());
    return {shown};
}

TEST(StructureRules, TellEachBrokenOneInOrder) {
    const auto joints = [](const Row& row) {
        const std::map<char, std::string> types{{'c', "Cantilever"},
                                                {'p', "Pin Jointed"},
                                                {'n', "Continuous"},
                                                {'f', "Fixed"},
                                                {'x', "FIXED"}};
        std::vector<JointRow> beam;
        for (const char letter : row[0])
            beam.push_back({"1", types.at(letter), "None"});
        return shownBy(
            [&](bool& error, const MessageSink& sink) { CheckJoint(beam, error, sink); });
    };
    const auto members = [](const Row& row) {
        return shownBy([&](bool& error, const MessageSink& sink) {
            CheckMember(static_cast<std::size_t>(row(0)), static_cast<std::size_t>(row(1)), error,
                        sink);
        });
    };
    test::expectTables(TABLES "/rules/joints.csv",
                       {{"CheckJoint", joints}, {"CheckMember", members}});
}

}  // namespace
}  // namespace trabeon
