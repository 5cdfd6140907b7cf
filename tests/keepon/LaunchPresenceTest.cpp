#include "core/keepon/LaunchPresence.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(LaunchPresenceTest, AStartByTheUserShowsTheWindowAndTheDockIcon) {
    LaunchPresence presence(LaunchOrigin::user);
    EXPECT_TRUE(presence.showsWindowAtLaunch());
    EXPECT_TRUE(presence.showsDockIcon());
    // Already regular: opening the window changes nothing.
    EXPECT_FALSE(presence.windowOpened());
    EXPECT_FALSE(presence.windowOpened());
}

TEST(LaunchPresenceTest, AStartAtLoginStaysInTheMenuBar) {
    const LaunchPresence presence(LaunchOrigin::loginItem);
    EXPECT_FALSE(presence.showsWindowAtLaunch());
    EXPECT_FALSE(presence.showsDockIcon());
}

TEST(LaunchPresenceTest, OpeningTheWindowAfterAQuietStartBringsTheDockIconOnce) {
    LaunchPresence presence(LaunchOrigin::loginItem);
    EXPECT_TRUE(presence.windowOpened());
    EXPECT_FALSE(presence.windowOpened());
    EXPECT_TRUE(presence.showsDockIcon());
}

}  // namespace
}  // namespace tactora
