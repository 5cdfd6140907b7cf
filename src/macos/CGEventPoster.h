#pragma once

#include <cstdint>

#include "core/platform/EventPoster.h"

namespace tactora::macos {

// Posts synthetic mouse and key events through CoreGraphics, and Dock notifications through the
// bridge.
class CGEventPoster final : public EventPoster {
  public:
    void post(const MouseButtonEvent& event) override;
    void post(const KeyEvent& event) override;
    std::int32_t sendDockNotification(bool showDesktop) override;
};

}  // namespace tactora::macos
