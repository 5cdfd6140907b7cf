#pragma once

#include <cstdint>
#include <string>

#include "core/platform/Sensor.h"

namespace tactora {

// The touch sensor as the multitouch bridge provides it. The bridge's state is process-wide, so
// every instance speaks for the same connection. All members are called on the main thread;
// the frame callback runs on the framework's thread.
class BridgeSensor final : public Sensor {
  public:
    bool start(FrameCallback callback) override;
    void stop() override;
    std::string status() const override;
    std::int32_t statusError() const override;
    std::uint64_t connectedDevice() const override;
    bool isMouseSender(std::uint64_t senderID) override;
};

}  // namespace tactora
