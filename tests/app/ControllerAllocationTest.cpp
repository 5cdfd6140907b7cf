// Proves that the event tap's pass path touches no heap and that handing a contact frame from
// the sensor's thread to the main queue allocates nothing beyond the queue's one unit of work.
// Its own program, because it counts allocations through the replaced global allocation
// functions.
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

#include "app/ControllerHarness.h"
#include "support/AllocationCounter.h"

namespace tactora::testing {
namespace {

struct Contacts {
    std::array<std::int32_t, ContactFrame::capacity> ids{};
    std::array<float, ContactFrame::capacity> xs{};
    std::array<float, ContactFrame::capacity> ys{};
    // Four values a contact: size, angle, major and minor axis, as the sensor reports them.
    std::array<float, ContactFrame::capacity * 4> shapes{};

    Contacts() {
        for (std::size_t i = 0; i < ContactFrame::capacity; ++i) {
            ids.at(i) = static_cast<std::int32_t>(i + 1);
            xs.at(i) = 0.5F;
            ys.at(i) = 0.5F;
            shapes.at(i * 4) = 0.8F;
        }
    }

    void deliver(std::int32_t count) const {
        Controller::frameCallback(count, ids.data(), xs.data(), ys.data(), shapes.data());
    }
};

class ControllerAllocationTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        h.assign(1, action::right);
        h.rest(2);
    }

    ControllerHarness h;
};

TEST_F(ControllerAllocationTest, EventsOfOtherDevicesPassWithoutAllocating) {
    const EventType types[] = {event::leftMouseDown, event::leftMouseDragged, event::leftMouseUp,
                               event::scrollWheel};
    FakeTapEvent warmUp(event::leftMouseDown, 0, otherSender);
    h.send(warmUp);

    const std::size_t count = AllocationCounter::of([&] {
        for (int round = 0; round < 250; ++round) {
            for (const EventType type : types) {
                FakeTapEvent event(type, 0, otherSender);
                if (h.send(event) != EventDisposition::pass) {
                    FAIL();
                }
            }
        }
    });
    EXPECT_EQ(count, 0U);
}

TEST_F(ControllerAllocationTest, OwnMarkedEventsPassWithoutAllocating) {
    const std::size_t count = AllocationCounter::of([&] {
        for (int round = 0; round < 1000; ++round) {
            FakeTapEvent event(event::leftMouseDown, 0, mouseSender, marker);
            h.send(event);
        }
    });
    EXPECT_EQ(count, 0U);
    EXPECT_TRUE(h.c().state().presses.empty());
}

TEST_F(ControllerAllocationTest, PlainClicksWithStaleContactPassWithoutAllocating) {
    h.queue.advance(1);
    const std::size_t count = AllocationCounter::of([&] {
        for (int round = 0; round < 1000; ++round) {
            FakeTapEvent down(event::leftMouseDown, 0, mouseSender);
            FakeTapEvent up(event::leftMouseUp, 0, mouseSender);
            h.send(down);
            h.send(up);
        }
    });
    EXPECT_EQ(count, 0U);
}

// The release of a click whose action runs once the button is up is swallowed, and its action
// handed to the main queue: one unit of work, whatever the observers want to hear of it.
std::size_t allocationsOfSwallowedRelease(ControllerHarness& h) {
    h.assign(2, action::copy);
    h.rest(3);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    EXPECT_EQ(h.send(down), EventDisposition::swallow);
    h.queue.runReady();
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    std::size_t count = 0;
    count = AllocationCounter::of([&] { EXPECT_EQ(h.send(up), EventDisposition::swallow); });
    h.queue.runReady();
    EXPECT_EQ(h.poster.keyEvents().size(), 2U);
    return count;
}

TEST_F(ControllerAllocationTest, ASwallowedReleaseAllocatesAtMostOnce) {
    EXPECT_LE(allocationsOfSwallowedRelease(h), 1U);
}

