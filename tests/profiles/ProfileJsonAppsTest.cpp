#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/profiles/ProfileJson.h"

namespace tactora {
namespace {

using Apps = std::vector<std::string>;

constexpr const char* knownID = "E621E1F8-C36C-495A-93FC-0C247A3E6E5F";

// A one-profile list whose "apps" key holds `apps` (written as JSON text), or no such key.
std::string listWithApps(const std::string& apps) {
    std::string json = std::string(R"([{"id":")") + knownID +
                       R"(","name":"P","actions":[0,0,0,0,0,0,0,0],"shortcuts":[null])";
    if (!apps.empty()) {
        json += R"(,"apps":)" + apps;
    }
    return json + "}]";
}

TEST(ProfileJsonAppsTest, ApplicationsAreWrittenAndReadBack) {
    WorkProfile profile("Video");
    profile.apps = {"com.apple.Safari", "org.videolan.vlc"};
    const std::string json = *encodeProfiles({profile});
    EXPECT_NE(json.find(R"("apps":["com.apple.Safari","org.videolan.vlc"])"), std::string::npos);
    const auto decoded = decodeProfiles(json);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->at(0), profile);
}

TEST(ProfileJsonAppsTest, ProfileWithoutApplicationsIsWrittenWithoutTheKey) {
    const WorkProfile profile("Plain");
    const std::string json = *encodeProfiles({profile});
    EXPECT_EQ(json, R"([{"id":")" + profile.id.text() +
                        R"(","name":"Plain","actions":[0,0,0,0,0,0,0,0],"shortcuts":)"
                        R"([null,null,null,null,null,null,null,null]}])");
}

// The key is added after the original four and nothing else changes, so a reader that knows
// only the original keys, and ignores others, reads the same profile.
TEST(ProfileJsonAppsTest, ListWithApplicationsIsTheOriginalFormPlusOneKey) {
    WorkProfile profile("Video", {1, 2, 3, 4, 5, 6, 7, 8});
    profile.apps = {"com.apple.Safari"};
    WorkProfile withoutApps = profile;
    withoutApps.apps.clear();
    std::string json = *encodeProfiles({profile});
    const std::string key = R"(,"apps":["com.apple.Safari"])";
    const auto at = json.find(key);
    ASSERT_NE(at, std::string::npos);
    json.erase(at, key.size());
    EXPECT_EQ(json, *encodeProfiles({withoutApps}));
    const auto decoded = decodeProfiles(json);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->at(0), withoutApps);
}

TEST(ProfileJsonAppsTest, MissingApplicationsReadAsNone) {
    const auto decoded = decodeProfiles(listWithApps(""));
    ASSERT_TRUE(decoded);
    EXPECT_TRUE(decoded->at(0).apps.empty());
}

// The rule for a malformed "apps" value: anything but an array of non-empty strings is dropped
// for that profile, whole, and the list is still accepted.
TEST(ProfileJsonAppsTest, MalformedApplicationsAreDroppedForThatProfileOnly) {
    for (const std::string apps :
         {R"("com.apple.Safari")", "null", "5", "{}", R"({"a":"b"})", R"(["com.apple.Safari",""])",
          R"(["com.apple.Safari",7])", R"([null])", R"([["com.apple.Safari"]])", "true"}) {
        const auto decoded = decodeProfiles(listWithApps(apps));
        ASSERT_TRUE(decoded) << apps;
        EXPECT_TRUE(decoded->at(0).apps.empty()) << apps;
        EXPECT_EQ(decoded->at(0).id.text(), knownID);
    }
}

TEST(ProfileJsonAppsTest, MalformedApplicationsOfOneProfileLeaveTheOthersAlone) {
    const std::string json =
        R"([{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","name":"A","actions":[],)"
        R"("shortcuts":[],"apps":[1]},)"
        R"({"id":"0E4A6B2C-1D3F-4A5B-8C7D-9E0F1A2B3C4D","name":"B","actions":[],)"
        R"("shortcuts":[],"apps":["com.apple.Mail"]}])";
    const auto decoded = decodeProfiles(json);
    ASSERT_TRUE(decoded);
    EXPECT_TRUE(decoded->at(0).apps.empty());
    EXPECT_EQ(decoded->at(1).apps, Apps{"com.apple.Mail"});
}

TEST(ProfileJsonAppsTest, EmptyArrayOfApplicationsIsNone) {
    const auto decoded = decodeProfiles(listWithApps("[]"));
    ASSERT_TRUE(decoded);
    EXPECT_TRUE(decoded->at(0).apps.empty());
}

TEST(ProfileJsonAppsTest, MalformedApplicationsDoNotRescueAnOtherwiseMalformedProfile) {
    const std::string json = R"([{"id":"not-a-uuid","name":"P","actions":[],"shortcuts":[],)"
                             R"("apps":["com.apple.Safari"]}])";
    EXPECT_FALSE(decodeProfiles(json));
}

}  // namespace
}  // namespace tactora
