#include <gtest/gtest.h>

#include "core/misfire/DrumWatch.h"

namespace tactora {
namespace {

TEST(DrumWatch, FingersLandingTogetherAreATap) {
    DrumWatch drums;
    drums.began(1.0, 0.5, 0.7);
    drums.joined(1.0 + DrumWatch::landingSpread - 0.001);
    drums.ended(1.1);
    EXPECT_FALSE(drums.drumming());
}

TEST(DrumWatch, FingersLandingOneAfterAnotherAreDrumming) {
    DrumWatch drums;
    drums.began(1.0, 0.5, 0.7);
    drums.joined(1.06);
    drums.ended(1.15);
    EXPECT_TRUE(drums.drumming());
}

TEST(DrumWatch, ATouchAtOnceAfterAnotherElsewhereContinuesItsRun) {
    DrumWatch drums;
    drums.began(1.0, 0.3, 0.7);
    drums.ended(1.08);
    drums.began(1.1, 0.45, 0.7);
    drums.ended(1.18);
    EXPECT_TRUE(drums.drumming());
}

TEST(DrumWatch, ATouchAtOnceAfterAnotherInTheSamePlaceIsARepeatedTap) {
    DrumWatch drums;
    drums.began(1.0, 0.5, 0.7);
    drums.ended(1.08);
    drums.began(1.1, 0.55, 0.7);
    drums.ended(1.18);
    EXPECT_FALSE(drums.drumming());
}

TEST(DrumWatch, ATouchAfterAPauseStartsAfresh) {
    DrumWatch drums;
    drums.began(1.0, 0.3, 0.7);
    drums.ended(1.08);
    drums.began(1.08 + DrumWatch::runGap + 0.01, 0.6, 0.7);
    drums.ended(1.3);
    EXPECT_FALSE(drums.drumming());
}

TEST(DrumWatch, ALaterTouchElsewhereShowsTheTapBeforeItWasDrumming) {
    DrumWatch drums;
    drums.began(1.0, 0.3, 0.7);
    drums.ended(1.08);
    EXPECT_FALSE(drums.laterTouchShowsDrumming(1.08));
    drums.began(1.1, 0.45, 0.7);
    EXPECT_TRUE(drums.laterTouchShowsDrumming(1.08));
    // Not the tap recognised at the later touch's own end.
    drums.ended(1.2);
    EXPECT_FALSE(drums.laterTouchShowsDrumming(1.2));
}

TEST(DrumWatch, AResetForgetsEveryTouch) {
    DrumWatch drums;
    drums.began(1.0, 0.3, 0.7);
    drums.ended(1.08);
    drums.reset();
    drums.began(1.1, 0.45, 0.7);
    drums.ended(1.2);
    EXPECT_FALSE(drums.drumming());
}

}  // namespace
}  // namespace tactora
