#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/profiles/ProfileJson.h"
#include "core/profiles/ProfileStore.h"
#include "profiles/CountingPreferences.h"

namespace tactora {
namespace {

using Apps = std::vector<std::string>;

Bytes bytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

// Assignment, deletion, import and the difference between the user's choice and the profile
// that is active because of the application in front.
class ProfileStoreAppsTest : public testing::Test {
  protected:
    void SetUp() override {
        store = std::make_unique<ProfileStore>(defaults, "Default");
        defaultID = store->activeID();
        store->add("Video", false);
        videoID = store->activeID();
        store->add("Audio", false);
        audioID = store->activeID();
        store->select(defaultID);
    }

    const WorkProfile& profile(const Uuid& id) const {
        for (const WorkProfile& each : store->profiles()) {
            if (each.id == id) {
                return each;
            }
        }
        throw std::logic_error("no such profile");
    }

    std::string savedActiveID() const { return *defaults->string(ProfileStore::activeKey); }

    std::vector<WorkProfile> savedProfiles() const {
        const auto data = defaults->data(ProfileStore::profilesKey);
        return *decodeProfiles(std::string(data->begin(), data->end()));
    }

    std::shared_ptr<CountingPreferences> defaults = std::make_shared<CountingPreferences>();
    std::unique_ptr<ProfileStore> store;
    Uuid defaultID;
    Uuid videoID;
    Uuid audioID;
};

TEST_F(ProfileStoreAppsTest, AssignedApplicationIsFoundAndSaved) {
    EXPECT_TRUE(store->assign("com.apple.Safari", videoID));
    EXPECT_EQ(store->profileFor("com.apple.Safari"), videoID);
    EXPECT_EQ(store->profileFor("com.apple.Mail"), std::nullopt);
    EXPECT_EQ(savedProfiles().at(1).apps, Apps{"com.apple.Safari"});
}

TEST_F(ProfileStoreAppsTest, AssigningToAnotherProfileMovesTheApplication) {
    store->assign("com.apple.Safari", videoID);
    store->assign("com.apple.Mail", videoID);
    EXPECT_TRUE(store->assign("com.apple.Safari", audioID));
    EXPECT_EQ(profile(videoID).apps, Apps{"com.apple.Mail"});
    EXPECT_EQ(profile(audioID).apps, Apps{"com.apple.Safari"});
}

TEST_F(ProfileStoreAppsTest, AssignmentThatBreaksAPreconditionChangesAndWritesNothing) {
    store->assign("com.apple.Safari", videoID);
    const auto before = store->profiles();
    const std::size_t writes = defaults->writes;
    EXPECT_FALSE(store->assign("", videoID));
    EXPECT_FALSE(store->assign("com.apple.Mail", Uuid::random()));
    EXPECT_FALSE(store->assign("com.apple.Safari", videoID));
    EXPECT_FALSE(store->unassign("com.apple.Mail"));
    EXPECT_EQ(store->profiles(), before);
    EXPECT_EQ(defaults->writes, writes);
}

TEST_F(ProfileStoreAppsTest, UnassignTakesTheApplicationAway) {
    store->assign("com.apple.Safari", videoID);
    EXPECT_TRUE(store->unassign("com.apple.Safari"));
    EXPECT_EQ(store->profileFor("com.apple.Safari"), std::nullopt);
    EXPECT_TRUE(savedProfiles().at(1).apps.empty());
}

TEST_F(ProfileStoreAppsTest, ActivateChangesTheActiveProfileButNotTheSavedChoice) {
    const std::size_t writes = defaults->writes;
    EXPECT_TRUE(store->activate(videoID));
    EXPECT_EQ(store->current().name, "Video");
    EXPECT_EQ(store->chosenID(), defaultID);
    EXPECT_EQ(defaults->writes, writes);
    EXPECT_EQ(savedActiveID(), defaultID.text());
}

TEST_F(ProfileStoreAppsTest, EditsWhileAnotherProfileIsActiveKeepTheChoiceSaved) {
    store->activate(videoID);
    store->setAction(5, 0);
    store->assign("com.apple.Safari", videoID);
    EXPECT_EQ(profile(videoID).actions.at(0), 5);
    EXPECT_EQ(savedActiveID(), defaultID.text());
}

TEST_F(ProfileStoreAppsTest, ActivateOfAnUnknownIdChangesNothing) {
    EXPECT_FALSE(store->activate(Uuid::random()));
    EXPECT_EQ(store->activeID(), defaultID);
}

TEST_F(ProfileStoreAppsTest, RestartingWithAnotherProfileActiveComesBackToTheChoice) {
    store->activate(videoID);
    store->save();
    const ProfileStore reloaded(defaults, "Default");
    EXPECT_EQ(reloaded.activeID(), defaultID);
    EXPECT_EQ(reloaded.chosenID(), defaultID);
}

TEST_F(ProfileStoreAppsTest, SelectAndAddAreTheUsersChoice) {
    store->activate(videoID);
    store->select(audioID);
    EXPECT_EQ(store->chosenID(), audioID);
    store->add("Mix", false);
    EXPECT_EQ(store->chosenID(), store->activeID());
    EXPECT_EQ(savedActiveID(), store->activeID().text());
}

TEST_F(ProfileStoreAppsTest, DeletingRemovesTheProfileAndItsApplications) {
    store->assign("com.apple.Safari", videoID);
    EXPECT_TRUE(store->remove(videoID));
    ASSERT_EQ(store->profiles().size(), 2U);
    EXPECT_EQ(store->profiles()[1].id, audioID);
    EXPECT_EQ(store->profileFor("com.apple.Safari"), std::nullopt);
    EXPECT_EQ(savedProfiles().size(), 2U);
    EXPECT_EQ(store->activeID(), defaultID);
}

TEST_F(ProfileStoreAppsTest, DeletingTheActiveChosenProfileMakesTheFirstRemainingActive) {
    store->select(audioID);
    store->remove(audioID);
    EXPECT_EQ(store->activeID(), defaultID);
    EXPECT_EQ(savedActiveID(), defaultID.text());

    store->select(defaultID);
    store->remove(defaultID);
    EXPECT_EQ(store->activeID(), videoID);
    EXPECT_EQ(store->chosenID(), videoID);
}

TEST_F(ProfileStoreAppsTest, DeletingAProfileActiveForAnApplicationBringsBackTheChoice) {
    store->select(audioID);
    store->activate(videoID);
    store->remove(videoID);
    EXPECT_EQ(store->activeID(), audioID);
    EXPECT_EQ(store->chosenID(), audioID);
}

TEST_F(ProfileStoreAppsTest, DeletingTheLastProfileOrAnUnknownOneChangesAndWritesNothing) {
    EXPECT_FALSE(store->remove(Uuid::random()));
    store->remove(videoID);
    store->remove(audioID);
    const auto before = store->profiles();
    const std::size_t writes = defaults->writes;
    EXPECT_FALSE(store->remove(defaultID));
    EXPECT_EQ(store->profiles(), before);
    EXPECT_EQ(defaults->writes, writes);
}

TEST_F(ProfileStoreAppsTest, ImportAppendsEveryProfileWithFreshIdsForCollisions) {
    store->assign("com.apple.Safari", videoID);
    WorkProfile colliding(videoID, "Video", {1, 2, 3, 4, 5, 6, 7, 8},
                          std::vector<std::optional<SavedShortcut>>(8));
    colliding.apps = {"com.apple.Safari", "com.apple.Mail"};
    WorkProfile fresh("Games");
    fresh.apps = {"com.apple.Mail", "com.example.Game"};
    const Uuid freshID = fresh.id;

    EXPECT_EQ(store->importProfiles({colliding, fresh}), 2U);

    const auto& all = store->profiles();
    ASSERT_EQ(all.size(), 5U);
    EXPECT_EQ(all[1].id, videoID);
    EXPECT_EQ(all[1].apps, Apps{"com.apple.Safari"});
    EXPECT_NE(all[3].id, videoID);
    EXPECT_EQ(all[3].name, "Video");
    EXPECT_EQ(all[3].actions, (std::vector<ActionIndex>{1, 2, 3, 4, 5, 6, 7, 8}));
    // Safari stays with the profile it had; Mail goes to the first imported profile naming it.
    EXPECT_EQ(all[3].apps, Apps{"com.apple.Mail"});
    EXPECT_EQ(all[4].id, freshID);
    EXPECT_EQ(all[4].apps, Apps{"com.example.Game"});
    EXPECT_EQ(store->activeID(), defaultID);
    EXPECT_EQ(savedProfiles().size(), 5U);
}

TEST_F(ProfileStoreAppsTest, ImportedProfilesAreSanitized) {
    WorkProfile broken("Broken", {14, 99, -1});
    store->importProfiles({broken});
    EXPECT_EQ(store->profiles().back().actions, std::vector<ActionIndex>(8, 0));
    EXPECT_EQ(store->profiles().back().shortcuts.size(), 8U);
}

TEST_F(ProfileStoreAppsTest, ImportOfAnEmptyListOrDuplicateIdsChangesAndWritesNothing) {
    const auto before = store->profiles();
    const std::size_t writes = defaults->writes;
    const WorkProfile twin("Twin");
    EXPECT_EQ(store->importProfiles({}), 0U);
    EXPECT_EQ(store->importProfiles({twin, twin}), 0U);
    EXPECT_EQ(store->profiles(), before);
    EXPECT_EQ(defaults->writes, writes);
}

TEST_F(ProfileStoreAppsTest, LoadingKeepsEachApplicationInTheFirstProfileThatListsIt) {
    WorkProfile first("First");
    first.apps = {"com.apple.Safari", "com.apple.Safari", "com.apple.Mail"};
    WorkProfile second("Second");
    second.apps = {"com.apple.Mail", "com.apple.Notes"};
    auto fresh = std::make_shared<CountingPreferences>();
    fresh->setData(ProfileStore::profilesKey, bytesOf(*encodeProfiles({first, second})));
    const ProfileStore loaded(fresh, "Default");
    EXPECT_EQ(loaded.profiles()[0].apps, (Apps{"com.apple.Safari", "com.apple.Mail"}));
    EXPECT_EQ(loaded.profiles()[1].apps, Apps{"com.apple.Notes"});
}

TEST_F(ProfileStoreAppsTest, ListWrittenBeforeApplicationsExistedLoadsAsBefore) {
    auto old = std::make_shared<CountingPreferences>();
    const std::string json =
        R"([{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","name":"Old","actions":[5],)"
        R"("shortcuts":[]}])";
    old->setData(ProfileStore::profilesKey, bytesOf(json));
    const ProfileStore loaded(old, "Default");
    ASSERT_EQ(loaded.profiles().size(), 1U);
    EXPECT_EQ(loaded.current().name, "Old");
    EXPECT_EQ(loaded.current().actions.at(0), 5);
    EXPECT_TRUE(loaded.current().apps.empty());
}

}  // namespace
}  // namespace tactora
