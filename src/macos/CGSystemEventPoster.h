#pragma once

#include <cstdint>
#include <string>

#include "core/platform/SystemEventPoster.h"

namespace tactora::macos {

// Posts the media keys' system-defined events through AppKit's event and CoreGraphics, and the
// Dock's notifications through the bridge.
class CGSystemEventPoster final : public SystemEventPoster {
  public:
    void post(const SystemDefinedEvent& event) override;
    std::int32_t sendDockNotification(const std::string& name) override;
};

}  // namespace tactora::macos
