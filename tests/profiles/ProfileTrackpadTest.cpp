// The eight gestures a profile keeps for trackpads: their record and its repair, their optional
// JSON key, the store's edits of them, duplication and profile files.
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/profiles/GestureSlots.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/ProfileJson.h"
#include "core/profiles/ProfileStore.h"
#include "core/profiles/SurfaceKind.h"
#include "core/profiles/WorkProfile.h"
#include "profiles/CountingPreferences.h"

namespace tactora {
namespace {

using Actions = std::vector<ActionIndex>;
using Shortcuts = std::vector<std::optional<SavedShortcut>>;
using Extras = std::vector<std::optional<SlotExtra>>;

constexpr const char* knownID = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";
const SavedShortcut commandB(11, 0x100000, "⌘B");
const SlotExtra music{ExtraAction::openApplication, "com.apple.Music"};
const SlotExtra mute{ExtraAction::mute, ""};

// A one-profile list holding everything else a profile can hold, with `trackpad` (JSON text) as
// its "trackpad" value, or without the key when it is empty.
std::string listWithTrackpad(const std::string& trackpad) {
    std::string json = std::string(R"([{"id":")") + knownID +
                       R"(","name":"P","actions":[1,0,0,0,0,0,0,14],)"
                       R"("shortcuts":[null,null,null,null,null,null,null,)"
                       R"({"keyCode":11,"flags":1048576,"label":"⌘B"}],"apps":["com.example.A"],)"
                       R"("extraActions":[null,null,null,null,{"action":"mute"},null,null,null],)"
                       R"("moreGestures":{"slots":{"tap.left":{"action":5}},"topBand":0.3})";
    if (!trackpad.empty()) {
        json += R"(,"trackpad":)" + trackpad;
    }
    return json + "}]";
}

// The single profile of `json`, sanitized as the store does.
WorkProfile decodedOne(const std::string& json) {
    const auto decoded = decodeProfiles(json);
    if (!decoded || decoded->size() != 1) {
        ADD_FAILURE() << "not one profile: " << json;
        return WorkProfile("failed");
    }
    WorkProfile profile = decoded->front();
    profile.sanitize();
    return profile;
}

// Something in every kind of trackpad slot: a catalogue action, a shortcut and two extras.
GestureSlots mappedTrackpad() {
    GestureSlots slots;
    slots.actions = {0, 0, 3, 0, 0, 0, 0, 14};
    slots.shortcuts[7] = commandB;
    slots.extras.resize(8);
    slots.extras[4] = mute;
    slots.extras[6] = music;
    return slots;
}

TEST(ProfileTrackpad, ANewProfileMapsNothingOnTrackpads) {
    const WorkProfile profile("New");

    EXPECT_EQ(profile.trackpad.actions, Actions(8));
    EXPECT_EQ(profile.trackpad.shortcuts, Shortcuts(8));
    EXPECT_TRUE(profile.trackpad.extras.empty());
    EXPECT_TRUE(profile.trackpad.isEmpty());
    EXPECT_EQ(profile.trackpad, GestureSlots());
}

TEST(ProfileTrackpad, AnActionAShortcutOrAnExtraEachMakeTheSlotsNonEmpty) {
    GestureSlots withAction;
    withAction.actions[1] = 3;
    GestureSlots withShortcut;
    withShortcut.shortcuts[6] = commandB;
    GestureSlots withExtra;
    withExtra.extras.resize(8);
    withExtra.extras[2] = mute;
    GestureSlots withEmptyExtras;
    withEmptyExtras.extras.resize(8);

    EXPECT_FALSE(withAction.isEmpty());
    EXPECT_FALSE(withShortcut.isEmpty());
    EXPECT_FALSE(withExtra.isEmpty());
    EXPECT_TRUE(withEmptyExtras.isEmpty());
}

TEST(ProfileTrackpad, ExtraAtAnswersNothingPastTheList) {
    const GestureSlots slots = mappedTrackpad();

    EXPECT_EQ(slots.extraAt(4), mute);
    EXPECT_EQ(slots.extraAt(5), std::nullopt);
    EXPECT_EQ(slots.extraAt(8), std::nullopt);
    EXPECT_EQ(GestureSlots().extraAt(0), std::nullopt);
}

// The same damaged lists, given to the Magic Mouse's eight and to the trackpads', come out the
// same.
TEST(ProfileTrackpad, SanitizeRepairsTheTrackpadsSlotsExactlyLikeTheMouses) {
    const Actions actions = {14, 20, -1, 3, 0, 14, 0, 2};
    Shortcuts shortcuts(10, commandB);
    shortcuts[0].reset();
    shortcuts[5] = SavedShortcut(65535, 0, "Bad");
    Extras extras(9);
    extras[3] = mute;                                         // the slot has another action
    extras[4] = SlotExtra{ExtraAction::openApplication, ""};  // needs a value
    extras[6] = SlotExtra{ExtraAction::mute, "ignored"};      // needs none
    extras[8] = music;                                        // past the eight
    WorkProfile profile("P", actions, shortcuts);
    profile.extras = extras;
    profile.trackpad.actions = actions;
    profile.trackpad.shortcuts = shortcuts;
    profile.trackpad.extras = extras;

    profile.sanitize();

    EXPECT_EQ(profile.trackpad.actions, (Actions{0, 0, 0, 3, 0, 0, 0, 2}));
    ASSERT_EQ(profile.trackpad.shortcuts.size(), 8U);
    EXPECT_FALSE(profile.trackpad.shortcuts[0]);
    EXPECT_FALSE(profile.trackpad.shortcuts[5]);
    EXPECT_EQ(profile.trackpad.shortcuts[7], commandB);
    EXPECT_EQ(profile.trackpad.extras,
              (Extras{std::nullopt, std::nullopt, std::nullopt, std::nullopt, std::nullopt,
                      std::nullopt, mute, std::nullopt}));
    EXPECT_EQ(profile.trackpad.actions, profile.actions);
    EXPECT_EQ(profile.trackpad.shortcuts, profile.shortcuts);
    EXPECT_EQ(profile.trackpad.extras, profile.extras);
}

TEST(ProfileTrackpad, SanitizeLeavesNoExtrasWhenNoSlotKeepsOne) {
    GestureSlots slots;
    slots.actions[2] = 3;
    slots.extras.resize(8);
    slots.extras[2] = mute;

    slots.sanitize();

    EXPECT_TRUE(slots.extras.empty());
    EXPECT_EQ(slots.actions[2], 3);
}

TEST(ProfileTrackpad, AProfileWithNothingMappedOnTrackpadsIsWrittenAsBefore) {
    const WorkProfile plain("Plain");

    EXPECT_EQ(*encodeProfiles({plain}),
              R"([{"id":")" + plain.id.text() +
                  R"(","name":"Plain","actions":[0,0,0,0,0,0,0,0],"shortcuts":)"
                  R"([null,null,null,null,null,null,null,null]}])");
}

