#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "core/liveview/TouchSurface.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"

namespace tactora::testing {
namespace {

constexpr double start = 100.0;

class TouchSurfaceTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(std::make_shared<const StringsTable>(StringsTable::Entries{
            {"finger.one", "one finger"},
            {"finger.many", "%d fingers"},
            {"gesture.tap", "tap %d"},
            {"gesture.click", "click %d"},
            {"surface.idle", "%d | none"},
            {"surface.gesture", "%d | %@"},
            {"surface.action", "%d | %@ | %@"},
            {"reason.moved", "moved"},
            {"reason.too_long", "too long"},
        }));
    }
    void TearDown() override { setStringTable(nullptr); }

    TouchSurface surface;
};

TEST_F(TouchSurfaceTest, ContactsAreDrawnAsTheHandSeesThemWithTheFrontAtTheTop) {
    const std::vector<Finger> fingers{{1, 0.2, 0.9}, {2, 0.7, 0.25}};
    surface.frame(fingers, start);

    const SurfaceSnapshot& shown = surface.snapshot(start);
    ASSERT_EQ(shown.contacts().size(), 2U);
    EXPECT_DOUBLE_EQ(shown.contacts()[0].left, 0.2);
    EXPECT_DOUBLE_EQ(shown.contacts()[0].top, 0.1);
    EXPECT_DOUBLE_EQ(shown.contacts()[1].left, 0.7);
    EXPECT_DOUBLE_EQ(shown.contacts()[1].top, 0.75);
    EXPECT_EQ(shown.fingers, 2);
    EXPECT_EQ(shown.fingersText, "2 fingers");
}

TEST_F(TouchSurfaceTest, OneFingerIsNamedInTheSingular) {
    const std::vector<Finger> fingers{{1, 0.5, 0.5}};
    surface.frame(fingers, start);

    EXPECT_EQ(surface.snapshot(start).fingersText, "one finger");
}

TEST_F(TouchSurfaceTest, PositionsOffTheSurfaceGoToItsEdgeAndNonNumbersAreCountedButNotDrawn) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    const std::vector<Finger> fingers{{1, -0.3, 1.4}, {2, nan, 0.5}, {3, 0.5, inf}, {4, 1.2, -2}};
    surface.frame(fingers, start);

    const SurfaceSnapshot& shown = surface.snapshot(start);
    EXPECT_EQ(shown.fingers, 4);
    ASSERT_EQ(shown.contacts().size(), 2U);
    EXPECT_EQ(shown.contacts()[0], (SurfaceContact{.left = 0, .top = 0}));
    EXPECT_EQ(shown.contacts()[1], (SurfaceContact{.left = 1, .top = 1}));
}

TEST_F(TouchSurfaceTest, AtMostSixteenContactsAreDrawnWhileAllAreCounted) {
    std::vector<Finger> fingers;
    for (std::int64_t id = 1; id <= 20; ++id) {
        fingers.emplace_back(id, 0.5, 0.5);
    }
    surface.frame(fingers, start);

    const SurfaceSnapshot& shown = surface.snapshot(start);
    EXPECT_EQ(shown.contacts().size(), SurfaceSnapshot::capacity);
    EXPECT_EQ(shown.fingers, 20);
}

TEST_F(TouchSurfaceTest, ContactsGoHalfASecondAfterTheLastFrame) {
    const std::vector<Finger> fingers{{1, 0.5, 0.5}, {2, 0.6, 0.5}};
    surface.frame(fingers, start);

    EXPECT_EQ(surface.snapshot(start + 0.4999).contacts().size(), 2U);
    const SurfaceSnapshot& later = surface.snapshot(start + 0.5);
    EXPECT_TRUE(later.contacts().empty());
    EXPECT_EQ(later.fingers, 0);
    EXPECT_EQ(later.fingersText, "0 fingers");
}

TEST_F(TouchSurfaceTest, AnEmptyFrameClearsTheContacts) {
    const std::vector<Finger> fingers{{1, 0.5, 0.5}};
    surface.frame(fingers, start);
    surface.frame({}, start + 0.1);

    EXPECT_TRUE(surface.snapshot(start + 0.1).contacts().empty());
}

