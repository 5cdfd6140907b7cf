#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "bridge/BridgeSensor.h"
#include "bridge/BridgeTouchDevices.h"
#include "core/console/ProgramEnvironment.h"
#include "macos/UserDefaultsSuites.h"

namespace tactora::macos {

// The program's surroundings on macOS: the user defaults, the multitouch bridge, the main
// bundle and AppKit.
class MacProgramEnvironment final : public ProgramEnvironment {
  public:
    PreferenceSuites& preferences() override { return preferences_; }
    Sensor& sensor() override { return sensor_; }
    std::optional<std::string> preferredLocalization() override;
    std::optional<std::vector<std::int64_t>> appIconPixelWidths() override;
    void runApplication() override;

  private:
    UserDefaultsSuites preferences_;
    BridgeSensor sensor_;
    // The devices beside the Magic Mouse share the sensor's connection, so they live as long,
    // and the program is given both.
    BridgeTouchDevices touchDevices_;
};

}  // namespace tactora::macos