TEST(ProfileTrackpad, AProfileWithEverythingButTrackpadsIsWrittenAsBefore) {
    Shortcuts shortcuts(8);
    shortcuts[7] = commandB;
    WorkProfile rich(*Uuid::parse(knownID), "Rich", {1, 0, 0, 0, 0, 0, 0, 14}, shortcuts);
    rich.apps = {"com.example.Editor"};
    rich.extras.resize(8);
    rich.extras[4] = mute;
    rich.moreGestures.actions[moreslot::index(MoreGestureSlot::tapLeft)] = 5;
    // Only a shortcut that sanitize() drops: nothing is left on trackpads.
    rich.trackpad.shortcuts[3] = SavedShortcut(65535, 0, "Bad");
    rich.trackpad.extras.resize(8);
    rich.sanitize();

    EXPECT_EQ(*encodeProfiles({rich}),
              std::string(R"([{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","name":"Rich",)"
                          R"("actions":[1,0,0,0,0,0,0,14],"shortcuts":[null,null,null,null,null,)"
                          R"(null,null,{"keyCode":11,"flags":1048576,"label":"⌘B"}],)"
                          R"("apps":["com.example.Editor"],"extraActions":[null,null,null,null,)"
                          R"({"action":"mute"},null,null,null],"moreGestures":{"slots":)"
                          R"({"tap.left":{"action":5}},"topBand":0.25}}])"));
}