TEST_F(TouchSurfaceTest, NothingIsHighlightedBeforeAnyGesture) {
    const SurfaceSnapshot& shown = surface.snapshot(start);
    EXPECT_FALSE(shown.highlighted);
    EXPECT_EQ(shown.gestureText, "");
    EXPECT_EQ(shown.actionText, "");
    EXPECT_EQ(shown.accessibilityText, "0 | none");
}

TEST_F(TouchSurfaceTest, AGestureIsHighlightedForOneSecond) {
    surface.gesture(GestureKind::tap, 2, start);

    const SurfaceSnapshot& during = surface.snapshot(start + 0.9999);
    EXPECT_TRUE(during.highlighted);
    EXPECT_EQ(during.gestureText, "tap 2");
    EXPECT_EQ(during.actionText, "");
    EXPECT_FALSE(surface.snapshot(start + 1.0).highlighted);
}

TEST_F(TouchSurfaceTest, ItsActionIsNamedAndKeepsTheHighlightForASecondMore) {
    surface.gesture(GestureKind::click, 3, start);
    surface.action("Copy", start + 0.5);

    const SurfaceSnapshot& during = surface.snapshot(start + 1.4999);
    EXPECT_TRUE(during.highlighted);
    EXPECT_EQ(during.gestureText, "click 3");
    EXPECT_EQ(during.actionText, "Copy");
    EXPECT_FALSE(surface.snapshot(start + 1.5).highlighted);
}

TEST_F(TouchSurfaceTest, AQuickActionDoesNotShortenTheHighlight) {
    surface.gesture(GestureKind::tap, 1, start);
    surface.action("Paste", start);

    EXPECT_TRUE(surface.snapshot(start + 0.9999).highlighted);
    EXPECT_FALSE(surface.snapshot(start + 1.0).highlighted);
}

TEST_F(TouchSurfaceTest, ANewGestureReplacesTheLastOneAndItsAction) {
    surface.gesture(GestureKind::tap, 2, start);
    surface.action("Copy", start + 0.08);
    surface.gesture(GestureKind::click, 1, start + 2);

    const SurfaceSnapshot& shown = surface.snapshot(start + 2);
    EXPECT_TRUE(shown.highlighted);
    EXPECT_EQ(shown.gestureText, "click 1");
    EXPECT_EQ(shown.actionText, "");
}

TEST_F(TouchSurfaceTest, AnActionBeforeAnyGestureIsIgnored) {
    surface.action("Copy", start);

    const SurfaceSnapshot& shown = surface.snapshot(start);
    EXPECT_FALSE(shown.highlighted);
    EXPECT_EQ(shown.actionText, "");
    EXPECT_EQ(shown.accessibilityText, "0 | none");
}

TEST_F(TouchSurfaceTest, VoiceOverHearsTheFingersAndTheLastGestureAfterItsHighlightEnds) {
    const std::vector<Finger> fingers{{1, 0.5, 0.5}};
    surface.gesture(GestureKind::tap, 2, start);
    EXPECT_EQ(surface.snapshot(start).accessibilityText, "0 | tap 2");

    surface.action("Copy", start + 0.08);
    surface.frame(fingers, start + 5);
    const SurfaceSnapshot& later = surface.snapshot(start + 5);
    EXPECT_FALSE(later.highlighted);
    EXPECT_EQ(later.accessibilityText, "1 | tap 2 | Copy");
}

TEST_F(TouchSurfaceTest, AGestureIsAnnouncedInTheFirstSnapshotThatShowsItAndNoOther) {
    surface.gesture(GestureKind::tap, 2, start);

    EXPECT_EQ(surface.snapshot(start).announcement, "tap 2");
    EXPECT_EQ(surface.snapshot(start + 0.2).announcement, "");
    EXPECT_TRUE(surface.snapshot(start + 0.4).highlighted);
    EXPECT_EQ(surface.snapshot(start + 0.4).announcement, "");
}

TEST_F(TouchSurfaceTest, ItsActionIsAnnouncedByNameWhenItRuns) {
    surface.gesture(GestureKind::tap, 2, start);
    static_cast<void>(surface.snapshot(start));
    surface.action("Copy", start + 0.08);

    EXPECT_EQ(surface.snapshot(start + 0.08).announcement, "Copy");
    EXPECT_EQ(surface.snapshot(start + 0.2).announcement, "");
}

