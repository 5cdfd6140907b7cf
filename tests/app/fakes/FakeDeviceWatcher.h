#pragma once

#include <functional>
#include <utility>

#include "core/platform/DeviceWatcher.h"

namespace tactora::testing {

// The test plays the system by calling arrive() and leave().
class FakeDeviceWatcher final : public DeviceWatcher {
  public:
    bool watch(std::function<void()> arrived, std::function<void()> left) override {
        ++watchCalls;
        arrived_ = std::move(arrived);
        left_ = std::move(left);
        return true;
    }

    void arrive() const {
        if (arrived_) {
            arrived_();
        }
    }
    void leave() const {
        if (left_) {
            left_();
        }
    }

    int watchCalls = 0;

  private:
    std::function<void()> arrived_;
    std::function<void()> left_;
};

}  // namespace tactora::testing
