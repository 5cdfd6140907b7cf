#pragma once

#import <Foundation/Foundation.h>

#include "core/platform/ProcessActivity.h"

namespace tactora::macos {

// What the activity tells the system: user-initiated work, so that App Nap does not defer the
// event tap, the timers or queued work, while the system may still sleep when idle. It is not
// latency-critical: that is meant for short timing-critical work such as recording audio, costs
// energy for as long as it is held (hours, here) and cancels the timers' tolerance.
inline constexpr NSActivityOptions gestureActivityOptions =
    NSActivityUserInitiatedAllowingIdleSystemSleep;

// The process activity held while gestures are on.
class SystemProcessActivity final : public ProcessActivity {
  public:
    void begin() override;
    void end() override;

  private:
    id<NSObject> __strong activity_ = nil;
};

}  // namespace tactora::macos
