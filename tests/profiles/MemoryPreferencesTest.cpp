#include "core/profiles/MemoryPreferences.h"

#include <gtest/gtest.h>

#include "core/profiles/MemoryPreferenceSuites.h"

namespace tactora {
namespace {

TEST(MemoryPreferences, ReadsBackWhatWasWritten) {
    MemoryPreferences preferences;
    preferences.setData("d", Bytes{1, 2, 3});
    preferences.setString("s", "text");
    preferences.setInteger("i", -7);
    EXPECT_EQ(preferences.data("d"), (Bytes{1, 2, 3}));
    EXPECT_EQ(preferences.string("s"), "text");
    EXPECT_EQ(preferences.integer("i"), -7);
}

TEST(MemoryPreferences, MissingKeyReadsAsAbsent) {
    const MemoryPreferences preferences;
    EXPECT_EQ(preferences.data("k"), std::nullopt);
    EXPECT_EQ(preferences.string("k"), std::nullopt);
    EXPECT_EQ(preferences.integer("k"), std::nullopt);
}

TEST(MemoryPreferences, WrongTypeReadsAsAbsent) {
    MemoryPreferences preferences;
    preferences.setString("k", "13");
    EXPECT_EQ(preferences.integer("k"), std::nullopt);
    EXPECT_EQ(preferences.data("k"), std::nullopt);
    preferences.setInteger("k", 13);
    EXPECT_EQ(preferences.string("k"), std::nullopt);
    EXPECT_EQ(preferences.integer("k"), 13);
}

TEST(MemoryPreferences, RemoveForgetsTheKey) {
    MemoryPreferences preferences;
    preferences.setInteger("k", 1);
    preferences.remove("k");
    EXPECT_EQ(preferences.integer("k"), std::nullopt);
    EXPECT_TRUE(preferences.values().empty());
}

TEST(MemoryPreferenceSuites, SameNameGivesTheSameDomain) {
    MemoryPreferenceSuites suites;
    suites.suite("a")->setInteger("k", 5);
    EXPECT_EQ(suites.suite("a")->integer("k"), 5);
    EXPECT_EQ(suites.suite("b")->integer("k"), std::nullopt);
    EXPECT_EQ(suites.standard()->integer("k"), std::nullopt);
    EXPECT_EQ(suites.standard(), suites.standard());
}

TEST(MemoryPreferenceSuites, RemovedSuiteIsEmptyEvenForItsHolders) {
    MemoryPreferenceSuites suites;
    const auto held = suites.suite("a");
    held->setInteger("k", 5);
    suites.removeSuite("a");
    EXPECT_FALSE(suites.hasSuite("a"));
    EXPECT_EQ(held->integer("k"), std::nullopt);
    EXPECT_EQ(suites.suite("a")->integer("k"), std::nullopt);
}

}  // namespace
}  // namespace tactora
