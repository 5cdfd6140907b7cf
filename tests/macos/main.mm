#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

// AppKit's controls need the shared application before the first of them is made.
int main(int argc, char* argv[]) {
    @autoreleasepool {
        [NSApplication sharedApplication];
        ::testing::InitGoogleTest(&argc, argv);
        return RUN_ALL_TESTS();
    }
}
