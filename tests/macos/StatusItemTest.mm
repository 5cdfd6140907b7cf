// The status item's button as the settings view draws it: the symbol alone, or the symbol with
// the menu-bar feedback's finger count beside it, and the symbol alone again once that is gone.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include "core/platform/StatusItemAppearance.h"
#include "macos/AppKitSettingsView.h"
#import "macos/TASettingsControls.h"

namespace tactora::testing {
namespace {

class StatusItemTest : public ::testing::Test {
  protected:
    void SetUp() override {
        controls_.statusItem =
            [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
    }
    void TearDown() override {
        [NSStatusBar.systemStatusBar removeStatusItem:controls_.statusItem];
    }

    static StatusItemAppearance appearance(const std::string& title) {
        return {.symbolName = "computermouse",
                .accessibilityDescription = "Tactora",
                .toolTip = "Tactora",
                .title = title};
    }

    NSStatusBarButton* button() const { return controls_.statusItem.button; }

    TASettingsControls* controls_ = [[TASettingsControls alloc] initWithEnableTitle:@"enable"];
    macos::AppKitSettingsView view_{controls_};
};

TEST_F(StatusItemTest, WithoutATitleTheButtonIsTheSymbolAlone) {
    ASSERT_NE(button(), nil);
    view_.setStatusItem(appearance(""));

    EXPECT_EQ(button().imagePosition, NSImageOnly);
    EXPECT_EQ(button().title.length, 0U);
}

TEST_F(StatusItemTest, TheFingerCountGoesBesideTheSymbol) {
    ASSERT_NE(button(), nil);
    view_.setStatusItem(appearance("2"));

    EXPECT_EQ(button().imagePosition, NSImageLeading);
    EXPECT_TRUE([button().title isEqualToString:@"2"]);
}

TEST_F(StatusItemTest, WhenTheFingerCountGoesTheButtonIsTheSymbolAloneAgain) {
    ASSERT_NE(button(), nil);
    view_.setStatusItem(appearance("3"));
    view_.setStatusItem(appearance(""));

    EXPECT_EQ(button().imagePosition, NSImageOnly);
    EXPECT_EQ(button().title.length, 0U);
}

TEST_F(StatusItemTest, TheSameAppearanceAgainKeepsTheImage) {
    ASSERT_NE(button(), nil);
    view_.setStatusItem(appearance(""));
    NSImage* first = button().image;
    view_.setStatusItem(appearance(""));

    EXPECT_EQ(button().image, first);
}

}  // namespace
}  // namespace tactora::testing
