#pragma once

#import <AppKit/AppKit.h>

namespace tactora::macos {

// A local event monitor that lives exactly as long as this object.
class ScopedEventMonitor {
  public:
    ScopedEventMonitor(NSEventMask mask, NSEvent* _Nullable (^_Nonnull handler)(NSEvent* _Nonnull))
        : monitor_([NSEvent addLocalMonitorForEventsMatchingMask:mask handler:handler]) {}
    ~ScopedEventMonitor() {
        if (monitor_ != nil) {
            [NSEvent removeMonitor:monitor_];
        }
    }

    ScopedEventMonitor(const ScopedEventMonitor&) = delete;
    ScopedEventMonitor& operator=(const ScopedEventMonitor&) = delete;

  private:
    id __strong _Nullable monitor_;
};

}  // namespace tactora::macos
