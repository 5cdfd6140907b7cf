#include <gtest/gtest.h>

#include <cstdint>
#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "core/actions/ExtraActionInfo.h"
#include "core/profiles/ProfileJson.h"

namespace tactora {
namespace {

constexpr const char* knownID = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";

// A one-profile list with every slot on the default action and `extras` as the "extraActions"
// key (written as JSON text).
std::string listWithExtras(const std::string& extras) {
    return std::string(R"([{"id":")") + knownID +
           R"(","name":"P","actions":[0,0,0,0,0,0,0,0],"shortcuts":[null],"extraActions":)" +
           extras + "}]";
}

WorkProfile decodedOne(const std::string& json) {
    auto decoded = decodeProfiles(json);
    EXPECT_TRUE(decoded);
    if (!decoded || decoded->size() != 1) {
        return WorkProfile("none");
    }
    WorkProfile profile = decoded->front();
    profile.sanitize();
    return profile;
}

TEST(ProfileJsonExtrasTest, ExtraActionsAreWrittenByNameWithTheDefaultInActions) {
    WorkProfile profile("Media");
    profile.extras.resize(8);
    profile.extras[4] = SlotExtra{ExtraAction::playPause, ""};
    profile.extras[6] = SlotExtra{ExtraAction::openApplication, "com.apple.Music"};
    profile.sanitize();
    const std::string json = *encodeProfiles({profile});
    EXPECT_NE(json.find(R"("actions":[0,0,0,0,0,0,0,0])"), std::string::npos);
    EXPECT_NE(json.find(R"("extraActions":[null,null,null,null,{"action":"playPause"},null,)"
                        R"({"action":"openApplication","value":"com.apple.Music"},null])"),
              std::string::npos)
        << json;
    EXPECT_EQ(decodedOne(json), profile);
}

TEST(ProfileJsonExtrasTest, AProfileWithoutExtrasIsWrittenWithoutTheKey) {
    WorkProfile profile("Plain");
    profile.sanitize();
    EXPECT_TRUE(profile.extras.empty());
    EXPECT_EQ(encodeProfiles({profile})->find("extraActions"), std::string::npos);
}

TEST(ProfileJsonExtrasTest, UnknownOrDamagedElementsLeaveTheirSlotWithoutAnExtra) {
    const WorkProfile profile = decodedOne(listWithExtras(
        R"([{"action":"teleport"},{"action":3},"mute",{"value":"x"},)"
        R"({"action":"openFile","value":7},{"action":"mute","value":"ignored"},null,)"
        R"({"action":"runShortcut","value":"Evening"},{"action":"mute"}])"));
    for (std::size_t slot = 0; slot < 5; ++slot) {
        EXPECT_EQ(profile.extraAt(slot), std::nullopt) << slot;
    }
    EXPECT_EQ(profile.extraAt(5), (SlotExtra{ExtraAction::mute, ""}));
    EXPECT_EQ(profile.extraAt(6), std::nullopt);
    EXPECT_EQ(profile.extraAt(7), (SlotExtra{ExtraAction::runShortcut, "Evening"}));
    EXPECT_EQ(profile.extras.size(), 8U);  // the ninth element is cut off
}

TEST(ProfileJsonExtrasTest, AKeyThatIsNotAListIsIgnoredWithoutLosingTheProfile) {
    for (const char* extras : {R"("mute")", "3", "{}", "null"}) {
        const WorkProfile profile = decodedOne(listWithExtras(extras));
        EXPECT_EQ(profile.name, "P") << extras;
        EXPECT_TRUE(profile.extras.empty()) << extras;
    }
}

TEST(ProfileJsonExtrasTest, AnotherActionInTheSameSlotWins) {
    // As an older copy performs it: a slot given an action there keeps it here too.
    const std::string json = std::string(R"([{"id":")") + knownID +
                             R"(","name":"P","actions":[5,0,0,0,0,0,0,0],"shortcuts":[],)"
                             R"("extraActions":[{"action":"mute"},{"action":"mute"}]}])";
    const WorkProfile profile = decodedOne(json);
    EXPECT_EQ(profile.actions[0], 5);
    EXPECT_EQ(profile.extraAt(0), std::nullopt);
    EXPECT_EQ(profile.extraAt(1), (SlotExtra{ExtraAction::mute, ""}));
}

TEST(ProfileJsonExtrasTest, AValueNoLongerValidIsKeptButAMissingOneIsNot) {
    const WorkProfile profile = decodedOne(
        listWithExtras(R"([{"action":"openApplication","value":"com.example.Gone"},)"
                       R"({"action":"openAddress","value":"not a url"},{"action":"openFile"},)"
                       R"({"action":"runShortcut","value":""}])"));
    EXPECT_EQ(profile.extraAt(0), (SlotExtra{ExtraAction::openApplication, "com.example.Gone"}));
    EXPECT_EQ(profile.extraAt(1), (SlotExtra{ExtraAction::openAddress, "not a url"}));
    EXPECT_EQ(profile.extraAt(2), std::nullopt);
    EXPECT_EQ(profile.extraAt(3), std::nullopt);
}

// A profile of random slots: one of the fifteen, or an extra action (with a value where it takes
// one) over a random action that the writer must not store.
WorkProfile randomProfile(std::mt19937& random) {
    std::uniform_int_distribution<int> coin(0, 1);
    std::uniform_int_distribution<ActionIndex> base(0, action::count - 1);
    std::uniform_int_distribution<int> extra(0, static_cast<int>(action::extraCount) - 1);
    WorkProfile profile("Random");
    profile.extras.resize(8);
    for (std::size_t slot = 0; slot < 8; ++slot) {
        profile.actions[slot] = base(random);
        if (profile.actions[slot] == action::custom) {
            profile.shortcuts[slot] = SavedShortcut(11, 0x100000, "⌘B");
        }
        if (coin(random) == 1) {
            const auto action = static_cast<ExtraAction>(extra(random));
            const bool valued = catalogue::info(action).value != ActionValueKind::none;
            profile.extras[slot] = SlotExtra{action, valued ? "value " + std::to_string(slot) : ""};
        }
    }
    return profile;
}

// What a copy that knows only the fifteen reads: it ignores every key it does not know.
WorkProfile readByTheBaseReader(const std::string& json) {
    nlohmann::json document = nlohmann::json::parse(json);
    for (nlohmann::json& element : document) {
        element.erase("extraActions");
    }
    return decodedOne(document.dump());
}

TEST(ProfileJsonExtrasTest, PropertyTheBaseReaderPerformsTheDefaultWhereverAnExtraIsStored) {
    std::mt19937 random(20261124);
    for (int round = 0; round < 500; ++round) {
        const WorkProfile written = randomProfile(random);
        const std::string json = *encodeProfiles({written});
        const WorkProfile old = readByTheBaseReader(json);
        const WorkProfile current = decodedOne(json);
        for (std::size_t slot = 0; slot < 8; ++slot) {
            EXPECT_TRUE(old.extras.empty());
            if (written.extraAt(slot)) {
                EXPECT_EQ(old.actions[slot], action::defaultAction) << json;
                EXPECT_EQ(current.extraAt(slot), written.extraAt(slot)) << json;
                EXPECT_EQ(current.actions[slot], action::defaultAction) << json;
            } else {
                EXPECT_EQ(old.actions[slot], written.actions[slot]) << json;
                EXPECT_EQ(current.actions[slot], written.actions[slot]) << json;
            }
        }
    }
}

}  // namespace
}  // namespace tactora
