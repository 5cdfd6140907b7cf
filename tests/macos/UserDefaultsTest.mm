// The preferences over a private user-defaults suite, removed after each test.
#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/profiles/ProfileStore.h"
#include "macos/UserDefaultsSuites.h"

namespace tactora::testing {
namespace {

class UserDefaultsTest : public ::testing::Test {
  protected:
    void TearDown() override {
        preferences_.reset();
        suites_.removeSuite(name_);
        NSUserDefaults* reopened = [[NSUserDefaults alloc] initWithSuiteName:suiteName()];
        EXPECT_EQ([reopened persistentDomainForName:suiteName()].count, 0U);
    }

    NSString* suiteName() const { return @(name_.c_str()); }

    // The suite as Foundation sees it, to store what the wrapper does not write.
    NSUserDefaults* raw() const { return [[NSUserDefaults alloc] initWithSuiteName:suiteName()]; }

    Preferences& prefs() { return *preferences_; }

    macos::UserDefaultsSuites suites_;
    std::string name_ = std::string("app.tactora.tests.") + NSUUID.UUID.UUIDString.UTF8String;
    std::shared_ptr<Preferences> preferences_ = suites_.suite(name_);
};

TEST_F(UserDefaultsTest, DataValuesComeBackByteForByte) {
    const Bytes bytes{0x00, 0x7B, 0xFF, 0x22, 0x0A};
    prefs().setData("workProfiles.v1", bytes);

    EXPECT_EQ(prefs().data("workProfiles.v1"), bytes);
    EXPECT_TRUE([[raw() objectForKey:@"workProfiles.v1"] isKindOfClass:NSData.class]);
}

TEST_F(UserDefaultsTest, TextAndIntegersComeBackAsStored) {
    prefs().setString("activeWorkProfile", "5E6F1A2B-0000-4000-8000-00000000000C");
    prefs().setInteger("gesture.3", 14);

    EXPECT_EQ(prefs().string("activeWorkProfile"), "5E6F1A2B-0000-4000-8000-00000000000C");
    EXPECT_EQ(prefs().integer("gesture.3"), 14);
}

TEST_F(UserDefaultsTest, AValueOfAnotherTypeIsNoDataAndNoText) {
    prefs().setInteger("workProfiles.v1", 3);
    [raw() setObject:@"text" forKey:@"activeWorkProfile"];

    EXPECT_FALSE(prefs().data("workProfiles.v1").has_value());
    EXPECT_FALSE(prefs().data("activeWorkProfile").has_value());
    EXPECT_FALSE(prefs().string("workProfiles.v1").has_value());
}

TEST_F(UserDefaultsTest, RemovedKeysAreGone) {
    prefs().setInteger("gesture.0", 2);
    prefs().remove("gesture.0");

    EXPECT_FALSE(prefs().integer("gesture.0").has_value());
    EXPECT_EQ([raw() objectForKey:@"gesture.0"], nil);
}

// `defaults write` stores a legacy slot as text; migration reads it the way integerForKey:
// does: numeric text gives its integer, anything else 0.
TEST_F(UserDefaultsTest, LegacySlotsStoredAsTextMigrateAsTheSystemReadsThem) {
    [raw() setObject:@"3" forKey:@"gesture.1"];
    [raw() setObject:@"copy" forKey:@"gesture.2"];
    [raw() setObject:@5 forKey:@"gesture.5"];

    const ProfileStore store(preferences_, "Default");
    const std::vector<ActionIndex>& actions = store.current().actions;
    ASSERT_EQ(actions.size(), 8U);
    EXPECT_EQ(actions[1], 3);
    EXPECT_EQ(actions[2], 0);
    EXPECT_EQ(actions[5], 5);
}

}  // namespace
}  // namespace tactora::testing
