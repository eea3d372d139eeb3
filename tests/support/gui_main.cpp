// Runs the tests of a program with windows.
#include <gtest/gtest.h>

#include "toolkit/windows/application.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const trabeon::Application application(argc, argv);
    return RUN_ALL_TESTS();
}
