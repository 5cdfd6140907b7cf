#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "bridge/DeviceWatch.h"
#include "bridge/TouchDevices.h"
#include "core/platform/TouchDevices.h"

namespace tactora {

// Every multitouch device, as the multitouch bridge provides them. The bridge's state is
// process-wide, so every instance speaks for the same connection; the frame callback and the
// choice are the last start's. All members are called on the main thread; the frame callback
// runs on the framework's thread.
class BridgeTouchDevices final : public TouchDevices {
  public:
    BridgeTouchDevices() = default;
    ~BridgeTouchDevices() override;
    BridgeTouchDevices(const BridgeTouchDevices&) = delete;
    BridgeTouchDevices& operator=(const BridgeTouchDevices&) = delete;

    bool start(DeviceFrameCallback callback, Choice choose) override;
    bool refresh() override;
    void stop() override;
    std::vector<TouchDevice> devices() const override;
    std::string status() const override;
    std::int32_t statusError() const override;
    std::uint64_t deviceForSender(std::uint64_t senderID) override;
    bool watch(std::function<void()> changed) override;

  private:
    struct StopWatching {
        void operator()(TADeviceWatch* watch) const { TAStopWatchingDevices(watch); }
    };

    static bool ask(void* context, const TADeviceInfo* device);
    static void changed(void* context, std::int32_t arrived);

    Choice choose_;
    std::function<void()> changed_;
    std::unique_ptr<TADeviceWatch, StopWatching> watch_;
};

// The bridge's description of a device in the core's terms.
TouchDevice touchDevice(const TADeviceInfo& info);

}  // namespace tactora