TEST(ProfileTrackpad, ActionsShortcutsAndExtrasOnTrackpadsAreWrittenAndReadBack) {
    WorkProfile profile("CAD");
    profile.trackpad = mappedTrackpad();
    profile.sanitize();

    const std::string json = *encodeProfiles({profile});

    EXPECT_NE(json.find(R"(,"trackpad":{"actions":[0,0,3,0,0,0,0,14],"shortcuts":[null,null,)"
                        R"(null,null,null,null,null,{"keyCode":11,"flags":1048576,)"
                        R"("label":"⌘B"}],"extraActions":[null,null,null,null,)"
                        R"({"action":"mute"},null,{"action":"openApplication",)"
                        R"("value":"com.apple.Music"},null]}}])"),
              std::string::npos)
        << json;
    EXPECT_EQ(decodedOne(json), profile);
}

// A reader that knows only "actions" sees the default where a trackpad slot holds an extra.
TEST(ProfileTrackpad, ASlotWithAnExtraIsWrittenWithTheDefaultAction) {
    WorkProfile profile("P");
    profile.trackpad.actions[4] = 3;  // not yet repaired: the extra is what is written
    profile.trackpad.extras.resize(8);
    profile.trackpad.extras[4] = mute;

    const std::string json = *encodeProfiles({profile});

    EXPECT_NE(json.find(R"("trackpad":{"actions":[0,0,0,0,0,0,0,0],)"), std::string::npos) << json;
}

// An older reader ignores the key: what it reads is the profile without trackpad mappings.
TEST(ProfileTrackpad, AListWithTrackpadMappingsIsTheOriginalFormPlusOneKey) {
    WorkProfile profile("Video", {1, 2, 3, 4, 5, 6, 7, 8});
    profile.trackpad.actions[6] = 3;
    WorkProfile withoutTrackpad = profile;
    withoutTrackpad.trackpad = GestureSlots();
    std::string json = *encodeProfiles({profile});
    const std::string key = R"(,"trackpad":{"actions":[0,0,0,0,0,0,3,0],)"
                            R"("shortcuts":[null,null,null,null,null,null,null,null]})";
    const auto at = json.find(key);
    ASSERT_NE(at, std::string::npos) << json;

    json.erase(at, key.size());

    EXPECT_EQ(json, *encodeProfiles({withoutTrackpad}));
}

TEST(ProfileTrackpad, AProfileWithoutTheKeyMapsNothingOnTrackpads) {
    const WorkProfile profile = decodedOne(listWithTrackpad(""));

    EXPECT_EQ(profile.trackpad, GestureSlots());
    EXPECT_EQ(profile.actions, (Actions{1, 0, 0, 0, 0, 0, 0, 14}));
}

TEST(ProfileTrackpad, ActionsOutsideTheCatalogueAreRepairedLikeTheMouses) {
    const WorkProfile profile = decodedOne(listWithTrackpad(
        R"({"actions":[0,99,3,-4,14,0,0,0],"shortcuts":[null,null,null,null,null,null,null,null]})"));

    EXPECT_EQ(profile.trackpad.actions, (Actions{0, 0, 3, 0, 0, 0, 0, 0}));
}

// A newer copy's extra action leaves its slot on the default; the rest of the slots stay.
TEST(ProfileTrackpad, AnUnknownExtraActionLeavesOnlyItsSlotWithoutOne) {
    const WorkProfile profile = decodedOne(listWithTrackpad(
        R"({"actions":[0,0,3,0,0,0,0,0],"shortcuts":[null,null,null,null,null,null,null,null],)"
        R"("extraActions":[{"action":"teleport"},null,null,null,{"action":"mute"},null,null,null],)"
        R"("future":true})"));

    EXPECT_EQ(profile.trackpad.actions, (Actions{0, 0, 3, 0, 0, 0, 0, 0}));
    EXPECT_EQ(profile.trackpad.extraAt(0), std::nullopt);
    EXPECT_EQ(profile.trackpad.extraAt(4), mute);
}

