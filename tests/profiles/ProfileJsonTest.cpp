#include "core/profiles/ProfileJson.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tactora {
namespace {

using Shortcuts = std::vector<std::optional<SavedShortcut>>;

constexpr const char* knownID = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";

Uuid known() {
    return *Uuid::parse(knownID);
}

// One profile, with the given texts standing in for the values of some of its keys.
std::string profileWith(const std::map<std::string, std::string>& values) {
    std::map<std::string, std::string> json{{"id", std::string("\"") + knownID + "\""},
                                            {"name", "\"P\""},
                                            {"actions", "[0,0,0,0,0,0,0,0]"},
                                            {"shortcuts", "[null]"}};
    for (const auto& [key, value] : values) {
        json[key] = value;
    }
    return "[{\"id\":" + json["id"] + ",\"name\":" + json["name"] +
           ",\"actions\":" + json["actions"] + ",\"shortcuts\":" + json["shortcuts"] + "}]";
}

std::string profileWith(const std::string& key, const std::string& value) {
    return profileWith(std::map<std::string, std::string>{{key, value}});
}

// One profile whose only shortcut has the given text in place of one of its values.
std::string shortcutWith(const std::string& key, const std::string& value) {
    std::string keyCode = "11";
    std::string flags = "1048576";
    std::string label = "\"B\"";
    if (key == "keyCode") {
        keyCode = value;
    } else if (key == "flags") {
        flags = value;
    } else if (key == "label") {
        label = value;
    }
    return profileWith("shortcuts", "[{\"keyCode\":" + keyCode + ",\"flags\":" + flags +
                                        ",\"label\":" + label + "}]");
}

TEST(ProfileJson, EncodesCompactlyWithKeysInDeclarationOrder) {
    Shortcuts shortcuts(8);
    shortcuts[2] = SavedShortcut(11, 0x100000, "⌘B");
    const WorkProfile profile(known(), "Default", {0, 0, 14, 0, 0, 0, 0, 0}, shortcuts);
    EXPECT_EQ(encodeProfiles({profile}),
              "[{\"id\":\"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\",\"name\":\"Default\","
              "\"actions\":[0,0,14,0,0,0,0,0],\"shortcuts\":[null,null,{\"keyCode\":11,"
              "\"flags\":1048576,\"label\":\"⌘B\"},null,null,null,null,null]}]");
}

TEST(ProfileJson, ProfileWithoutShortcutsHasEightNulls) {
    const WorkProfile profile("Plain");
    const auto json = encodeProfiles({profile});
    ASSERT_TRUE(json.has_value());
    EXPECT_NE(json->find("\"shortcuts\":[null,null,null,null,null,null,null,null]"),
              std::string::npos);
    EXPECT_EQ(decodeProfiles(*json), std::vector<WorkProfile>{profile});
}

TEST(ProfileJson, RoundTripKeepsEveryField) {
    Shortcuts shortcuts(8);
    shortcuts[0] = SavedShortcut(49, ModifierFlags::command | ModifierFlags::shift, "⇧⌘Space");
    shortcuts[7] = SavedShortcut(0, 0, "A");
    const std::vector<WorkProfile> profiles{
        WorkProfile("Default", {1, 2, 3, 4, 5, 6, 7, 14}, shortcuts), WorkProfile("Vídeo \"2\""),
        WorkProfile("")};
    const auto json = encodeProfiles(profiles);
    ASSERT_TRUE(json.has_value());
    EXPECT_EQ(decodeProfiles(*json), profiles);
}

TEST(ProfileJson, EncodesAnEmptyList) {
    EXPECT_EQ(encodeProfiles({}), "[]");
    EXPECT_EQ(decodeProfiles("[]"), std::vector<WorkProfile>{});
}

TEST(ProfileJson, EncodingFailsForNameThatIsNotUtf8) {
    EXPECT_EQ(encodeProfiles({WorkProfile("bad \xFF name")}), std::nullopt);
}

TEST(ProfileJson, EncodingFailsForLabelThatIsNotUtf8) {
    Shortcuts shortcuts(8);
    shortcuts[1] = SavedShortcut(1, 0, "\xC3");
    EXPECT_EQ(encodeProfiles({WorkProfile("P", std::vector<ActionIndex>(8), shortcuts)}),
              std::nullopt);
}

TEST(ProfileJson, EncodesFullFlagRangeOfDecodedShortcut) {
    Shortcuts shortcuts{SavedShortcut::decoded(65535, ~std::uint64_t{0}, "X")};
    const std::vector<WorkProfile> profiles{WorkProfile(known(), "P", {}, shortcuts)};
    const auto json = encodeProfiles(profiles);
    ASSERT_TRUE(json.has_value());
    EXPECT_NE(json->find("18446744073709551615"), std::string::npos);
    EXPECT_EQ(decodeProfiles(*json), profiles);
}

TEST(ProfileJson, DecodesKeysInAnyOrder) {
    const auto profiles = decodeProfiles(
        "[{\"shortcuts\":[{\"label\":\"B\",\"flags\":1048576,\"keyCode\":11}],"
        "\"actions\":[14],\"name\":\"P\",\"id\":\"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\"}]");
    ASSERT_TRUE(profiles.has_value());
    EXPECT_EQ(*profiles, std::vector<WorkProfile>{WorkProfile(
                             known(), "P", {14}, Shortcuts{SavedShortcut(11, 0x100000, "B")})});
}

TEST(ProfileJson, DecodesWhatThePlatformEncoderWrites) {
    // Slashes escaped, non-ASCII text as raw UTF-8, whitespace between tokens.
    const auto profiles = decodeProfiles(
        "[ {\"name\" : \"Audio\\/Video ⌘\", \"id\" : \"e621e1f8-c36c-495a-93fc-0c247a3e6e5f\",\n"
        "   \"actions\" : [0,0,14,0,0,0,0,0],\n"
        "   \"shortcuts\" : [null,null,{\"flags\":1048576,\"keyCode\":11,\"label\":\"⌘B\"},"
        "null,null,null,null,null]} ]");
    ASSERT_TRUE(profiles.has_value());
    ASSERT_EQ(profiles->size(), 1U);
    const WorkProfile& profile = profiles->front();
    EXPECT_EQ(profile.id, known());
    EXPECT_EQ(profile.name, "Audio/Video ⌘");
    EXPECT_EQ(profile.shortcuts[2], SavedShortcut(11, 0x100000, "⌘B"));
}

TEST(ProfileJson, DecodesUnicodeEscapes) {
    const auto profiles = decodeProfiles(shortcutWith("label", "\"\\u2318B\""));
    ASSERT_TRUE(profiles.has_value());
    EXPECT_EQ(profiles->front().shortcuts[0]->label, "⌘B");
}

TEST(ProfileJson, DecodesLowerCaseIdAndWritesItUpperCase) {
    const auto profiles =
        decodeProfiles(profileWith("id", "\"e621e1f8-c36c-495a-93fc-0c247a3e6e5f\""));
    ASSERT_TRUE(profiles.has_value());
    const auto json = encodeProfiles(*profiles);
    ASSERT_TRUE(json.has_value());
    EXPECT_NE(json->find(knownID), std::string::npos);
}

TEST(ProfileJson, IgnoresUnknownKeys) {
    const auto profiles = decodeProfiles(
        "[{\"id\":\"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\",\"name\":\"P\",\"actions\":[],"
        "\"shortcuts\":[{\"keyCode\":1,\"flags\":0,\"label\":\"S\",\"extra\":{\"a\":[1.5]}}],"
        "\"colour\":\"red\",\"version\":2.5}]");
    ASSERT_TRUE(profiles.has_value());
    EXPECT_EQ(profiles->front().shortcuts[0], SavedShortcut(1, 0, "S"));
}

TEST(ProfileJson, KeepsStoredListLengths) {
    const auto profiles = decodeProfiles(
        profileWith({{"actions", "[1,2,3]"},
                     {"shortcuts", "[null,null,null,null,null,null,null,null,null,null]"}}));
    ASSERT_TRUE(profiles.has_value());
    EXPECT_EQ(profiles->front().actions, (std::vector<ActionIndex>{1, 2, 3}));
    EXPECT_EQ(profiles->front().shortcuts.size(), 10U);
}

TEST(ProfileJson, RepairsNothing) {
    const auto profiles = decodeProfiles(
        profileWith({{"actions", "[14,99,-5]"},
                     {"shortcuts", "[{\"keyCode\":300,\"flags\":65536,\"label\":\"\"}]"}}));
    ASSERT_TRUE(profiles.has_value());
    EXPECT_EQ(profiles->front().actions, (std::vector<ActionIndex>{14, 99, -5}));
    EXPECT_EQ(profiles->front().shortcuts[0], SavedShortcut::decoded(300, 0x10000, ""));
}

TEST(ProfileJson, DecodedShortcutWithCapsLockIsInvalidAndSanitizeRemovesIt) {
    const auto profiles = decodeProfiles(shortcutWith("flags", "65536"));
    ASSERT_TRUE(profiles.has_value());
    WorkProfile profile = profiles->front();
    profile.actions[0] = action::custom;
    ASSERT_TRUE(profile.shortcuts[0].has_value());
    EXPECT_EQ(profile.shortcuts[0]->flags, ModifierFlags::capsLock);
    EXPECT_FALSE(profile.shortcuts[0]->isValid());
    profile.sanitize();
    EXPECT_EQ(profile.shortcuts[0], std::nullopt);
    EXPECT_EQ(profile.actions[0], action::defaultAction);
}

TEST(ProfileJson, EveryProfileKeyIsRequired) {
    const std::string full = profileWith({});
    ASSERT_TRUE(decodeProfiles(full).has_value());
    for (const char* key : {"id", "name", "actions", "shortcuts"}) {
        SCOPED_TRACE(key);
        std::string json = full;
        json.replace(json.find(std::string("\"") + key + "\""), std::string(key).size() + 2,
                     "\"other\"");
        EXPECT_EQ(decodeProfiles(json), std::nullopt);
    }
}

TEST(ProfileJson, EveryShortcutKeyIsRequired) {
    const std::string full = shortcutWith("", "");
    ASSERT_TRUE(decodeProfiles(full).has_value());
    for (const char* key : {"keyCode", "flags", "label"}) {
        SCOPED_TRACE(key);
        std::string json = full;
        json.replace(json.find(std::string("\"") + key + "\""), std::string(key).size() + 2,
                     "\"other\"");
        EXPECT_EQ(decodeProfiles(json), std::nullopt);
    }
}

TEST(ProfileJson, WrongTypesFailTheWholeList) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"id", "42"},          {"id", "null"},
        {"name", "null"},      {"name", "7"},
        {"name", "[\"P\"]"},   {"actions", "{}"},
        {"actions", "null"},   {"actions", "[\"1\"]"},
        {"actions", "[true]"}, {"actions", "[null]"},
        {"actions", "[[1]]"},  {"shortcuts", "{}"},
        {"shortcuts", "[1]"},  {"shortcuts", "[\"\"]"},
        {"shortcuts", "[[]]"}, {"shortcuts", "[false]"}};
    for (const auto& [key, value] : cases) {
        SCOPED_TRACE(key + " = " + value);
        EXPECT_EQ(decodeProfiles(profileWith(key, value)), std::nullopt);
    }
}

