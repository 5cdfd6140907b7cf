#pragma once

#import <Foundation/Foundation.h>

#include "core/platform/ProcessActivity.h"

namespace tactora::macos {

// A user-initiated, latency-critical activity of the process that still lets the system sleep
// when idle: while it is held, App Nap does not defer the event tap, timers or queued work.
class SystemProcessActivity final : public ProcessActivity {
  public:
    void begin() override;
    void end() override;

  private:
    id<NSObject> __strong activity_ = nil;
};

}  // namespace tactora::macos
