#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
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

TEST_F(MoreGesturesStoreTest, DuplicateCopiesThemAndNewDoesNot) {
    store.setMoreAction(action::copy, MoreGestureSlot::tipTapLeft);
    const MoreGestureMap more = store.current().moreGestures;
    store.add("Copy", true);
    EXPECT_EQ(store.current().moreGestures, more);
    store.add("Fresh", false);
    EXPECT_TRUE(store.current().moreGestures.isDefault());
}

}  // namespace
}  // namespace tactora
