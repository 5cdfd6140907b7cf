#include "core/profiles/ProfileStore.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/profiles/FilePreferenceSuites.h"
#include "core/profiles/ProfileJson.h"
#include "profiles/CountingPreferences.h"
#include "profiles/TemporaryDirectory.h"

namespace tactora {
namespace {

using Shortcuts = std::vector<std::optional<SavedShortcut>>;

const SavedShortcut commandB(11, 0x100000, "⌘B");

Bytes bytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

class ProfileStoreTest : public testing::Test {
  protected:
    std::shared_ptr<CountingPreferences> defaults = std::make_shared<CountingPreferences>();

    std::vector<WorkProfile> storedProfiles() const {
        const auto data = defaults->data(ProfileStore::profilesKey);
        if (!data) {
            return {};
        }
        return decodeProfiles(std::string(data->begin(), data->end()))
            .value_or(std::vector<WorkProfile>{});
    }

    void storeList(const std::string& json) {
        defaults->setData(ProfileStore::profilesKey, bytesOf(json));
    }

    void storeList(const std::vector<WorkProfile>& profiles) {
        storeList(*encodeProfiles(profiles));
    }
};

TEST_F(ProfileStoreTest, LegacyGestureSettingsMigrateIntoOneProfile) {
    defaults->setInteger("gesture.2", 13);
    const ProfileStore store(defaults, "Default");
    ASSERT_EQ(store.profiles().size(), 1U);
    EXPECT_EQ(store.current().name, "Default");
    EXPECT_EQ(store.current().actions, (std::vector<ActionIndex>{0, 0, 13, 0, 0, 0, 0, 0}));
    EXPECT_EQ(store.current().shortcuts, Shortcuts(8));
}

TEST_F(ProfileStoreTest, EveryLegacySlotMigrates) {
    for (int i = 0; i < 8; ++i) {
        defaults->setInteger("gesture." + std::to_string(i), i + 1);
    }
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(store.current().actions, (std::vector<ActionIndex>{1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST_F(ProfileStoreTest, LegacyValuesOutOfRangeAndLegacyCustomMigrateAsDefault) {
    defaults->setInteger("gesture.0", 15);
    defaults->setInteger("gesture.1", -1);
    defaults->setInteger("gesture.2", 14);
    defaults->setInteger("gesture.3", std::numeric_limits<std::int64_t>::max());
    defaults->setInteger("gesture.4", 12);
    defaults->setString("gesture.5", "15");
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(store.current().actions, (std::vector<ActionIndex>{0, 0, 0, 0, 12, 0, 0, 0}));
}

// `defaults write app.tactora.Tactora gesture.2 13` stores text, which the system's defaults
// read back as the integer it begins with.
TEST_F(ProfileStoreTest, LegacyValuesStoredAsTextMigrateAsTheirLeadingInteger) {
    defaults->setString("gesture.0", "13");
    defaults->setString("gesture.1", " 12");
    defaults->setString("gesture.2", "5abc");
    defaults->setString("gesture.3", "3.7");
    defaults->setString("gesture.4", "1e2");
    defaults->setString("gesture.5", "+6");
    defaults->setString("gesture.6", "abc");
    defaults->setString("gesture.7", "");
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(store.current().actions, (std::vector<ActionIndex>{13, 12, 5, 3, 1, 6, 0, 0}));
}

TEST_F(ProfileStoreTest, LegacyTextOutOfRangeOrCustomMigratesAsDefault) {
    defaults->setString("gesture.0", "-3");
    defaults->setString("gesture.1", "14");
    defaults->setString("gesture.2", "99999999999999999999999");
    defaults->setData("gesture.3", Bytes{'1', '2'});
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(store.current().actions, (std::vector<ActionIndex>{0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(ProfileStoreTest, LegacyTextMigratesFromFilePreferences) {
    const TemporaryDirectory directory;
    FilePreferenceSuites suites(directory.path());
    suites.standard()->setString("gesture.2", "13");
    suites.standard()->setString("gesture.4", "7 ");
    const ProfileStore store(suites.standard(), "Default");
    EXPECT_EQ(store.current().actions, (std::vector<ActionIndex>{0, 0, 13, 0, 7, 0, 0, 0}));
}

TEST_F(ProfileStoreTest, LegacyKeysAreNeitherWrittenNorRemoved) {
    defaults->setInteger("gesture.2", 13);
    ProfileStore store(defaults, "Default");
    store.setAction(4, 2);
    EXPECT_EQ(defaults->integer("gesture.2"), 13);
    EXPECT_EQ(defaults->integer("gesture.0"), std::nullopt);
}

TEST_F(ProfileStoreTest, ConstructionSavesAtOnce) {
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(storedProfiles(), store.profiles());
    EXPECT_EQ(defaults->string(ProfileStore::activeKey), store.activeID().text());
}

TEST_F(ProfileStoreTest, StoredListIsLoadedInOrderAndSanitized) {
    const WorkProfile first(Uuid::random(), "First", {1, 2, 3, 4, 5}, {});
    const WorkProfile second(Uuid::random(), "Second", {14, 99}, Shortcuts{commandB, commandB});
    storeList({first, second});
    const ProfileStore store(defaults, "Default");
    ASSERT_EQ(store.profiles().size(), 2U);
    EXPECT_EQ(store.profiles()[0].id, first.id);
    EXPECT_EQ(store.profiles()[1].name, "Second");
    EXPECT_EQ(store.profiles()[1].actions, (std::vector<ActionIndex>{14, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(store.profiles()[1].shortcuts[1], commandB);
    EXPECT_EQ(store.activeID(), first.id);
}

TEST_F(ProfileStoreTest, ProfileStoredWithFiveActionsLoadsWithEight) {
    storeList({WorkProfile(Uuid::random(), "P", {1, 2, 3, 4, 5}, Shortcuts(8))});
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(store.current().actions, (std::vector<ActionIndex>{1, 2, 3, 4, 5, 0, 0, 0}));
    EXPECT_EQ(storedProfiles().front().actions.size(), 8U);
}

TEST_F(ProfileStoreTest, ListWithDuplicateIdsIsRejectedWhole) {
    const Uuid id = Uuid::random();
    storeList({WorkProfile(id, "A", {1}, {}), WorkProfile(id, "B", {2}, {})});
    defaults->setInteger("gesture.0", 7);
    const ProfileStore store(defaults, "Default");
    ASSERT_EQ(store.profiles().size(), 1U);
    EXPECT_EQ(store.current().name, "Default");
    EXPECT_EQ(store.current().actions[0], 7);
    EXPECT_NE(store.current().id, id);
}

TEST_F(ProfileStoreTest, EmptyStoredListIsRejected) {
    storeList("[]");
    defaults->setInteger("gesture.4", 2);
    const ProfileStore store(defaults, "Default");
    ASSERT_EQ(store.profiles().size(), 1U);
    EXPECT_EQ(store.current().actions[4], 2);
    EXPECT_EQ(storedProfiles(), store.profiles());
}

TEST_F(ProfileStoreTest, UndecodableStoredListIsReplacedByTheMigratedProfile) {
    storeList("[{\"id\": 1}]");
    const ProfileStore store(defaults, "Standard");
    EXPECT_EQ(store.current().name, "Standard");
    EXPECT_EQ(storedProfiles(), store.profiles());
}

TEST_F(ProfileStoreTest, RejectedListIsKeptBesideTheNewOne) {
    const std::string damaged = "[{\"id\":\"not a uuid\",\"name\":\"Work\"}]";
    storeList(damaged);
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(defaults->data(ProfileStore::rejectedProfilesKey), bytesOf(damaged));
    EXPECT_EQ(storedProfiles(), store.profiles());
}

TEST_F(ProfileStoreTest, RejectedEmptyAndDuplicateListsAreKeptToo) {
    const Uuid id = Uuid::random();
    const std::string duplicates =
        *encodeProfiles({WorkProfile(id, "A", {}, {}), WorkProfile(id, "B", {}, {})});
    for (const std::string& list : {std::string("[]"), duplicates}) {
        SCOPED_TRACE(list);
        storeList(list);
        const ProfileStore store(defaults, "Default");
        EXPECT_EQ(defaults->data(ProfileStore::rejectedProfilesKey), bytesOf(list));
    }
}

TEST_F(ProfileStoreTest, StoredListOfTheWrongTypeIsKeptAsRejected) {
    defaults->setString(ProfileStore::profilesKey, "[broken");
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(defaults->data(ProfileStore::rejectedProfilesKey), bytesOf("[broken"));
    EXPECT_EQ(storedProfiles(), store.profiles());
}

TEST_F(ProfileStoreTest, WellFormedListStoredAsTextIsSetAsideNotLoaded) {
    const WorkProfile stored(Uuid::random(), "Work", {1, 2, 3}, {});
    const std::string text = *encodeProfiles({stored});
    defaults->setString(ProfileStore::profilesKey, text);
    defaults->setInteger("gesture.0", 5);
    const ProfileStore store(defaults, "Default");
    ASSERT_EQ(store.profiles().size(), 1U);
    EXPECT_EQ(store.current().name, "Default");
    EXPECT_NE(store.current().id, stored.id);
    EXPECT_EQ(store.current().actions[0], 5);
    EXPECT_EQ(defaults->data(ProfileStore::rejectedProfilesKey), bytesOf(text));
    EXPECT_EQ(storedProfiles(), store.profiles());
}

TEST_F(ProfileStoreTest, AcceptedOrMissingListLeavesNoRejectedCopy) {
    { const ProfileStore fresh(defaults, "Default"); }
    EXPECT_EQ(defaults->data(ProfileStore::rejectedProfilesKey), std::nullopt);
    { const ProfileStore reloaded(defaults, "Default"); }
    EXPECT_EQ(defaults->data(ProfileStore::rejectedProfilesKey), std::nullopt);
}

TEST_F(ProfileStoreTest, StoredActiveProfileIsSelected) {
    const WorkProfile first(Uuid::random(), "First", {}, {});
    const WorkProfile second(Uuid::random(), "Second", {}, {});
    storeList({first, second});
    defaults->setString(ProfileStore::activeKey, second.id.text());
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(store.current().name, "Second");
}

TEST_F(ProfileStoreTest, LowerCaseActiveIdIsAccepted) {
    const WorkProfile first(Uuid::random(), "First", {}, {});
    const WorkProfile second(Uuid::random(), "Second", {}, {});
    storeList({first, second});
    std::string lower = second.id.text();
    for (char& c : lower) {
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    defaults->setString(ProfileStore::activeKey, lower);
    const ProfileStore store(defaults, "Default");
    EXPECT_EQ(store.activeID(), second.id);
    EXPECT_EQ(defaults->string(ProfileStore::activeKey), second.id.text());
}

TEST_F(ProfileStoreTest, MissingMalformedOrUnknownActiveIdFallsBackToTheFirstAndIsCorrected) {
    const WorkProfile first(Uuid::random(), "First", {}, {});
    const WorkProfile second(Uuid::random(), "Second", {}, {});
    for (const std::optional<std::string>& active :
         {std::optional<std::string>(), std::optional<std::string>("junk"),
          std::optional<std::string>(Uuid::random().text())}) {
        storeList({first, second});
        if (active) {
            defaults->setString(ProfileStore::activeKey, *active);
        } else {
            defaults->remove(ProfileStore::activeKey);
        }
        const ProfileStore store(defaults, "Default");
        EXPECT_EQ(store.activeID(), first.id);
        EXPECT_EQ(defaults->string(ProfileStore::activeKey), first.id.text());
    }
}

TEST_F(ProfileStoreTest, SetShortcutMakesTheSlotCustom) {
    ProfileStore store(defaults, "Default");
    store.setShortcut(commandB, 2);
    EXPECT_EQ(store.current().actions[2], action::custom);
    EXPECT_EQ(store.current().shortcuts[2], commandB);
    EXPECT_EQ(storedProfiles(), store.profiles());
}

TEST_F(ProfileStoreTest, DuplicateCopiesTheActiveProfilesSlots) {
    ProfileStore store(defaults, "Default");
    store.setShortcut(commandB, 2);
    store.setAction(action::copy, 5);
    const Uuid original = store.activeID();
    store.add("Video", true);
    EXPECT_NE(store.activeID(), original);
    EXPECT_EQ(store.current().name, "Video");
    EXPECT_EQ(store.current().actions[2], action::custom);
    EXPECT_EQ(store.current().shortcuts[2], commandB);
    EXPECT_EQ(store.current().actions[5], action::copy);
    EXPECT_EQ(store.profiles().back().id, store.activeID());
}

TEST_F(ProfileStoreTest, EditingOneProfileLeavesTheOthersAlone) {
    ProfileStore store(defaults, "Default");
    store.setShortcut(commandB, 2);
    const Uuid defaultID = store.activeID();
    store.add("Video", true);
    store.setAction(action::defaultAction, 2);
    store.select(defaultID);
    EXPECT_EQ(store.current().actions[2], action::custom);
}

TEST_F(ProfileStoreTest, NewProfileStartsWithDefaults) {
    ProfileStore store(defaults, "Default");
    store.setShortcut(commandB, 2);
    store.add("Audio", false);
    EXPECT_EQ(store.current().actions, std::vector<ActionIndex>(8, 0));
    EXPECT_EQ(store.current().shortcuts, Shortcuts(8));
    EXPECT_EQ(store.profiles().size(), 2U);
}

TEST_F(ProfileStoreTest, AddTakesTheNameAsGiven) {
    ProfileStore store(defaults, "Default");
    store.add("  Default  ", false);
    store.add("", false);
    EXPECT_EQ(store.profiles()[1].name, "  Default  ");
    EXPECT_EQ(store.current().name, "");
    EXPECT_EQ(storedProfiles(), store.profiles());
}

TEST_F(ProfileStoreTest, RenameNamesTheActiveProfile) {
    ProfileStore store(defaults, "Default");
    store.add("Audio", false);
    store.rename("Mix");
    EXPECT_EQ(store.current().name, "Mix");
    EXPECT_EQ(store.profiles()[0].name, "Default");
    store.rename("Default");
    EXPECT_EQ(store.current().name, "Default");
    EXPECT_EQ(storedProfiles(), store.profiles());
}

TEST_F(ProfileStoreTest, ReloadKeepsTheListAndTheActiveProfile) {
    ProfileStore store(defaults, "Default");
    store.setShortcut(commandB, 2);
    const Uuid defaultID = store.activeID();
    store.add("Video", true);
    store.add("Audio", false);
    store.rename("Mix");

    ProfileStore reloaded(defaults, "Default");
    EXPECT_EQ(reloaded.profiles(), store.profiles());
    EXPECT_EQ(reloaded.current().name, "Mix");
    reloaded.select(defaultID);
    EXPECT_EQ(reloaded.current().shortcuts[2], commandB);
}

TEST_F(ProfileStoreTest, SelectingTheActiveProfileStillSaves) {
    ProfileStore store(defaults, "Default");
    const std::size_t writes = defaults->writes;
    store.select(store.activeID());
    EXPECT_GT(defaults->writes, writes);
}

TEST_F(ProfileStoreTest, SelectOfAnUnknownIdChangesAndWritesNothing) {
    ProfileStore store(defaults, "Default");
    const std::size_t writes = defaults->writes;
    const Uuid active = store.activeID();
    store.select(Uuid::random());
    EXPECT_EQ(store.activeID(), active);
    EXPECT_EQ(defaults->writes, writes);
}

TEST_F(ProfileStoreTest, SetActionOutsideTheSlotsOrCatalogueChangesAndWritesNothing) {
    ProfileStore store(defaults, "Default");
    const auto before = store.profiles();
    const std::size_t writes = defaults->writes;
    store.setAction(1, 8);
    store.setAction(1, -1);
    store.setAction(15, 0);
    store.setAction(-1, 0);
    EXPECT_EQ(store.profiles(), before);
    EXPECT_EQ(defaults->writes, writes);
}

TEST_F(ProfileStoreTest, SetShortcutWithAnInvalidShortcutOrSlotChangesAndWritesNothing) {
    ProfileStore store(defaults, "Default");
    const auto before = store.profiles();
    const std::size_t writes = defaults->writes;
    store.setShortcut(SavedShortcut(65535, 0, "Bad"), 0);
    store.setShortcut(SavedShortcut(1, 0, ""), 0);
    store.setShortcut(SavedShortcut::decoded(1, ModifierFlags::capsLock, "A"), 0);
    store.setShortcut(commandB, 8);
    store.setShortcut(commandB, -1);
    EXPECT_EQ(store.profiles(), before);
    EXPECT_EQ(defaults->writes, writes);
}

TEST_F(ProfileStoreTest, SetActionKeepsTheSlotsShortcut) {
    ProfileStore store(defaults, "Default");
    store.setShortcut(commandB, 3);
    store.setAction(action::paste, 3);
    EXPECT_EQ(store.current().actions[3], action::paste);
    EXPECT_EQ(store.current().shortcuts[3], commandB);
}

TEST_F(ProfileStoreTest, CustomActionWithoutShortcutIsStoredButNotReloaded) {
    ProfileStore store(defaults, "Default");
    store.setAction(action::custom, 6);
    EXPECT_EQ(store.current().actions[6], action::custom);
    EXPECT_EQ(storedProfiles().front().actions[6], action::custom);
    const ProfileStore reloaded(defaults, "Default");
    EXPECT_EQ(reloaded.current().actions[6], action::defaultAction);
}

TEST_F(ProfileStoreTest, NameThatCannotBeEncodedLeavesTheStoredListAndWritesTheActiveId) {
    ProfileStore store(defaults, "Default");
    const auto storedBefore = defaults->data(ProfileStore::profilesKey);
    store.add("bad \xFF", false);
    EXPECT_EQ(defaults->data(ProfileStore::profilesKey), storedBefore);
    EXPECT_EQ(defaults->string(ProfileStore::activeKey), store.activeID().text());
}

TEST_F(ProfileStoreTest, EveryProfileIdIsUnique) {
    ProfileStore store(defaults, "Default");
    for (int i = 0; i < 10; ++i) {
        store.add("P", i % 2 == 0);
    }
    std::set<Uuid> ids;
    for (const auto& profile : store.profiles()) {
        ids.insert(profile.id);
    }
    EXPECT_EQ(ids.size(), store.profiles().size());
}

TEST_F(ProfileStoreTest, WorksOnFilePreferencesAcrossRestarts) {
    const TemporaryDirectory directory;
    Uuid video;
    {
        FilePreferenceSuites suites(directory.path());
        ProfileStore store(suites.standard(), "Default");
        store.setShortcut(commandB, 1);
        store.add("Video", true);
        video = store.activeID();
    }
    FilePreferenceSuites suites(directory.path());
    const ProfileStore store(suites.standard(), "Default");
    EXPECT_EQ(store.profiles().size(), 2U);
    EXPECT_EQ(store.activeID(), video);
    EXPECT_EQ(store.current().shortcuts[1], commandB);
}

}  // namespace
}  // namespace tactora
