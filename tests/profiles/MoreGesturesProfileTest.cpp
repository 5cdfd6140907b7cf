#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "core/profiles/MoreGestureMap.h"
#include "core/profiles/ProfileJson.h"
#include "core/profiles/ProfileStore.h"
#include "profiles/CountingPreferences.h"

namespace tactora {
namespace {

constexpr const char* knownID = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";
const SavedShortcut commandB(11, 0x100000, "⌘B");

std::size_t at(MoreGestureSlot slot) {
    return moreslot::index(slot);
}

// A one-profile list whose "moreGestures" key holds `more` (JSON text).
std::string listWithMore(const std::string& more) {
    return std::string(R"([{"id":")") + knownID +
           R"(","name":"P","actions":[0,0,0,0,0,0,0,0],"shortcuts":[],"moreGestures":)" + more +
           "}]";
}

MoreGestureMap decodedMore(const std::string& more) {
    const auto decoded = decodeProfiles(listWithMore(more));
    EXPECT_TRUE(decoded) << more;
    return decoded ? decoded->at(0).moreGestures : MoreGestureMap();
}

TEST(MoreGestureSlots, NamesAreUniqueAndReadBack) {
    for (std::size_t i = 0; i < moreslot::count; ++i) {
        const auto slot = static_cast<MoreGestureSlot>(i);
        EXPECT_EQ(moreslot::named(moreslot::name(slot)), slot);
    }
    EXPECT_EQ(moreslot::named("swipe.4.up"), std::nullopt);
    EXPECT_EQ(moreslot::forSwipe(1, SwipeDirection::up), MoreGestureSlot::swipe1Up);
    EXPECT_EQ(moreslot::forSwipe(2, SwipeDirection::left), MoreGestureSlot::swipe2Left);
    EXPECT_EQ(moreslot::forSwipe(3, SwipeDirection::right), MoreGestureSlot::swipe3Right);
}

TEST(MoreGestureMap, StartsWithEverySlotOff) {
    const MoreGestureMap map;
    EXPECT_TRUE(map.isDefault());
    for (std::size_t i = 0; i < moreslot::count; ++i) {
        EXPECT_FALSE(map.isMapped(static_cast<MoreGestureSlot>(i)));
    }
    EXPECT_EQ(map.topBand, MoreGestureMap::defaultTopBand);
    EXPECT_EQ(WorkProfile("New").moreGestures, map);
}

TEST(MoreGestureMap, SanitizeRepairsAsTheEightAreRepaired) {
    MoreGestureMap map;
    map.actions[at(MoreGestureSlot::tapLeft)] = 99;
    map.actions[at(MoreGestureSlot::tapRight)] = -1;
    map.actions[at(MoreGestureSlot::tapTop)] = action::custom;  // no shortcut
    map.actions[at(MoreGestureSlot::tipTapLeft)] = action::custom;
    map.shortcuts[at(MoreGestureSlot::tipTapLeft)] = SavedShortcut::decoded(11, 0x10000, "x");
    map.actions[at(MoreGestureSlot::swipe2Left)] = action::custom;
    map.shortcuts[at(MoreGestureSlot::swipe2Left)] = commandB;
    map.actions[at(MoreGestureSlot::tapHold)] = action::middle;
    map.sanitize();
    EXPECT_EQ(map.action(MoreGestureSlot::tapLeft), action::defaultAction);
    EXPECT_EQ(map.action(MoreGestureSlot::tapRight), action::defaultAction);
    EXPECT_EQ(map.action(MoreGestureSlot::tapTop), action::defaultAction);
    EXPECT_EQ(map.action(MoreGestureSlot::tipTapLeft), action::defaultAction);
    EXPECT_EQ(map.shortcut(MoreGestureSlot::tipTapLeft), std::nullopt);
    EXPECT_EQ(map.action(MoreGestureSlot::swipe2Left), action::custom);
    EXPECT_EQ(map.shortcut(MoreGestureSlot::swipe2Left), commandB);
    EXPECT_EQ(map.action(MoreGestureSlot::tapHold), action::middle);
}

TEST(MoreGestureMap, SanitizeKeepsTheTopBandInItsRange) {
    MoreGestureMap map;
    map.topBand = 0.01;
    map.sanitize();
    EXPECT_EQ(map.topBand, MoreGestureMap::smallestTopBand);
    map.topBand = 3;
    map.sanitize();
    EXPECT_EQ(map.topBand, MoreGestureMap::largestTopBand);
    map.topBand = std::numeric_limits<double>::quiet_NaN();
    map.sanitize();
    EXPECT_EQ(map.topBand, MoreGestureMap::defaultTopBand);
    map.topBand = 0.3;
    map.sanitize();
    EXPECT_EQ(map.topBand, 0.3);
}

TEST(MoreGestureMap, WorkProfileSanitizeRepairsThem) {
    WorkProfile profile("P");
    profile.moreGestures.actions[at(MoreGestureSlot::swipe1Up)] = 40;
    profile.sanitize();
    EXPECT_EQ(profile.moreGestures.action(MoreGestureSlot::swipe1Up), action::defaultAction);
}

TEST(MoreGesturesJson, ProfileMappingNoneIsStoredExactlyAsBefore) {
    const WorkProfile profile("Plain");
    EXPECT_EQ(*encodeProfiles({profile}),
              R"([{"id":")" + profile.id.text() +
                  R"(","name":"Plain","actions":[0,0,0,0,0,0,0,0],"shortcuts":)"
                  R"([null,null,null,null,null,null,null,null]}])");
}

