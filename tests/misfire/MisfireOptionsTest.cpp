#include <gtest/gtest.h>

#include "core/gestures/TapThresholds.h"
#include "core/misfire/MisfireOptions.h"
#include "core/profiles/MemoryPreferences.h"

namespace tactora {
namespace {

TEST(MisfireOptions, AreAllOffWhenNoKeyIsSet) {
    const MemoryPreferences preferences;
    const MisfireOptions options = MisfireOptions::load(preferences);
    EXPECT_EQ(options, MisfireOptions::none());
    EXPECT_FALSE(options.anyOn());
}

TEST(MisfireOptions, ReadBackAsWritten) {
    MemoryPreferences preferences;
    MisfireOptions options;
    options.quietAfterActivity = 0.25;
    options.ignoreLargeContacts = true;
    options.edgeBands = EdgeBands{0.05, 0.07, 0.01, 0.15};
    options.fingertipsOnly = true;
    options.forgetEarlierActivity = true;
    options.largestFingertip = 1.5;
    options.ignoreDrumming = true;
    options.save(preferences);
    EXPECT_EQ(preferences.integer("misfire.ignoreDrumming"), 1);
    EXPECT_EQ(preferences.integer("misfire.quietAfterActivity"), 250);
    EXPECT_EQ(preferences.string("misfire.edgeBands"), "50,70,10,150");
    EXPECT_EQ(MisfireOptions::load(preferences), options);
}

TEST(MisfireOptions, SwitchedOffRemoveTheirKeys) {
    MemoryPreferences preferences;
    MisfireOptions::recommended().save(preferences);
    MisfireOptions::none().save(preferences);
    for (const char* key :
         {"misfire.quietAfterActivity", "misfire.ignoreLargeContacts", "misfire.fingertipsOnly",
          "misfire.forgetEarlierActivity", "misfire.largestFingertip", "misfire.ignoreDrumming"}) {
        EXPECT_FALSE(preferences.integer(key)) << key;
    }
    EXPECT_FALSE(preferences.string("misfire.edgeBands"));
}

TEST(MisfireOptions, IgnoreKeysOutOfRangeOrOfTheWrongType) {
    MemoryPreferences preferences;
    preferences.setInteger("misfire.quietAfterActivity", 0);
    preferences.setInteger("misfire.ignoreLargeContacts", 2);
    preferences.setString("misfire.fingertipsOnly", "yes");
    preferences.setInteger("misfire.largestFingertip", 5);
    EXPECT_EQ(MisfireOptions::load(preferences), MisfireOptions::none());
    for (const char* bands : {"", "1,2,3", "1,2,3,4,5", "1,2,3,501", "-1,0,0,0", "a,b,c,d"}) {
        preferences.setString("misfire.edgeBands", bands);
        EXPECT_FALSE(MisfireOptions::load(preferences).edgeBands) << bands;
    }
}

TEST(MisfireOptions, RecommendedSwitchesSomethingOn) {
    EXPECT_TRUE(MisfireOptions::recommended().anyOn());
}

TEST(TapThresholds, DefaultToTheRecognisersOwn) {
    const MemoryPreferences preferences;
    const TapThresholds thresholds = TapThresholds::load(preferences);
    EXPECT_TRUE(thresholds.isDefault());
    EXPECT_EQ(thresholds.shortest, 0.035);
    EXPECT_EQ(thresholds.longest, 0.3);
    EXPECT_EQ(thresholds.tolerance, 0.045);
    EXPECT_TRUE(thresholds.allowsDuration(0.035));
    EXPECT_TRUE(thresholds.allowsDuration(0.3));
    EXPECT_FALSE(thresholds.allowsDuration(0.301));
}

TEST(TapThresholds, ReadBackAsWrittenAndDefaultsLeaveNoKey) {
    MemoryPreferences preferences;
    const TapThresholds changed{0.05, 0.4, 0.06};
    EXPECT_TRUE(changed.save(preferences));
    EXPECT_EQ(preferences.integer("tap.longest"), 400);
    EXPECT_EQ(TapThresholds::load(preferences), changed);
    EXPECT_TRUE(TapThresholds{}.save(preferences));
    EXPECT_FALSE(preferences.integer("tap.shortest"));
    EXPECT_FALSE(preferences.integer("tap.longest"));
    EXPECT_FALSE(preferences.integer("tap.tolerance"));
}

TEST(TapThresholds, NeverKeepASetThatMakesNoSense) {
    MemoryPreferences preferences;
    EXPECT_FALSE((TapThresholds{0.2, 0.15, 0.045}.save(preferences)));
    EXPECT_FALSE((TapThresholds{0.035, 0.3, 0.5}.save(preferences)));
    EXPECT_FALSE(preferences.integer("tap.shortest"));
    preferences.setInteger("tap.shortest", 200);
    preferences.setInteger("tap.longest", 150);
    EXPECT_TRUE(TapThresholds::load(preferences).isDefault());
}

}  // namespace
}  // namespace tactora
