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
        return startSucceeds;
    }
    void stop() override { log_.add("sensor.stop"); }
    std::string status() const override { return statusKey; }
    std::int32_t statusError() const override { return error; }
    bool isMouseSender(std::uint64_t senderID) override {
        ++lookups;
        return mice.contains(senderID);
    }

    bool startSucceeds = true;
    std::string statusKey = "sensor.connected";
    std::int32_t error = 0;
    FrameCallback callback = nullptr;
    std::set<std::uint64_t> mice;
    int lookups = 0;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
