#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "bridge/BridgeSensor.h"
#include "core/console/ProgramEnvironment.h"
#include "core/profiles/FilePreferenceSuites.h"

namespace tactora {

// The program's environment off macOS: preferences in files under the user's configuration
// directory, the bridge's sensor (which reports that the framework is unavailable), and the
// resources of the application bundle that the build lays out around the executable.
class LinuxProgramEnvironment final : public ProgramEnvironment {
  public:
    // `resources` is the bundle's Contents/Resources; `localization` the one chosen there.
    LinuxProgramEnvironment(std::filesystem::path resources,
                            std::optional<std::string> localization);

    PreferenceSuites& preferences() override { return preferences_; }
    Sensor& sensor() override { return sensor_; }
    std::optional<std::string> preferredLocalization() override { return localization_; }
    std::optional<std::vector<std::int64_t>> appIconPixelWidths() override;

    // The interactive application needs AppKit: say so, and name what does run here.
    void runApplication() override;

  private:
    std::filesystem::path resources_;
    std::optional<std::string> localization_;
    FilePreferenceSuites preferences_;
    BridgeSensor sensor_;
};

}  // namespace tactora
