#include "core/profiles/ProfileSelfTest.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/profiles/FilePreferenceSuites.h"
#include "core/profiles/MemoryPreferenceSuites.h"
#include "core/profiles/MemoryPreferences.h"
#include "profiles/TemporaryDirectory.h"

namespace tactora {
namespace {

const std::string passLine =
    "PASS: legacy migration, profile isolation, duplication, rename, saved shortcuts and "
    "reload.\n";

// Suites that remember which names were asked for and removed.
class WatchedSuites : public MemoryPreferenceSuites {
  public:
    std::shared_ptr<Preferences> suite(const std::string& name) override {
        requested.push_back(name);
        return MemoryPreferenceSuites::suite(name);
    }
    void removeSuite(const std::string& name) override {
        removed.push_back(name);
        MemoryPreferenceSuites::removeSuite(name);
    }

    std::vector<std::string> requested;
    std::vector<std::string> removed;
};

// A domain that forgets every write, so the scenario's checks must fail.
class ForgetfulPreferences : public MemoryPreferences {
  public:
    void setData(const std::string& /*key*/, const Bytes& /*value*/) override {}
    void setString(const std::string& /*key*/, const std::string& /*value*/) override {}
    void setInteger(const std::string& /*key*/, std::int64_t /*value*/) override {}
};

class ForgetfulSuites : public MemoryPreferenceSuites {
  public:
    std::shared_ptr<Preferences> suite(const std::string& /*name*/) override {
        return std::make_shared<ForgetfulPreferences>();
    }
};

TEST(ProfileSelfTest, ScenarioPassesAndPrintsItsLine) {
    MemoryPreferenceSuites suites;
    testing::internal::CaptureStdout();
    profileTests(suites);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), passLine);
}

TEST(ProfileSelfTest, RunsOnAFreshPrivateSuiteAndRemovesIt) {
    WatchedSuites suites;
    testing::internal::CaptureStdout();
    profileTests(suites);
    testing::internal::GetCapturedStdout();
    ASSERT_EQ(suites.requested.size(), 1U);
    const std::string& name = suites.requested.front();
    const std::string prefix = "Tactora.tests.";
    ASSERT_EQ(name.substr(0, prefix.size()), prefix);
    EXPECT_TRUE(Uuid::parse(name.substr(prefix.size())).has_value());
    EXPECT_EQ(suites.removed, std::vector<std::string>{name});
    EXPECT_FALSE(suites.hasSuite(name));
    EXPECT_EQ(suites.standard()->data("workProfiles.v1"), std::nullopt);
}

TEST(ProfileSelfTest, EachRunUsesANewSuite) {
    WatchedSuites suites;
    testing::internal::CaptureStdout();
    profileTests(suites);
    profileTests(suites);
    testing::internal::GetCapturedStdout();
    ASSERT_EQ(suites.requested.size(), 2U);
    EXPECT_NE(suites.requested[0], suites.requested[1]);
}

TEST(ProfileSelfTest, ScenarioPassesOnFilePreferencesAndLeavesNoFile) {
    const TemporaryDirectory directory;
    FilePreferenceSuites suites(directory.path());
    testing::internal::CaptureStdout();
    profileTests(suites);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), passLine);
    EXPECT_TRUE(TemporaryDirectory::entries(directory.path()).empty());
}

TEST(ProfileSelfTestDeathTest, LostWritesStopTheProgramNamingProfiles) {
    ForgetfulSuites suites;
    EXPECT_DEATH(profileTests(suites), "Assertion failed: Profiles: ");
}

}  // namespace
}  // namespace tactora
