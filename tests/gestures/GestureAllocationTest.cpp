// Proves that the recogniser does not touch the heap per frame once it has seen a sequence's
// finger ids. Its own program, because it replaces the global allocation functions.
#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>
#include <vector>

#include "core/gestures/GestureState.h"

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

namespace tactora {
namespace {

using Frame = std::vector<Finger>;

Frame fingers(std::int64_t n, double x) {
    Frame frame;
    for (std::int64_t id = 1; id <= n; ++id) {
        frame.emplace_back(id, x, 0.5);
    }
    return frame;
}

TEST(GestureAllocation, CounterSeesHeapAllocations) {
    const std::size_t before = allocations;
    void* memory = ::operator new(sizeof(int));
    EXPECT_EQ(allocations, before + 1);
    ::operator delete(memory);
}

TEST(GestureAllocation, FirstSightingOfFingersMayAllocate) {
    GestureState state;
    const Frame frame = fingers(16, 0.5);
    const std::size_t before = allocations;
    state.update(frame, 1.0);
    EXPECT_GT(allocations, before);
}

TEST(GestureAllocation, KnownFingersCostNoAllocationPerFrame) {
    GestureState state;
    const Frame first = fingers(4, 0.5);
    const Frame later = fingers(4, 0.51);
    state.update(first, 1.0);

    const std::size_t before = allocations;
    for (int i = 0; i < 1000; ++i) {
        state.update(later, 1.0 + 0.001 * i);
    }
    EXPECT_EQ(allocations, before);
}

TEST(GestureAllocation, LaterSequencesReuseTheOriginsStorage) {
    GestureState state;
    const Frame touch = fingers(4, 0.5);
    const Frame fewer = fingers(2, 0.5);
    const Frame lifted;
    state.update(touch, 1.0);
    state.update(lifted, 1.1);

    const std::size_t before = allocations;
    for (int i = 0; i < 100; ++i) {
        const double start = 2.0 + i;
        state.update(fewer, start);
        state.update(touch, start + 0.02);
        EXPECT_EQ(state.update(lifted, start + 0.1), 4);
        state.update(touch, start + 0.5);
        state.reset();
    }
    EXPECT_EQ(allocations, before);
}

}  // namespace
}  // namespace tactora
