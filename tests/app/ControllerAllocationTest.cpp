// Proves that the event tap's pass path touches no heap and that handing a contact frame from
// the sensor's thread to the main queue allocates nothing beyond what the queue itself needs.
// Its own program, because it replaces the global allocation functions.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <new>

#include "app/ControllerHarness.h"

namespace {

std::size_t allocations = 0;

void* allocate(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t size) {
    return allocate(size);
}
void* operator new[](std::size_t size) {
    return allocate(size);
}
void* operator new(std::size_t size, const std::nothrow_t& /*unused*/) noexcept {
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*unused*/) noexcept {
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete[](void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t /*unused*/) noexcept {
    std::free(memory);
}
void operator delete[](void* memory, std::size_t /*unused*/) noexcept {
    std::free(memory);
}

namespace tactora::testing {
namespace {

struct Contacts {
    std::array<std::int32_t, ContactFrame::capacity> ids{};
    std::array<float, ContactFrame::capacity> xs{};
    std::array<float, ContactFrame::capacity> ys{};

    Contacts() {
        for (std::size_t i = 0; i < ContactFrame::capacity; ++i) {
            ids.at(i) = static_cast<std::int32_t>(i + 1);
            xs.at(i) = 0.5F;
            ys.at(i) = 0.5F;
        }
    }

    void deliver(std::int32_t count) const {
        Controller::frameCallback(count, ids.data(), xs.data(), ys.data());
    }
};

class ControllerAllocationTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        h.assign(1, action::right);
        h.rest(2);
    }

    template <typename Work>
    std::size_t allocationsOf(Work work) {
        const std::size_t before = allocations;
        work();
        return allocations - before;
    }

    ControllerHarness h;
};

TEST_F(ControllerAllocationTest, EventsOfOtherDevicesPassWithoutAllocating) {
    const EventType types[] = {event::leftMouseDown, event::leftMouseDragged, event::leftMouseUp,
                               event::scrollWheel};
    FakeTapEvent warmUp(event::leftMouseDown, 0, otherSender);
    h.send(warmUp);

    const std::size_t count = allocationsOf([&] {
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
    const std::size_t count = allocationsOf([&] {
        for (int round = 0; round < 1000; ++round) {
            FakeTapEvent event(event::leftMouseDown, 0, mouseSender, marker);
            h.send(event);
        }
    });
    EXPECT_EQ(count, 0U);
    EXPECT_TRUE(h.c().presses().empty());
}

TEST_F(ControllerAllocationTest, PlainClicksWithStaleContactPassWithoutAllocating) {
    h.queue.advance(1);
    const std::size_t count = allocationsOf([&] {
        for (int round = 0; round < 1000; ++round) {
            FakeTapEvent down(event::leftMouseDown, 0, mouseSender);
            FakeTapEvent up(event::leftMouseUp, 0, mouseSender);
            h.send(down);
            h.send(up);
        }
    });
    EXPECT_EQ(count, 0U);
}

TEST_F(ControllerAllocationTest, FrameHandOverAllocatesOnlyWhatTheQueueNeeds) {
    const std::size_t queueOwn = allocationsOf([&] {
        h.queue.async([weak = std::weak_ptr<Controller>(), frame = ContactFrame()] {
            static_cast<void>(weak);
            static_cast<void>(frame);
        });
    });
    h.queue.runReady();
    const Contacts contacts;

    for (const std::int32_t fingers : {0, 1, 4, 16}) {
        EXPECT_EQ(allocationsOf([&] { contacts.deliver(fingers); }), queueOwn) << fingers;
        h.queue.runReady();
    }
}

TEST_F(ControllerAllocationTest, FramesAllocateNothingOnTheMainThreadOnceTheirFingersAreKnown) {
    const Contacts contacts;
    contacts.deliver(4);
    h.queue.runReady();

    std::size_t onMainThread = 0;
    for (int round = 0; round < 100; ++round) {
        contacts.deliver(4);
        onMainThread += allocationsOf([&] { h.queue.runReady(); });
    }
    EXPECT_EQ(onMainThread, 0U);
    EXPECT_EQ(h.c().gesture().count, 4);
}

}  // namespace
}  // namespace tactora::testing
