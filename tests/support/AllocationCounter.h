#pragma once

#include <cstddef>

namespace tactora::testing {

// Counts the heap allocations made since it was constructed. The count comes from the
// replacement global allocation functions in AllocationCounter.cpp: a test program that uses
// this class lists that source once, and no other source of the program may replace them.
// Single-threaded use only.
class AllocationCounter {
  public:
    // Every allocation the program has made so far.
    static std::size_t total();

    std::size_t count() const { return total() - start_; }

    // How many allocations `work` makes.
    template <typename Work>
    static std::size_t of(Work work) {
        const AllocationCounter counter;
        work();
        return counter.count();
    }

  private:
    std::size_t start_ = total();
};

}  // namespace tactora::testing
