#pragma once

#include <cstdint>
#include <set>
#include <string>

#include "app/fakes/CallLog.h"
#include "core/platform/Sensor.h"

namespace tactora::testing {

class FakeSensor final : public Sensor {
  public:
    explicit FakeSensor(CallLog& log) : log_(log) {}

    bool start(FrameCallback frames) override {
        log_.add("sensor.start");
        callback = frames;
        connected = startSucceeds ? device : 0;
        return startSucceeds;
    }
    void stop() override {
        log_.add("sensor.stop");
        connected = 0;
    }
    std::string status() const override { return statusKey; }
    std::int32_t statusError() const override { return error; }
    std::uint64_t connectedDevice() const override { return connected; }
    bool isMouseSender(std::uint64_t senderID) override {
        ++lookups;
        return mice.contains(senderID);
    }

    bool startSucceeds = true;
    std::string statusKey = "sensor.connected";
    std::int32_t error = 0;
    // The registry entry id of the mouse that start() connects.
    std::uint64_t device = 42;
    std::uint64_t connected = 0;
    FrameCallback callback = nullptr;
    std::set<std::uint64_t> mice;
    int lookups = 0;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
