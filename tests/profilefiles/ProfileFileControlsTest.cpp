// The profile file items through their own interface, on a profile switcher that only counts.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "app/fakes/CallLog.h"
#include "app/fakes/FakeDialogs.h"
#include "app/fakes/FakeProfileFiles.h"
#include "app/fakes/FakeSettingsView.h"
#include "core/app/ProfileSwitcher.h"
#include "core/profilefiles/ProfileFileControls.h"
#include "core/profiles/MemoryPreferences.h"

namespace tactora::testing {
namespace {

class CountingSwitcher final : public ProfileSwitcher, public FrontmostFollower {
  public:
    ProfileStore& profiles() override { return store; }
    void switchProfileAutomatically(const Uuid& id) override {
        store.activate(id);
        ++switches;
    }
    void refreshProfileUI() override {}
    void dropPendingWork() override { ++drops; }
    bool pressesHeld() override { return false; }
    void tellFrontApplication(const FrontApplicationNote& /*note*/) override {}
    Uuid frontmostProfile() override { return store.chosenID(); }
    void followFrontmost() override {}

    ProfileStore store{std::make_shared<MemoryPreferences>(), "Default"};
    int switches = 0;
    int drops = 0;
};

class ProfileFileControlsTest : public ::testing::Test {
  protected:
    CallLog log;
    CountingSwitcher switcher;
    FakeProfileFiles files{log};
    FakeDialogs dialogs{log};
    FakeSettingsView view{log};
    ProfileFileControls controls{switcher, switcher, files, dialogs, view};
};

TEST_F(ProfileFileControlsTest, TheLastProfileIsNeverDeletedButPendingWorkIsDropped) {
    controls.deleteProfile();

    EXPECT_EQ(switcher.drops, 1);
    EXPECT_EQ(switcher.store.profiles().size(), 1U);
    EXPECT_FALSE(log.contains("dialogs.confirmation"));
}

TEST_F(ProfileFileControlsTest, ADeletionSwitchesToTheProfileOfTheApplicationInFront) {
    switcher.store.add("Second", false);
    controls.deleteProfile();

    EXPECT_EQ(switcher.store.profiles().size(), 1U);
    EXPECT_EQ(switcher.switches, 1);
}

}  // namespace
}  // namespace tactora::testing
