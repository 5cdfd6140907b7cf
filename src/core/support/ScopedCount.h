#pragma once

namespace tactora {

// Counts up for as long as it lives, so that code further down can tell it runs inside.
class ScopedCount {
  public:
    explicit ScopedCount(int& count) : count_(count) { ++count_; }
    ~ScopedCount() { --count_; }
    ScopedCount(const ScopedCount&) = delete;
    ScopedCount& operator=(const ScopedCount&) = delete;
    ScopedCount(ScopedCount&&) = delete;
    ScopedCount& operator=(ScopedCount&&) = delete;

  private:
    int& count_;
};

}  // namespace tactora
