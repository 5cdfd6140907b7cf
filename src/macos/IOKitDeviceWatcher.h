#pragma once

#include <functional>
#include <memory>

#include "bridge/DeviceWatch.h"
#include "core/platform/DeviceWatcher.h"

namespace tactora::macos {

// Multitouch mice arriving and leaving, from the bridge's IOKit matching notifications on the
// main run loop. Owns the notification port and its iterators until it is destroyed.
class IOKitDeviceWatcher final : public DeviceWatcher {
  public:
    bool watch(std::function<void()> arrived, std::function<void()> left) override;

  private:
    struct StopWatching {
        void operator()(TADeviceWatch* watch) const { TAStopWatchingDevices(watch); }
    };

    static void changed(void* context, std::int32_t arrived);

    std::function<void()> arrived_;
    std::function<void()> left_;
    std::unique_ptr<TADeviceWatch, StopWatching> watch_;
};

}  // namespace tactora::macos
