// The trackpads' gestures of a profile: their record, their optional JSON key and the store's
// edits of them.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "core/profiles/GestureSlots.h"
#include "core/profiles/ProfileJson.h"
#include "core/profiles/ProfileStore.h"
#include "core/profiles/WorkProfile.h"
#include "profiles/CountingPreferences.h"

namespace tactora {
namespace {

using Shortcuts = std::vector<std::optional<SavedShortcut>>;

constexpr const char* knownID = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";
const SavedShortcut commandB(11, 0x100000, "⌘B");

// A one-profile list with `trackpad` (JSON text) as its "trackpad" value, or without the key.
std::string listWithTrackpad(const std::string& trackpad) {
    std::string json = std::string(R"([{"id":")") + knownID +
                       R"(","name":"P","actions":[1,0,0,0,0,0,0,0],"shortcuts":[null])";
    if (!trackpad.empty()) {
        json += R"(,"trackpad":)" + trackpad;
    }
    return json + "}]";
}

WorkProfile decodedOne(const std::string& json) {
    const auto decoded = decodeProfiles(json);
    if (!decoded || decoded->size() != 1) {
        ADD_FAILURE() << "not one profile: " << json;
        return WorkProfile("failed");
    }
    return decoded->front();
}

TEST(ProfileTrackpad, ANewProfileMapsNothingOnTrackpads) {
    const WorkProfile profile("New");

    EXPECT_EQ(profile.trackpad.actions, std::vector<ActionIndex>(8));
    EXPECT_EQ(profile.trackpad.shortcuts, Shortcuts(8));
    EXPECT_TRUE(profile.trackpad.isEmpty());
}

TEST(ProfileTrackpad, AShortcutAloneIsAMapping) {
    GestureSlots slots;
    slots.shortcuts[6] = commandB;

    EXPECT_FALSE(slots.isEmpty());
}

TEST(ProfileTrackpad, SanitizeRepairsTheTrackpadsSlotsLikeTheMouses) {
    WorkProfile profile("P");
    profile.trackpad = GestureSlots({14, 20, -1, 3}, {std::nullopt});
    profile.trackpad.shortcuts.resize(10, commandB);

    profile.sanitize();

    EXPECT_EQ(profile.trackpad.actions, (std::vector<ActionIndex>{0, 0, 0, 3, 0, 0, 0, 0}));
    ASSERT_EQ(profile.trackpad.shortcuts.size(), 8u);
    EXPECT_FALSE(profile.trackpad.shortcuts[0]);
    EXPECT_EQ(profile.trackpad.shortcuts[7], commandB);
}

TEST(ProfileTrackpad, AProfileWithoutTrackpadMappingsIsWrittenAsBefore) {
    const WorkProfile profile("Plain");

    EXPECT_EQ(*encodeProfiles({profile}),
              R"([{"id":")" + profile.id.text() +
                  R"(","name":"Plain","actions":[0,0,0,0,0,0,0,0],"shortcuts":)"
                  R"([null,null,null,null,null,null,null,null]}])");
}

TEST(ProfileTrackpad, TrackpadMappingsAreWrittenUnderTheirOwnKeyAndReadBack) {
    WorkProfile profile("CAD");
    profile.trackpad.actions = {0, 0, 3, 0, 0, 0, 3, 0};
    profile.trackpad.shortcuts[7] = commandB;
    profile.trackpad.actions[7] = 14;

    const std::string json = *encodeProfiles({profile});

    EXPECT_NE(json.find(R"("trackpad":{"actions":[0,0,3,0,0,0,3,14],"shortcuts":[null,null,)"
                        R"(null,null,null,null,null,{"keyCode":11,"flags":1048576,)"
                        R"("label":"⌘B"}]})"),
              std::string::npos)
        << json;
    EXPECT_EQ(decodedOne(json), profile);
}

// An older reader ignores the key: what it reads is the profile without trackpad mappings.
TEST(ProfileTrackpad, AListWithTrackpadMappingsIsTheOriginalFormPlusOneKey) {
    WorkProfile profile("Video", {1, 2, 3, 4, 5, 6, 7, 8});
    profile.trackpad.actions[6] = 3;
    WorkProfile withoutTrackpad = profile;
    withoutTrackpad.trackpad = GestureSlots();
    std::string json = *encodeProfiles({profile});
    const std::string key =
        R"(,"trackpad":{"actions":[0,0,0,0,0,0,3,0],"shortcuts":[null,null,null,null,null,null,null,null]})";
    const auto at = json.find(key);
    ASSERT_NE(at, std::string::npos) << json;

    json.erase(at, key.size());

    EXPECT_EQ(json, *encodeProfiles({withoutTrackpad}));
}

