// The application icon as AppKit decodes it.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <set>

#include "macos/AppBundle.h"

namespace tactora::testing {
namespace {

TEST(BundledIconTest, DecodesAtAllSevenWidths) {
    NSString* path = [appBundle() pathForResource:@"Tactora" ofType:@"icns"];
    ASSERT_NE(path, nil);
    NSImage* icon = [[NSImage alloc] initWithContentsOfFile:path];
    ASSERT_NE(icon, nil);

    std::set<NSInteger> widths;
    for (NSImageRep* representation in icon.representations) {
        widths.insert(representation.pixelsWide);
        EXPECT_EQ(representation.pixelsWide, representation.pixelsHigh);
    }
    for (const NSInteger width : {16, 32, 64, 128, 256, 512, 1024}) {
        EXPECT_TRUE(widths.contains(width)) << width;
    }
}

TEST(BundledIconTest, IsTheBundlesIconFile) {
    EXPECT_TRUE(
        [[appBundle() objectForInfoDictionaryKey:@"CFBundleIconFile"] isEqualToString:@"Tactora"]);
}

}  // namespace
}  // namespace tactora::testing
