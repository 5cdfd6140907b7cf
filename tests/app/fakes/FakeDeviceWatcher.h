#pragma once

#include <cstdint>
#include <utility>

#include "core/platform/DeviceWatcher.h"

namespace tactora::testing {

// The test plays the system by calling arrive() and leave() with a device's registry entry id.
class FakeDeviceWatcher final : public DeviceWatcher {
  public:
    bool watch(Change arrived, Change left) override {
        ++watchCalls;
        arrived_ = std::move(arrived);
        left_ = std::move(left);
        return true;
    }

    void arrive(std::uint64_t device = 42) const {
        if (arrived_) {
            arrived_(device);
        }
    }
    void leave(std::uint64_t device = 42) const {
        if (left_) {
            left_(device);
        }
    }

    int watchCalls = 0;

  private:
    Change arrived_;
    Change left_;
};

}  // namespace tactora::testing