TEST_F(TouchSurfaceTest, AGestureAndItsActionFirstShownTogetherAreAnnouncedTogether) {
    surface.gesture(GestureKind::click, 3, start);
    surface.action("Paste", start);

    EXPECT_EQ(surface.snapshot(start + 0.5).announcement, "0 | click 3 | Paste");
}

TEST_F(TouchSurfaceTest, AGestureFirstShownAfterItsHighlightEndedIsNeverAnnounced) {
    surface.gesture(GestureKind::tap, 4, start);
    surface.action("Copy", start + 0.08);

    EXPECT_EQ(surface.snapshot(start + 5).announcement, "");
    EXPECT_EQ(surface.snapshot(start + 5.1).announcement, "");
}

TEST_F(TouchSurfaceTest, ANewGestureIsAnnouncedWithoutTheLastOnesAction) {
    surface.gesture(GestureKind::tap, 2, start);
    surface.action("Copy", start + 0.08);
    surface.gesture(GestureKind::click, 1, start + 0.3);

    EXPECT_EQ(surface.snapshot(start + 0.3).announcement, "click 1");
}

TEST_F(TouchSurfaceTest, FramesAloneAnnounceNothing) {
    const std::vector<Finger> fingers{{1, 0.5, 0.5}, {2, 0.6, 0.5}};
    surface.frame(fingers, start);
    EXPECT_EQ(surface.snapshot(start).announcement, "");
    surface.frame({}, start + 0.1);
    EXPECT_EQ(surface.snapshot(start + 0.1).announcement, "");
}

TEST_F(TouchSurfaceTest, EqualMomentsGiveEqualSnapshots) {
    const std::vector<Finger> three{{1, 0.1, 0.1}, {2, 0.2, 0.2}, {3, 0.3, 0.3}};
    const std::vector<Finger> one{{1, 0.1, 0.1}};
    surface.frame(one, start);
    const SurfaceSnapshot first = surface.snapshot(start);
    surface.frame(three, start + 0.01);
    static_cast<void>(surface.snapshot(start + 0.01));
    surface.frame(one, start + 0.02);

    EXPECT_EQ(surface.snapshot(start + 0.02), first);
}

TEST_F(TouchSurfaceTest, AReasonIsShownForItsMomentAndAnnouncedOnce) {
    surface.rejected(DropReason::moved, start);

    EXPECT_EQ(surface.snapshot(start).reasonText, "moved");
    EXPECT_EQ(surface.snapshot(start).announcement, "");
    EXPECT_EQ(surface.reasonEnd(), start + TouchSurface::reasonDuration);
    EXPECT_EQ(surface.snapshot(start + TouchSurface::reasonDuration - 0.01).reasonText, "moved");
    EXPECT_EQ(surface.snapshot(start + TouchSurface::reasonDuration).reasonText, "");
}

TEST_F(TouchSurfaceTest, ANewReasonTakesThePlaceOfTheLast) {
    surface.rejected(DropReason::moved, start);
    (void)surface.snapshot(start);

    surface.rejected(DropReason::tooLong, start + 1);

    const SurfaceSnapshot& shown = surface.snapshot(start + 2);
    EXPECT_EQ(shown.reasonText, "too long");
    EXPECT_EQ(shown.announcement, "too long");
}

TEST_F(TouchSurfaceTest, AReasonSeenOnlyAfterItsMomentIsNeverAnnounced) {
    surface.rejected(DropReason::moved, start);

    const SurfaceSnapshot& shown = surface.snapshot(start + TouchSurface::reasonDuration);

    EXPECT_EQ(shown.reasonText, "");
    EXPECT_EQ(shown.announcement, "");
    EXPECT_FALSE(surface.reasonEnd() < start);
}

TEST_F(TouchSurfaceTest, NoReasonBeforeAnyTouchCameToNothing) {
    EXPECT_FALSE(surface.reasonEnd());
    EXPECT_EQ(surface.snapshot(start).reasonText, "");
}

}  // namespace
}  // namespace tactora::testing
