#pragma once

#include "core/platform/Clock.h"

namespace tactora::testing {

// Virtual time, moved only by the test (through FakeMainQueue::advance).
class FakeClock final : public Clock {
  public:
    double uptime() const override { return now; }

    double now = 1000.0;
};

}  // namespace tactora::testing
