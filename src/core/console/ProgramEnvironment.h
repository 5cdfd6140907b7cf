#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/Sensor.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// What the program's entry needs from the system it runs on: macOS gives it AppKit and the
// user defaults, other systems portable stand-ins. All calls on the main thread.
class ProgramEnvironment {
  public:
    virtual ~ProgramEnvironment() = default;

    virtual PreferenceSuites& preferences() = 0;
    virtual Sensor& sensor() = 0;

    // The first of the main bundle's preferred localisations, or nothing.
    virtual std::optional<std::string> preferredLocalization() = 0;

    // The pixel width of every image of the bundled application icon, or nothing when the icon
    // resource is missing or does not decode.
    virtual std::optional<std::vector<std::int64_t>> appIconPixelWidths() = 0;

    // Runs the interactive application until it ends.
    virtual void runApplication() = 0;
};

}  // namespace tactora
