#pragma once

#include <functional>

#include "core/platform/MainQueue.h"

namespace tactora::macos {

// The main dispatch queue, and a repeating timer on the main run loop.
class DispatchMainQueue final : public MainQueue {
  public:
    void async(std::function<void()> work) override;
    void asyncFrame(const ContactFrame& frame, FrameReceiver receive) override;
    void after(double seconds, std::function<void()> work) override;
    void every(double seconds, std::function<void()> work) override;
};

}  // namespace tactora::macos
