#include <gtest/gtest.h>

#include "core/text/TextHandling.h"

// Every test program runs with the platform's text handling installed, as the program does.
int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    tactora::installTextHandling(tactora::makePlatformTextHandling());
    return RUN_ALL_TESTS();
}