TEST(ProfileTrackpad, AMalformedTrackpadValueCostsOnlyThatProfilesTrackpadMappings) {
    const std::string nulls = "[null,null,null,null,null,null,null,null]";
    const std::string zeros = "[0,0,3,0,0,0,0,0]";
    const std::string good = R"({"actions":)" + zeros + R"(,"shortcuts":)" + nulls;
    const WorkProfile expected = decodedOne(listWithTrackpad(""));
    for (const std::string& value : std::vector<std::string>{
             // not an object
             zeros,
             R"("x")",
             "null",
             "3",
             "true",
             // a member missing or of the wrong type
             R"({})",
             R"({"actions":)" + zeros + "}",
             R"({"shortcuts":)" + nulls + "}",
             R"({"actions":{},"shortcuts":)" + nulls + "}",
             R"({"actions":)" + zeros + R"(,"shortcuts":"none"})",
             // wrong lengths
             R"({"actions":[0,0,3],"shortcuts":)" + nulls + "}",
             R"({"actions":[0,0,3,0,0,0,0,0,0],"shortcuts":)" + nulls + "}",
             R"({"actions":)" + zeros + R"(,"shortcuts":[null]})",
             R"({"actions":)" + zeros + R"(,"shortcuts":[]})",
             good + R"(,"extraActions":[null]})",
             good + R"(,"extraActions":[null,null,null,null,null,null,null,null,null]})",
             // bad members
             R"({"actions":[0,"3",0,0,0,0,0,0],"shortcuts":)" + nulls + "}",
             R"({"actions":[0,1.5,0,0,0,0,0,0],"shortcuts":)" + nulls + "}",
             R"({"actions":[0,null,0,0,0,0,0,0],"shortcuts":)" + nulls + "}",
             R"({"actions":)" + zeros +
                 R"(,"shortcuts":[{"keyCode":11},null,null,null,null,null,null,null]})",
             R"({"actions":)" + zeros + R"(,"shortcuts":[3,null,null,null,null,null,null,null]})",
             good + R"(,"extraActions":"mute"})",
             good + R"(,"extraActions":{}})",
             good + R"(,"extraActions":null})",
             good + R"(,"extraActions":["mute",null,null,null,null,null,null,null]})",
             good + R"(,"extraActions":[{"value":"x"},null,null,null,null,null,null,null]})",
             good + R"(,"extraActions":[{"action":3},null,null,null,null,null,null,null]})",
             good + R"(,"extraActions":[{"action":"openFile","value":7},null,null,null,null,null,)"
                    R"(null,null]})",
         }) {
        const WorkProfile profile = decodedOne(listWithTrackpad(value));

        EXPECT_EQ(profile.trackpad, GestureSlots()) << value;
        EXPECT_EQ(profile, expected) << value;
    }
}

class ProfileStoreTrackpad : public testing::Test {
  protected:
    std::shared_ptr<CountingPreferences> defaults = std::make_shared<CountingPreferences>();
    ProfileStore store{defaults, "Default"};

    // The active profile as a store that reads the same preferences afresh finds it.
    WorkProfile reloaded() const {
        const ProfileStore again(defaults, "Default");
        return again.current();
    }
};

TEST_F(ProfileStoreTrackpad, SetActionOnTrackpadsPersistsAndLeavesTheMouseAlone) {
    store.setAction(3, 6, SurfaceKind::trackpad);

    EXPECT_EQ(store.current().trackpad.actions[6], 3);
    EXPECT_EQ(store.current().actions, Actions(8));
    EXPECT_EQ(reloaded().trackpad.actions[6], 3);
    EXPECT_EQ(reloaded().actions, Actions(8));
}

TEST_F(ProfileStoreTrackpad, SetShortcutOnTrackpadsMakesTheTrackpadSlotCustom) {
    store.setShortcut(commandB, 2, SurfaceKind::trackpad);

    EXPECT_EQ(store.current().trackpad.shortcuts[2], commandB);
    EXPECT_EQ(store.current().trackpad.actions[2], action::custom);
    EXPECT_EQ(store.current().shortcuts, Shortcuts(8));
    EXPECT_EQ(store.current().actions, Actions(8));
    EXPECT_EQ(reloaded().trackpad.shortcuts[2], commandB);
    EXPECT_EQ(reloaded().trackpad.actions[2], action::custom);
}

TEST_F(ProfileStoreTrackpad, SetExtraOnTrackpadsPersistsAndLeavesTheMouseAlone) {
    store.setAction(3, 5, SurfaceKind::trackpad);
    store.setExtra(music, 5, SurfaceKind::trackpad);

    EXPECT_EQ(store.current().trackpad.extraAt(5), music);
    EXPECT_EQ(store.current().trackpad.actions[5], action::defaultAction);
    EXPECT_TRUE(store.current().extras.empty());
    EXPECT_EQ(reloaded().trackpad.extraAt(5), music);
}