TEST_F(ControllerAllocationTest, ASwallowedReleaseAllocatesAtMostOnceWhileRecording) {
    h.a().recorder().recordTouches();
    ASSERT_TRUE(h.a().recorder().isRecording());
    EXPECT_LE(allocationsOfSwallowedRelease(h), 1U);
}

TEST_F(ControllerAllocationTest, FrameHandOverAllocatesNothingOfItsOwn) {
    // A closure holding a frame is too big to be stored inside a std::function: were nothing
    // counted here, the counter would not be counting at all.
    const std::size_t closure = AllocationCounter::of([&] {
        h.queue.async([weak = std::weak_ptr<Controller>(), frame = ContactFrame()] {
            static_cast<void>(weak);
            static_cast<void>(frame);
        });
    });
    h.queue.runReady();
    ASSERT_GT(closure, 0U);
    const Contacts contacts;

    // The frame goes to the queue by value; this queue keeps it in storage it reserved, so
    // whatever is counted would be the controller's own.
    for (const std::int32_t fingers : {0, 1, 4, 16}) {
        EXPECT_EQ(AllocationCounter::of([&] { contacts.deliver(fingers); }), 0U) << fingers;
        h.queue.runReady();
    }
}

TEST_F(ControllerAllocationTest, HandedOverFramesArriveInOrderWithTheirContacts) {
    const Contacts contacts;
    contacts.deliver(3);
    contacts.deliver(0);
    contacts.deliver(1);
    EXPECT_EQ(h.c().state().gesture.count, 2);

    h.queue.runReady();
    EXPECT_EQ(h.c().state().gesture.count, 1);
}

// Four resting fingers, once to meet them, then a hundred frames: what the main thread
// allocated for those hundred.
std::size_t mainThreadAllocationsOverRestingFrames(ControllerHarness& h) {
    const Contacts contacts;
    contacts.deliver(4);
    h.queue.runReady();
    std::size_t onMainThread = 0;
    for (int round = 0; round < 100; ++round) {
        contacts.deliver(4);
        onMainThread += AllocationCounter::of([&] { h.queue.runReady(); });
    }
    return onMainThread;
}

TEST_F(ControllerAllocationTest, FramesAllocateNothingOnTheMainThreadOnceTheirFingersAreKnown) {
    EXPECT_EQ(mainThreadAllocationsOverRestingFrames(h), 0U);
    EXPECT_EQ(h.c().state().gesture.count, 4);
}

TEST_F(ControllerAllocationTest, FramesCostTheLiveViewNothingOnceItsWindowIsHidden) {
    h.surface.setVisible(true);
    h.surface.setVisible(false);
    const std::size_t shows = h.surface.shows;
    EXPECT_EQ(mainThreadAllocationsOverRestingFrames(h), 0U);
    EXPECT_EQ(h.surface.shows, shows);
}

TEST_F(ControllerAllocationTest, SteadyFramesDrawnInTheLiveViewAllocateNothing) {
    // Texts too long to be kept inside a string, so that building one again would count.
    StringsTable::Entries entries = testTable()->entries();
    entries.insert({{"finger.many", "%d fingers rest on the surface"},
                    {"surface.idle", "Fingers on the surface: %d; no gesture yet"}});
    setStringTable(std::make_shared<const StringsTable>(entries));
    h.surface.setVisible(true);
    const Contacts contacts;
    contacts.deliver(4);
    h.queue.runReady();
    const std::size_t shows = h.surface.shows;

    std::size_t onMainThread = 0;
    for (int round = 0; round < 100; ++round) {
        contacts.deliver(4);
        onMainThread += AllocationCounter::of([&] { h.queue.runReady(); });
    }
    EXPECT_EQ(onMainThread, 0U);
    EXPECT_EQ(h.surface.shows, shows + 100);
    EXPECT_EQ(h.surface.shown.fingers, 4);
    EXPECT_EQ(h.surface.shown.fingersText, "4 fingers rest on the surface");
}

}  // namespace
}  // namespace tactora::testing