TEST(ProfileJson, WrongShortcutTypesFailTheWholeList) {
    const std::vector<std::pair<std::string, std::string>> cases{
        {"keyCode", "\"11\""}, {"keyCode", "null"}, {"keyCode", "true"}, {"flags", "\"0\""},
        {"flags", "false"},    {"flags", "[0]"},    {"label", "11"},     {"label", "null"}};
    for (const auto& [key, value] : cases) {
        SCOPED_TRACE(key + " = " + value);
        EXPECT_EQ(decodeProfiles(shortcutWith(key, value)), std::nullopt);
    }
}

TEST(ProfileJson, OneBadProfileFailsTheWholeList) {
    const std::string good = profileWith({});
    const std::string bad = profileWith("id", "\"nope\"");
    const std::string both = good.substr(0, good.size() - 1) + "," + bad.substr(1);  // [good, bad]
    ASSERT_TRUE(decodeProfiles(good).has_value());
    EXPECT_EQ(decodeProfiles(both), std::nullopt);
}

TEST(ProfileJson, KeyCodeMustFitSixteenBits) {
    EXPECT_TRUE(decodeProfiles(shortcutWith("keyCode", "0")).has_value());
    EXPECT_EQ(decodeProfiles(shortcutWith("keyCode", "65535"))->front().shortcuts[0]->keyCode,
              65535);
    EXPECT_EQ(decodeProfiles(shortcutWith("keyCode", "65536")), std::nullopt);
    EXPECT_EQ(decodeProfiles(shortcutWith("keyCode", "-1")), std::nullopt);
}