TEST(MoreGesturesJson, MappedSlotsAreWrittenByNameAndReadBack) {
    WorkProfile profile("CAD");
    profile.moreGestures.actions[at(MoreGestureSlot::tapHold)] = action::middle;
    profile.moreGestures.actions[at(MoreGestureSlot::swipe3Up)] = action::custom;
    profile.moreGestures.shortcuts[at(MoreGestureSlot::swipe3Up)] = commandB;
    profile.moreGestures.topBand = 0.3;
    const std::string json = *encodeProfiles({profile});
    EXPECT_NE(json.find(R"("moreGestures":{"slots":{"swipe.3.up":{"action":14,"shortcut":)"
                        R"({"keyCode":11,"flags":1048576,"label":"⌘B"}},"tapHold":{"action":3}},)"
                        R"("topBand":0.3})"),
              std::string::npos)
        << json;
    const auto decoded = decodeProfiles(json);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->at(0), profile);
}

// An older reader ignores the key it does not know: what remains is the profile as it was, so
// an older copy does with the eight exactly what this one does.
TEST(MoreGesturesJson, ListWithFurtherGesturesIsTheOriginalFormPlusOneKey) {
    WorkProfile profile("CAD", {1, 2, 3, 4, 5, 6, 7, 8});
    profile.moreGestures.actions[at(MoreGestureSlot::tapLeft)] = action::copy;
    WorkProfile without = profile;
    without.moreGestures = MoreGestureMap();
    std::string json = *encodeProfiles({profile});
    const std::string key = R"(,"moreGestures":{"slots":{"tap.left":{"action":5}},"topBand":0.25})";
    const auto found = json.find(key);
    ASSERT_NE(found, std::string::npos) << json;
    json.erase(found, key.size());
    EXPECT_EQ(json, *encodeProfiles({without}));
}

