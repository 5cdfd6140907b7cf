#include "macos/SystemProcessActivity.h"

namespace tactora::macos {

void SystemProcessActivity::begin() {
    if (activity_ != nil) {
        return;
    }
    activity_ = [NSProcessInfo.processInfo beginActivityWithOptions:gestureActivityOptions
                                                             reason:@"Gestures are on"];
}

void SystemProcessActivity::end() {
    if (activity_ == nil) {
        return;
    }
    [NSProcessInfo.processInfo endActivity:activity_];
    activity_ = nil;
}

}  // namespace tactora::macos
