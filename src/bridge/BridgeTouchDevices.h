#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

#include "bridge/DeviceWatch.h"
#include "bridge/TouchDevices.h"
#include "core/platform/TouchDevices.h"

namespace tactora {

// The multitouch devices beside the Magic Mouse, as the multitouch bridge provides them. The
// bridge's state is process-wide, so every instance speaks for the same connection; the frame
// callback and the choice are those of the last useOthers(). An instance whose choice the
// bridge still holds takes it back when it is destroyed, which stops the devices beside the
// mouse. All members are called on the main thread; the frame callback runs on the
// framework's thread.
class BridgeTouchDevices final : public TouchDevices {
  public:
    BridgeTouchDevices() = default;
    ~BridgeTouchDevices() override;
    BridgeTouchDevices(const BridgeTouchDevices&) = delete;
    BridgeTouchDevices& operator=(const BridgeTouchDevices&) = delete;

    // An empty `choose` takes the choice back: the devices beside the mouse stop at once.
    void useOthers(DeviceFrameCallback callback, Choice choose) override;
    bool refresh() override;
    std::vector<TouchDevice> devices() const override;
    std::uint64_t deviceForSender(std::uint64_t senderID) override;
    bool watch(std::function<void()> changed) override;

  private:
    struct StopWatching {
        void operator()(TADeviceWatch* watch) const { TAStopWatchingDevices(watch); }
    };

    static bool ask(void* context, const TADeviceInfo* device);
    static void changed(void* context, std::int32_t arrived, std::uint64_t entryID);

    Choice choose_;
    std::function<void()> changed_;
    std::unique_ptr<TADeviceWatch, StopWatching> watch_;
};

// The bridge's description of a device in the core's terms.
TouchDevice touchDevice(const TADeviceInfo& info);

}  // namespace tactora