TEST(ProfileJson, FlagsTakeTheFullUnsignedRange) {
    EXPECT_EQ(
        decodeProfiles(shortcutWith("flags", "18446744073709551615"))->front().shortcuts[0]->flags,
        ~std::uint64_t{0});
    EXPECT_EQ(decodeProfiles(shortcutWith("flags", "18446744073709551616")), std::nullopt);
    EXPECT_EQ(decodeProfiles(shortcutWith("flags", "-1")), std::nullopt);
}

TEST(ProfileJson, ActionsMustFitSignedSixtyFourBits) {
    const auto extremes =
        decodeProfiles(profileWith("actions", "[9223372036854775807,-9223372036854775808]"));
    ASSERT_TRUE(extremes.has_value());
    EXPECT_EQ(extremes->front().actions,
              (std::vector<ActionIndex>{std::numeric_limits<std::int64_t>::max(),
                                        std::numeric_limits<std::int64_t>::min()}));
    EXPECT_EQ(decodeProfiles(profileWith("actions", "[9223372036854775808]")), std::nullopt);
    EXPECT_EQ(decodeProfiles(profileWith("actions", "[-9223372036854775809]")), std::nullopt);
}

TEST(ProfileJson, FloatingPointNumbersAreNotIntegers) {
    EXPECT_EQ(decodeProfiles(profileWith("actions", "[1.0]")), std::nullopt);
    EXPECT_EQ(decodeProfiles(profileWith("actions", "[1e2]")), std::nullopt);
    EXPECT_EQ(decodeProfiles(shortcutWith("keyCode", "11.0")), std::nullopt);
    EXPECT_EQ(decodeProfiles(shortcutWith("flags", "1.048576E6")), std::nullopt);
}