TEST_F(ProfileStoreTrackpad, AnActionOrAShortcutOnTrackpadsTakesTheTrackpadSlotsExtraAway) {
    store.setExtra(mute, 1, SurfaceKind::mouse);
    store.setExtra(mute, 1, SurfaceKind::trackpad);
    store.setExtra(mute, 2, SurfaceKind::trackpad);

    store.setAction(3, 1, SurfaceKind::trackpad);
    store.setShortcut(commandB, 2, SurfaceKind::trackpad);

    EXPECT_TRUE(store.current().trackpad.extras.empty());
    EXPECT_EQ(store.current().trackpad.actions, (Actions{0, 3, 14, 0, 0, 0, 0, 0}));
    EXPECT_EQ(store.current().extraAt(1), mute);
    EXPECT_EQ(reloaded().trackpad, store.current().trackpad);
}

TEST_F(ProfileStoreTrackpad, TheMousesSettersLeaveTrackpadsAlone) {
    store.setAction(3, 6, SurfaceKind::trackpad);
    store.setExtra(mute, 4, SurfaceKind::trackpad);
    const GestureSlots trackpad = store.current().trackpad;

    store.setAction(5, 6);
    store.setShortcut(commandB, 2);
    store.setExtra(music, 4);
    store.setAction(7, 4, SurfaceKind::mouse);

    EXPECT_EQ(store.current().actions, (Actions{0, 0, 14, 0, 7, 0, 5, 0}));
    EXPECT_EQ(store.current().trackpad, trackpad);
    EXPECT_EQ(reloaded().trackpad, trackpad);
}

TEST_F(ProfileStoreTrackpad, InvalidTrackpadEditsChangeAndWriteNothing) {
    const std::size_t writes = defaults->writes;

    store.setAction(3, 8, SurfaceKind::trackpad);
    store.setAction(3, -1, SurfaceKind::trackpad);
    store.setAction(15, 0, SurfaceKind::trackpad);
    store.setShortcut(SavedShortcut(65535, 0, "Bad"), 0, SurfaceKind::trackpad);
    store.setShortcut(commandB, 8, SurfaceKind::trackpad);
    store.setExtra(SlotExtra{ExtraAction::openApplication, ""}, 0, SurfaceKind::trackpad);
    store.setExtra(mute, 8, SurfaceKind::trackpad);

    EXPECT_TRUE(store.current().trackpad.isEmpty());
    EXPECT_EQ(defaults->writes, writes);
}

TEST_F(ProfileStoreTrackpad, DuplicateCopiesTheTrackpadsSlots) {
    store.setAction(3, 6, SurfaceKind::trackpad);
    store.setShortcut(commandB, 7, SurfaceKind::trackpad);
    store.setExtra(music, 4, SurfaceKind::trackpad);
    const GestureSlots trackpad = store.current().trackpad;
    const Uuid original = store.current().id;

    store.add("Copy", true);

    EXPECT_NE(store.current().id, original);
    EXPECT_EQ(store.current().name, "Copy");
    EXPECT_EQ(store.current().trackpad, trackpad);
    EXPECT_EQ(reloaded().trackpad, trackpad);
}

TEST_F(ProfileStoreTrackpad, ANewProfileMapsNothingOnTrackpads) {
    store.setAction(3, 6, SurfaceKind::trackpad);

    store.add("Fresh", false);

    EXPECT_TRUE(store.current().trackpad.isEmpty());
}

TEST_F(ProfileStoreTrackpad, EditingOneProfilesTrackpadsLeavesTheOthersAlone) {
    const Uuid first = store.current().id;
    store.add("Second", false);

    store.setAction(3, 6, SurfaceKind::trackpad);
    store.select(first);

    EXPECT_TRUE(store.current().trackpad.isEmpty());
}

TEST(ProfileTrackpadFile, AnExportedFileCarriesTheTrackpadsSlotsIntoAnotherStore) {
    WorkProfile exported("CAD");
    exported.trackpad = mappedTrackpad();
    exported.sanitize();
    const auto outcome = readProfileFile(*encodeProfiles({exported}));
    ASSERT_TRUE(std::holds_alternative<std::vector<WorkProfile>>(outcome));
    const auto& read = std::get<std::vector<WorkProfile>>(outcome);
    ASSERT_EQ(read.size(), 1U);
    ProfileStore store(std::make_shared<CountingPreferences>(), "Default");

    EXPECT_EQ(store.importProfiles(read), 1U);

    EXPECT_EQ(store.profiles().back().trackpad, exported.trackpad);
    EXPECT_EQ(store.profiles().back().actions, Actions(8));
}

}  // namespace
}  // namespace tactora
