#include "core/moregestures/MoreGestures.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <vector>

#include "Touches.h"

namespace tactora {
namespace {

using testing::Frame;
using testing::gestureOf;
using testing::lifted;
using testing::only;
using testing::Touches;

TEST(MoreGestures, SettingsCountOnlyMappedSlots) {
    MoreGestureMap map;
    map.actions[moreslot::index(MoreGestureSlot::swipe2Left)] = action::copy;
    map.actions[moreslot::index(MoreGestureSlot::tapHold)] = action::middle;
    map.topBand = 0.3;
    const MoreGestureSettings settings = MoreGestureSettings::of(map);
    EXPECT_TRUE(settings.has(MoreGestureSlot::swipe2Left));
    EXPECT_TRUE(settings.has(MoreGestureSlot::tapHold));
    EXPECT_FALSE(settings.has(MoreGestureSlot::swipe2Right));
    EXPECT_EQ(settings.swipeFingers(), 0b010U);
    EXPECT_FALSE(settings.anyTipTap());
    EXPECT_EQ(settings.topBand, 0.3);
    EXPECT_FALSE(MoreGestureSettings::of(MoreGestureMap()).any());
    EXPECT_EQ(MoreGestureSettings::all().swipeFingers(), 0b111U);
}

TEST(MoreGestures, NothingMappedRecognisesNothingAndSwallowsNothing) {
    Touches touches(MoreGestureSettings{});
    touches.oneFingerTouch(1.0, 1.1, 0.2, 0.9);
    touches.at(2.0, {{1, 0.3, 0.4}, {2, 0.4, 0.4}});
    touches.at(2.1, {{1, 0.6, 0.4}, {2, 0.7, 0.4}});
    EXPECT_FALSE(touches.more.swallowsScroll());
    touches.at(2.2, lifted);
    EXPECT_TRUE(touches.events.empty());
    EXPECT_EQ(touches.plainTaps, std::vector<std::int64_t>{1});
}

TEST(MoreGestures, ClickWhileNothingTouchesChangesNothing) {
    Touches touches(MoreGestureSettings::all());
    EXPECT_EQ(touches.more.physicalClick(), std::nullopt);
    touches.at(1.0, {{1, 0.5, 0.5}});
    touches.at(1.1, {{1, 0.7, 0.5}});
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::swipe1Right)});
}

TEST(MoreGestures, CancelDropsTheTouchUnderWay) {
    Touches touches(MoreGestureSettings::all());
    touches.at(1.0, {{1, 0.5, 0.5}});
    touches.at(1.05, {{1, 0.6, 0.5}});
    EXPECT_EQ(touches.more.cancel(), std::nullopt);
    // Measured afresh from here, as the tap recogniser's reset does.
    touches.at(1.1, {{1, 0.7, 0.5}});
    EXPECT_TRUE(touches.events.empty());
    touches.at(1.15, {{1, 0.86, 0.5}});
    EXPECT_EQ(touches.events, std::vector{gestureOf(MoreGestureSlot::swipe1Right)});
}

TEST(MoreGestures, SwallowingEndsWithCancel) {
    Touches touches(MoreGestureSettings::all());
    touches.at(1.0, {{1, 0.5, 0.5}});
    touches.at(1.05, {{1, 0.7, 0.5}});
    EXPECT_TRUE(touches.more.swallowsScroll());
    touches.more.cancel();
    EXPECT_FALSE(touches.more.swallowsScroll());
}

// Random touches with random slots mapped: only mapped slots ever come out, a region tap only
// for a one-finger tap, and the tap recogniser, fed beside, decides exactly as it does alone.
TEST(MoreGestures, OnlyMappedSlotsComeOutAndTapsAreDecidedAsAlone) {
    std::mt19937 random(7);
    for (int run = 0; run < 300; ++run) {
        MoreGestureSettings settings;
        settings.mapped = std::uniform_int_distribution<std::uint32_t>(
            0, (std::uint32_t{1} << moreslot::count) - 1)(random);
        Touches touches(settings);
        GestureState alone;
        std::vector<std::int64_t> aloneTaps;
        double t = 1.0;
        std::uniform_real_distribution<double> step(-0.03, 0.03);
        Frame frame;
        std::int64_t nextID = 1;
        for (int i = 0; i < 400; ++i) {
            t += std::uniform_real_distribution<double>(0.005, 0.1)(random);
            const int what = std::uniform_int_distribution<int>(0, 9)(random);
            if (what == 0 && frame.size() < 4) {
                frame.emplace_back(nextID++, 0.5 + step(random) * 5, 0.5 + step(random) * 5);
            } else if (what == 1 && !frame.empty()) {
                frame.erase(frame.begin());
            } else if (what == 2) {
                touches.taps.physicalClick();
                alone.physicalClick();
                touches.more.physicalClick();
            } else {
                for (Finger& finger : frame) {
                    finger.x += step(random);
                    finger.y += step(random);
                }
            }
            const std::size_t before = touches.plainTaps.size();
            const std::optional<MoreGestureEvent> event = touches.at(t, frame);
            if (const auto tap = alone.update(frame, t)) {
                aloneTaps.push_back(*tap);
            }
            if (event) {
                ASSERT_TRUE(settings.has(event->slot)) << moreslot::name(event->slot);
                const bool region = event->slot <= MoreGestureSlot::tapTop;
                ASSERT_EQ(region, touches.plainTaps.size() > before &&
                                      touches.plainTaps.back() == 1 &&
                                      event->kind == MoreGestureEvent::Kind::gesture);
            }
        }
        ASSERT_EQ(touches.plainTaps, aloneTaps);
    }
}

}  // namespace
}  // namespace tactora
