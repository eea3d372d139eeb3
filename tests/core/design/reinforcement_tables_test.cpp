// Expected numbers: pi x size² / 4 with pi = 3.1415936512 in 40-digit decimal arithmetic.
#include "core/design/reinforcement_tables.h"

#include "tests/support/temporary_folder.h"

namespace trabeon {
namespace {

TEST(ReinforcementTables, BarAreasAreCut) {
    EXPECT_EQ(steelAreas(),
              " 8 , 50, 100, 150, 201, 251, 301, 351, 402, 452, 502\r\n"
              " 10 , 78, 157, 235, 314, 392, 471, 549, 628, 706, 785\r\n"
              " 12 , 113, 226, 339, 452, 565, 678, 791, 904, 1017, 1130\r\n"
              " 16 , 201, 402, 603, 804, 1005, 1206, 1407, 1608, 1809, 2010\r\n"
              " 20 , 314, 628, 942, 1256, 1570, 1884, 2199, 2513, 2827, 3141\r\n"
              " 25 , 490, 981, 1472, 1963, 2454, 2945, 3436, 3926, 4417, 4908\r\n"
              " 32 , 804, 1608, 2412, 3216, 4021, 4825, 5629, 6433, 7238, 8042\r\n"
              " 40 , 1256, 2513, 3769, 5026, 6283, 7539, 8796, 10053, 11309, 12566\r\n");
}

TEST(ReinforcementTables, LinkResistancesHaveThreePlaces) {
    EXPECT_EQ(linkResistances(),
              " 50,1.131,2.011,3.142,4.524,6.158,8.042\r\n"
              " 75,0.754,1.340,2.094,3.016,4.105,5.362\r\n"
              " 100,0.565,1.005,1.571,2.262,3.079,4.021\r\n"
              " 125,0.452,0.804,1.257,1.810,2.463,3.217\r\n"
              " 150,0.377,0.670,1.047,1.508,2.053,2.681\r\n"
              " 175,0.323,0.574,0.898,1.293,1.759,2.298\r\n"
              " 200,0.283,0.503,0.785,1.131,1.539,2.011\r\n"
              " 225,0.251,0.447,0.698,1.005,1.368,1.787\r\n"
              " 250,0.226,0.402,0.628,0.905,1.232,1.608\r\n"
              " 275,0.206,0.366,0.571,0.823,1.120,1.462\r\n"
              " 300,0.188,0.335,0.524,0.754,1.026,1.340\r\n"
              " 325,0.174,0.309,0.483,0.696,0.947,1.237\r\n"
              " 350,0.162,0.287,0.449,0.646,0.880,1.149\r\n"
              " 375,0.151,0.268,0.419,0.603,0.821,1.072\r\n"
              " 400,0.141,0.251,0.393,0.565,0.770,1.005\r\n");
}

TEST(ReinforcementTables, GoIntoTheirFilesTheSameEachTime) {
    const test::TemporaryFolder folder;
    for (int time = 0; time < 2; ++time) {
        EXPECT_FALSE(writeSteelAreas(folder.path()));
        EXPECT_FALSE(writeLinkResistances(folder.path()));
        EXPECT_EQ(folder.read("AreaofS.txt"), steelAreas());
        EXPECT_EQ(folder.read("Asvosv.txt"), linkResistances());
    }
    EXPECT_TRUE(writeSteelAreas(folder / "none"));
}

}  // namespace
}  // namespace trabeon