TEST(MoreGesturesJson, MissingKeyReadsAsEverySlotOff) {
    const std::string json =
        std::string(R"([{"id":")") + knownID + R"(","name":"P","actions":[],"shortcuts":[]}])";
    const auto decoded = decodeProfiles(json);
    ASSERT_TRUE(decoded);
    EXPECT_TRUE(decoded->at(0).moreGestures.isDefault());
}

TEST(MoreGesturesJson, MalformedValuesTurnOnlyThemselvesOff) {
    for (const std::string more : {"null", "5", "[]", R"("x")", R"({"slots":[]})",
                                   R"({"slots":{"tap.left":5}})", R"({"slots":null})"}) {
        EXPECT_TRUE(decodedMore(more).isDefault()) << more;
    }
    const MoreGestureMap partly = decodedMore(
        R"({"slots":{"tap.left":{"action":"x"},"tap.right":{"action":5},)"
        R"("tap.top":{"action":14,"shortcut":{"keyCode":-1}},"swipe.9.up":{"action":3}},)"
        R"("topBand":"deep"})");
    EXPECT_EQ(partly.action(MoreGestureSlot::tapLeft), action::defaultAction);
    EXPECT_EQ(partly.action(MoreGestureSlot::tapRight), action::copy);
    EXPECT_EQ(partly.shortcut(MoreGestureSlot::tapTop), std::nullopt);
    EXPECT_EQ(partly.topBand, MoreGestureMap::defaultTopBand);
    WorkProfile repaired(Uuid::random(), "P", {}, {});
    repaired.moreGestures = partly;
    repaired.sanitize();
    EXPECT_EQ(repaired.moreGestures.action(MoreGestureSlot::tapTop), action::defaultAction);
}

TEST(MoreGestureMap, FurtherActionsAreTheSlotsActionAndValue) {
    MoreGestureMap map;
    map.extras[at(MoreGestureSlot::swipe2Up)] = SlotExtra{ExtraAction::openAddress, "https://a.b"};
    EXPECT_TRUE(map.isMapped(MoreGestureSlot::swipe2Up));
    EXPECT_EQ(map.action(MoreGestureSlot::swipe2Up), action::index(ExtraAction::openAddress));
    EXPECT_EQ(map.value(MoreGestureSlot::swipe2Up), "https://a.b");
    EXPECT_EQ(map.value(MoreGestureSlot::swipe2Down), "");
    EXPECT_FALSE(map.isDefault());
}

TEST(MoreGestureMap, SanitizeRepairsFurtherActionsAsTheEightsAreRepaired) {
    MoreGestureMap map;
    map.extras[at(MoreGestureSlot::tapLeft)] = SlotExtra{ExtraAction::mute, "left over"};
    map.extras[at(MoreGestureSlot::tapRight)] = SlotExtra{ExtraAction::openFile, ""};
    map.actions[at(MoreGestureSlot::tapTop)] = action::copy;
    map.extras[at(MoreGestureSlot::tapTop)] = SlotExtra{ExtraAction::playPause, ""};
    map.actions[at(MoreGestureSlot::tapHold)] = 99;
    map.extras[at(MoreGestureSlot::tapHold)] = SlotExtra{ExtraAction::commandClick, ""};
    map.sanitize();
    EXPECT_EQ(map.extra(MoreGestureSlot::tapLeft), (SlotExtra{ExtraAction::mute, ""}));
    EXPECT_EQ(map.extra(MoreGestureSlot::tapRight), std::nullopt);
    EXPECT_FALSE(map.isMapped(MoreGestureSlot::tapRight));
    // Another action where an older copy looks wins over the further action, in both copies.
    EXPECT_EQ(map.extra(MoreGestureSlot::tapTop), std::nullopt);
    EXPECT_EQ(map.action(MoreGestureSlot::tapTop), action::copy);
    // An action that was out of the catalogue fell back to the default first.
    EXPECT_EQ(map.action(MoreGestureSlot::tapHold), action::index(ExtraAction::commandClick));
}

TEST(MoreGesturesJson, FurtherActionsAreWrittenBesideTheDefaultAndReadBack) {
    WorkProfile profile("Media");
    profile.moreGestures.extras[at(MoreGestureSlot::swipe1Up)] =
        SlotExtra{ExtraAction::volumeUp, ""};
    profile.moreGestures.extras[at(MoreGestureSlot::tipTapLeft)] =
        SlotExtra{ExtraAction::openApplication, "com.apple.Music"};
    profile.moreGestures.shortcuts[at(MoreGestureSlot::tipTapLeft)] = commandB;
    profile.sanitize();
    const std::string json = *encodeProfiles({profile});
    EXPECT_NE(json.find(R"("tipTap.left":{"action":0,"shortcut":{"keyCode":11,"flags":1048576,)"
                        R"("label":"⌘B"},"extra":{"action":"openApplication",)"
                        R"("value":"com.apple.Music"}})"),
              std::string::npos)
        << json;
    EXPECT_NE(json.find(R"("swipe.1.up":{"action":0,"extra":{"action":"volumeUp"}})"),
              std::string::npos)
        << json;
    auto decoded = decodeProfiles(json);
    ASSERT_TRUE(decoded);
    decoded->at(0).sanitize();
    EXPECT_EQ(decoded->at(0), profile);
}

// A reader that knows "moreGestures" but not "extra" sees the default action there: the gesture
// stays off, and nothing else happens in its place.
TEST(MoreGesturesJson, AReaderWithoutFurtherActionsLeavesTheirSlotsOff) {
    WorkProfile profile("Media");
    profile.moreGestures.extras[at(MoreGestureSlot::swipe3Left)] =
        SlotExtra{ExtraAction::spaceLeft, ""};
    profile.moreGestures.actions[at(MoreGestureSlot::swipe3Right)] = action::forward;
    nlohmann::json json = nlohmann::json::parse(*encodeProfiles({profile}));
    for (auto& [name, slot] : json[0]["moreGestures"]["slots"].items()) {
        slot.erase("extra");
    }
    auto decoded = decodeProfiles(json.dump());
    ASSERT_TRUE(decoded);
    const MoreGestureMap& older = decoded->at(0).moreGestures;
    EXPECT_FALSE(older.isMapped(MoreGestureSlot::swipe3Left));
    EXPECT_EQ(older.action(MoreGestureSlot::swipe3Right), action::forward);
}

TEST(MoreGesturesJson, MalformedFurtherActionsTurnOnlyThemselvesOff) {
    MoreGestureMap map =
        decodedMore(R"({"slots":{"tap.left":{"action":0,"extra":{"action":"teleport"}},)"
                    R"("tap.right":{"action":0,"extra":{"action":"openFile","value":7}},)"
                    R"("tap.top":{"action":0,"extra":"mute"},)"
                    R"("tipTap.left":{"action":0,"extra":{"action":"openFile"}},)"
                    R"("tipTap.right":{"action":5,"extra":{"action":"mute"}},)"
                    R"("tapHold":{"action":0,"extra":{"action":"shiftClick"}}}})");
    map.sanitize();
    for (const MoreGestureSlot off : {MoreGestureSlot::tapLeft, MoreGestureSlot::tapRight,
                                      MoreGestureSlot::tapTop, MoreGestureSlot::tipTapLeft}) {
        EXPECT_FALSE(map.isMapped(off)) << moreslot::name(off);
    }
    EXPECT_EQ(map.action(MoreGestureSlot::tipTapRight), action::copy);
    EXPECT_EQ(map.action(MoreGestureSlot::tapHold), action::index(ExtraAction::shiftClick));
}

TEST(MoreGesturesJson, TopBandMayBeWrittenAsAnInteger) {
    MoreGestureMap map = decodedMore(R"({"slots":{},"topBand":1})");
    EXPECT_EQ(map.topBand, 1.0);
    map.sanitize();
    EXPECT_EQ(map.topBand, MoreGestureMap::largestTopBand);
}

class MoreGesturesStoreTest : public testing::Test {
  protected:
    std::shared_ptr<CountingPreferences> defaults = std::make_shared<CountingPreferences>();
    ProfileStore store{defaults, "Default"};

    MoreGestureMap reloaded() const { return ProfileStore(defaults, "x").current().moreGestures; }
};

TEST_F(MoreGesturesStoreTest, SlotsAreSetSavedAndReloaded) {
    store.setMoreAction(action::middle, MoreGestureSlot::tapHold);
    store.setMoreShortcut(commandB, MoreGestureSlot::swipe1Left);
    store.setTopBand(0.4);
    const MoreGestureMap& more = store.current().moreGestures;
    EXPECT_EQ(more.action(MoreGestureSlot::tapHold), action::middle);
    EXPECT_EQ(more.action(MoreGestureSlot::swipe1Left), action::custom);
    EXPECT_EQ(more.shortcut(MoreGestureSlot::swipe1Left), commandB);
    EXPECT_EQ(more.topBand, 0.4);
    EXPECT_EQ(reloaded(), more);
}

TEST_F(MoreGesturesStoreTest, InvalidValuesChangeNothing) {
    store.setMoreAction(15, MoreGestureSlot::tapLeft);
    store.setMoreAction(action::copy, static_cast<MoreGestureSlot>(moreslot::count));
    store.setMoreShortcut(SavedShortcut(200, 0, "x"), MoreGestureSlot::tapLeft);
    EXPECT_TRUE(store.current().moreGestures.isDefault());
    store.setTopBand(9);
    EXPECT_EQ(store.current().moreGestures.topBand, MoreGestureMap::largestTopBand);
}

TEST_F(MoreGesturesStoreTest, FurtherActionsAreSetSavedAndReloaded) {
    store.setMoreExtra({ExtraAction::runShortcut, "Lights"}, MoreGestureSlot::swipe2Right);
    store.setMoreExtra({ExtraAction::mute, "ignored"}, MoreGestureSlot::tapHold);
    const MoreGestureMap& more = store.current().moreGestures;
    EXPECT_EQ(more.action(MoreGestureSlot::swipe2Right), action::index(ExtraAction::runShortcut));
    EXPECT_EQ(more.value(MoreGestureSlot::swipe2Right), "Lights");
    EXPECT_EQ(more.extra(MoreGestureSlot::tapHold), (SlotExtra{ExtraAction::mute, ""}));
    EXPECT_EQ(reloaded(), more);
}

TEST_F(MoreGesturesStoreTest, AnActionOrShortcutTakesTheFurtherActionsPlace) {
    store.setMoreShortcut(commandB, MoreGestureSlot::tapLeft);
    store.setMoreExtra({ExtraAction::playPause, ""}, MoreGestureSlot::tapLeft);
    EXPECT_EQ(store.current().moreGestures.action(MoreGestureSlot::tapLeft),
              action::index(ExtraAction::playPause));
    // The shortcut stays, as in the gesture rows, for when the slot is made custom again.
    EXPECT_EQ(store.current().moreGestures.shortcut(MoreGestureSlot::tapLeft), commandB);
    store.setMoreAction(action::copy, MoreGestureSlot::tapLeft);
    EXPECT_EQ(store.current().moreGestures.action(MoreGestureSlot::tapLeft), action::copy);
    EXPECT_EQ(store.current().moreGestures.extra(MoreGestureSlot::tapLeft), std::nullopt);
    store.setMoreExtra({ExtraAction::playPause, ""}, MoreGestureSlot::tapRight);
    store.setMoreShortcut(commandB, MoreGestureSlot::tapRight);
    EXPECT_EQ(store.current().moreGestures.action(MoreGestureSlot::tapRight), action::custom);
    EXPECT_EQ(reloaded(), store.current().moreGestures);
}

TEST_F(MoreGesturesStoreTest, AFurtherActionWithoutItsValueChangesNothing) {
    store.setMoreAction(action::copy, MoreGestureSlot::tapTop);
    store.setMoreExtra({ExtraAction::openApplication, ""}, MoreGestureSlot::tapTop);
    store.setMoreExtra({ExtraAction::mute, ""}, static_cast<MoreGestureSlot>(moreslot::count));
    EXPECT_EQ(store.current().moreGestures.action(MoreGestureSlot::tapTop), action::copy);
    EXPECT_EQ(reloaded(), store.current().moreGestures);
}

TEST_F(MoreGesturesStoreTest, DuplicateCopiesThemAndNewDoesNot) {
    store.setMoreAction(action::copy, MoreGestureSlot::tipTapLeft);
    store.setMoreExtra({ExtraAction::openFile, "/Users/a/b.txt"}, MoreGestureSlot::swipe1Down);
    const MoreGestureMap more = store.current().moreGestures;
    store.add("Copy", true);
    EXPECT_EQ(store.current().moreGestures, more);
    store.add("Fresh", false);
    EXPECT_TRUE(store.current().moreGestures.isDefault());
}

}  // namespace
}  // namespace tactora