TEST(ProfileJson, HugeNumbersFail) {
    EXPECT_EQ(decodeProfiles(profileWith("actions", "[1e400]")), std::nullopt);
    EXPECT_EQ(decodeProfiles(profileWith("actions", "[-1e400]")), std::nullopt);
    EXPECT_EQ(decodeProfiles(profileWith("actions", "[" + std::string(400, '9') + "]")),
              std::nullopt);
    EXPECT_EQ(decodeProfiles(shortcutWith("keyCode", std::string(100, '1'))), std::nullopt);
}

TEST(ProfileJson, IdMustBeAUuid) {
    for (const char* id : {"\"\"", "\"E621E1F8C36C495A93FC0C247A3E6E5F\"",
                           "\"{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}\"",
                           "\" E621E1F8-C36C-495A-93FC-0C247A3E6E5F\"", "\"Default\""}) {
        SCOPED_TRACE(id);
        EXPECT_EQ(decodeProfiles(profileWith("id", id)), std::nullopt);
    }
}

TEST(ProfileJson, TopLevelMustBeAnArray) {
    const std::string list = profileWith({});
    const std::string object = list.substr(1, list.size() - 2);
    ASSERT_TRUE(decodeProfiles(list).has_value());
    EXPECT_EQ(decodeProfiles(object), std::nullopt);
    EXPECT_EQ(decodeProfiles("null"), std::nullopt);
    EXPECT_EQ(decodeProfiles("\"[]\""), std::nullopt);
    EXPECT_EQ(decodeProfiles("{\"profiles\":[]}"), std::nullopt);
    EXPECT_EQ(decodeProfiles("[1]"), std::nullopt);
    EXPECT_EQ(decodeProfiles("[null]"), std::nullopt);
}

