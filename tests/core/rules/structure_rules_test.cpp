#include "core/rules/structure_rules.h"

#include "tests/support/table.h"

namespace trabeon {
namespace {

using test::Row;

std::vector<test::Cell> joined(const std::vector<std::string>& messages) {
    std::string all;
    for (const auto& message : messages)
        all += message;
    return {all};
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
        return joined(CheckJoint(beam));
    };
    const auto members = [](const Row& row) {
        return joined(
            CheckMember(static_cast<std::size_t>(row(0)), static_cast<std::size_t>(row(1))));
    };
    test::expectTables(TABLES "/rules/joints.csv",
                       {{"CheckJoint", joints}, {"CheckMember", members}});
}

}  // namespace
}  // namespace trabeon
