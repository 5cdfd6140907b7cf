// Replaces the global allocation functions, so that AllocationCounter sees every allocation.
// A program may replace them only once: list this source in no more than one place per program.
#include "support/AllocationCounter.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

void* allocateCounted(std::size_t size) noexcept {
    ++allocations;
    return std::malloc(size == 0 ? 1 : size);
}

void* allocateCountedOrThrow(std::size_t size) {
    if (void* memory = allocateCounted(size)) {
        return memory;
    }
    throw std::bad_alloc();
}

}  // namespace

std::size_t tactora::testing::AllocationCounter::total() {
    return allocations;
}

void* operator new(std::size_t size) {
    return allocateCountedOrThrow(size);
}
void* operator new[](std::size_t size) {
    return allocateCountedOrThrow(size);
}
void* operator new(std::size_t size, const std::nothrow_t& /*unused*/) noexcept {
    return allocateCounted(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*unused*/) noexcept {
    return allocateCounted(size);
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
