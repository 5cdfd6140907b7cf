#pragma once

#include <cstdint>
#include <memory>

#include "bridge/DeviceWatch.h"
#include "core/platform/DeviceWatcher.h"

namespace tactora::macos {

// Multitouch mice arriving and leaving, from the bridge's IOKit matching notifications on the
// main run loop. Owns the notification port and its iterators until it is destroyed.
class IOKitDeviceWatcher final : public DeviceWatcher {
  public:
    bool watch(Change arrived, Change left) override;

  private:
    struct StopWatching {
        void operator()(TADeviceWatch* watch) const { TAStopWatchingDevices(watch); }
    };

    static void changed(void* context, std::int32_t arrived, std::uint64_t entryID);

    Change arrived_;
    Change left_;
    std::unique_ptr<TADeviceWatch, StopWatching> watch_;
};

}  // namespace tactora::macos