TEST(ProfileTrackpad, AProfileWithoutTheKeyMapsNothingOnTrackpads) {
    EXPECT_EQ(decodedOne(listWithTrackpad("")).trackpad, GestureSlots());
}

TEST(ProfileTrackpad, DecodingKeepsTheStoredLengthsForSanitizeToRepair) {
    WorkProfile profile = decodedOne(listWithTrackpad(R"({"actions":[0,0,3],"shortcuts":[]})"));

    EXPECT_EQ(profile.trackpad.actions, (std::vector<ActionIndex>{0, 0, 3}));
    profile.sanitize();
    EXPECT_EQ(profile.trackpad.actions, (std::vector<ActionIndex>{0, 0, 3, 0, 0, 0, 0, 0}));
    EXPECT_EQ(profile.trackpad.shortcuts, Shortcuts(8));
}

TEST(ProfileTrackpad, AMalformedTrackpadValueCostsOnlyThatProfilesTrackpadMappings) {
    for (const std::string value :
         {R"([0,0,3])", R"("x")", R"(null)", R"({"actions":[0,0,3]})", R"({"shortcuts":[null]})",
          R"({"actions":[0,"3"],"shortcuts":[]})",
          R"({"actions":[0],"shortcuts":[{"keyCode":11}]})", R"({"actions":[1.5],"shortcuts":[]})",
          R"({"actions":{},"shortcuts":[]})"}) {
        const WorkProfile profile = decodedOne(listWithTrackpad(value));

        EXPECT_EQ(profile.trackpad, GestureSlots()) << value;
        EXPECT_EQ(profile.actions, (std::vector<ActionIndex>{1, 0, 0, 0, 0, 0, 0, 0})) << value;
    }
}

class ProfileStoreTrackpad : public testing::Test {
  protected:
    std::shared_ptr<CountingPreferences> defaults = std::make_shared<CountingPreferences>();
    ProfileStore store{defaults, "Default"};

    WorkProfile stored() const {
        const auto data = defaults->data(ProfileStore::profilesKey);
        return decodedOne(std::string(data->begin(), data->end()));
    }
};

TEST_F(ProfileStoreTrackpad, SetActionOnTrackpadsLeavesTheMouseAlone) {
    store.setAction(3, 6, SurfaceKind::trackpad);

    EXPECT_EQ(store.current().trackpad.actions[6], 3);
    EXPECT_EQ(store.current().actions, std::vector<ActionIndex>(8));
    EXPECT_EQ(stored().trackpad.actions[6], 3);
}

TEST_F(ProfileStoreTrackpad, SetActionOnTheMouseLeavesTrackpadsAlone) {
    store.setAction(3, 6);

    EXPECT_EQ(store.current().actions[6], 3);
    EXPECT_TRUE(store.current().trackpad.isEmpty());
}

TEST_F(ProfileStoreTrackpad, SetShortcutOnTrackpadsMakesTheTrackpadSlotCustom) {
    store.setShortcut(commandB, 2, SurfaceKind::trackpad);

    EXPECT_EQ(store.current().trackpad.shortcuts[2], commandB);
    EXPECT_EQ(store.current().trackpad.actions[2], 14);
    EXPECT_EQ(store.current().shortcuts, Shortcuts(8));
    EXPECT_EQ(stored().trackpad.shortcuts[2], commandB);
}

TEST_F(ProfileStoreTrackpad, InvalidTrackpadEditsChangeNothing) {
    const std::size_t writes = defaults->writes;

    store.setAction(3, 8, SurfaceKind::trackpad);
    store.setAction(15, 0, SurfaceKind::trackpad);
    store.setShortcut(SavedShortcut(200, 0, "x"), 0, SurfaceKind::trackpad);

    EXPECT_TRUE(store.current().trackpad.isEmpty());
    EXPECT_EQ(defaults->writes, writes);
}

TEST_F(ProfileStoreTrackpad, DuplicateCopiesTheTrackpadsSlots) {
    store.setAction(3, 6, SurfaceKind::trackpad);

    store.add("Copy", true);

    EXPECT_EQ(store.current().name, "Copy");
    EXPECT_EQ(store.current().trackpad.actions[6], 3);
}

TEST_F(ProfileStoreTrackpad, ANewProfileMapsNothingOnTrackpads) {
    store.setAction(3, 6, SurfaceKind::trackpad);

    store.add("Fresh", false);

    EXPECT_TRUE(store.current().trackpad.isEmpty());
}

}  // namespace
}  // namespace tactora