TEST(ProfileJson, MalformedTextFails) {
    const std::string list = profileWith({});
    for (const std::string& text :
         {std::string(), std::string(" "), list.substr(0, list.size() - 1), list + "x", list + list,
          std::string("[,]"), std::string("[{}]x"), std::string("// c\n[]"),
          std::string("[] /* c */"), std::string("[]\0", 3), std::string("[]\0x", 4),
          std::string("\0[]", 3)}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(decodeProfiles(text), std::nullopt);
    }
}

TEST(ProfileJson, LeadingByteOrderMarkIsAccepted) {
    // Platform readers skip a UTF-8 byte order mark, so this one does too.
    EXPECT_EQ(decodeProfiles("\xEF\xBB\xBF[]"), std::vector<WorkProfile>{});
}

TEST(ProfileJson, InvalidUtf8Fails) {
    EXPECT_EQ(decodeProfiles(profileWith("name", "\"\xFF\"")), std::nullopt);
    EXPECT_EQ(decodeProfiles(profileWith("name", "\"\xC3\"")), std::nullopt);
    EXPECT_EQ(decodeProfiles(profileWith("name", "\"\xED\xA0\x80\"")), std::nullopt);
    EXPECT_EQ(decodeProfiles(shortcutWith("label", "\"\\ud800\"")), std::nullopt);
    EXPECT_EQ(decodeProfiles(shortcutWith("label", "\"\\udc00x\"")), std::nullopt);
}

TEST(ProfileJson, DeepNestingFailsWithoutCrashing) {
    const std::size_t depth = 200000;
    EXPECT_EQ(decodeProfiles(std::string(depth, '[') + std::string(depth, ']')), std::nullopt);
    EXPECT_EQ(decodeProfiles(std::string(depth, '[')), std::nullopt);
    std::string objects;
    for (std::size_t i = 0; i < depth; ++i) {
        objects += "{\"a\":";
    }
    EXPECT_EQ(decodeProfiles(objects), std::nullopt);
}

TEST(ProfileJson, DeepNestingUnderAnUnknownKeyIsIgnored) {
    const std::size_t depth = 100000;
    std::string json = profileWith({});
    json.insert(json.size() - 2, ",\"deep\":" + std::string(depth, '[') + std::string(depth, ']'));
    const auto profiles = decodeProfiles(json);
    ASSERT_TRUE(profiles.has_value());
    EXPECT_EQ(profiles->front().id, known());
}

TEST(ProfileJson, LastOfDuplicateKeysWins) {
    const auto profiles = decodeProfiles(
        "[{\"id\":\"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\",\"name\":\"first\",\"actions\":[],"
        "\"shortcuts\":[],\"name\":\"second\"}]");
    ASSERT_TRUE(profiles.has_value());
    EXPECT_EQ(profiles->front().name, "second");
}

}  // namespace
}  // namespace tactora
