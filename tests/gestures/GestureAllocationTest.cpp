// Proves that the recogniser does not touch the heap per frame once it has seen a sequence's
// finger ids. Its own program, because it counts allocations through the replaced global
// allocation functions.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <new>
#include <vector>

#include "core/gestures/GestureState.h"
#include "support/AllocationCounter.h"

namespace tactora {
namespace {

using testing::AllocationCounter;

using Frame = std::vector<Finger>;

Frame fingers(std::int64_t n, double x) {
    Frame frame;
    for (std::int64_t id = 1; id <= n; ++id) {
        frame.emplace_back(id, x, 0.5);
    }
    return frame;
}

TEST(GestureAllocation, CounterSeesHeapAllocations) {
    const AllocationCounter counter;
    void* memory = ::operator new(sizeof(int));
    EXPECT_EQ(counter.count(), 1U);
    ::operator delete(memory);
}

TEST(GestureAllocation, FirstSightingOfFingersMayAllocate) {
    GestureState state;
    const Frame frame = fingers(4, 0.5);
    const AllocationCounter counter;
    state.update(frame, 1.0);
    EXPECT_GT(counter.count(), 0U);
}

TEST(GestureAllocation, KnownFingersCostNoAllocationPerFrame) {
    GestureState state;
    const Frame first = fingers(4, 0.5);
    const Frame later = fingers(4, 0.51);
    state.update(first, 1.0);

    const AllocationCounter counter;
    for (int i = 0; i < 1000; ++i) {
        state.update(later, 1.0 + 0.001 * i);
    }
    EXPECT_EQ(counter.count(), 0U);
}

TEST(GestureAllocation, LaterSequencesReuseTheOriginsStorage) {
    GestureState state;
    const Frame touch = fingers(4, 0.5);
    const Frame fewer = fingers(2, 0.5);
    const Frame lifted;
    state.update(touch, 1.0);
    state.update(lifted, 1.1);

    const AllocationCounter counter;
    for (int i = 0; i < 100; ++i) {
        const double start = 2.0 + i;
        state.update(fewer, start);
        state.update(touch, start + 0.02);
        EXPECT_EQ(state.update(lifted, start + 0.1), 4);
        state.update(touch, start + 0.5);
        state.reset();
    }
    EXPECT_EQ(counter.count(), 0U);
}

}  // namespace
}  // namespace tactora
