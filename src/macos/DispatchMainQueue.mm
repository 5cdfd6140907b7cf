#include "macos/DispatchMainQueue.h"

#import <Foundation/Foundation.h>

#include <utility>

namespace tactora::macos {

void DispatchMainQueue::async(std::function<void()> work) {
    dispatch_async(dispatch_get_main_queue(), ^{
        work();
    });
}

void DispatchMainQueue::after(double seconds, std::function<void()> work) {
    const auto delay = static_cast<int64_t>(seconds * static_cast<double>(NSEC_PER_SEC));
    dispatch_after(dispatch_time(DISPATCH_TIME_NOW, delay), dispatch_get_main_queue(), ^{
        work();
    });
}

void DispatchMainQueue::every(double seconds, std::function<void()> work) {
    // The run loop keeps the timer for the rest of the process; nothing here needs to. In the
    // common modes it also fires while a menu or a pop-up is tracking the mouse, so the live
    // line stays current while the user looks at it.
    NSTimer* timer = [NSTimer timerWithTimeInterval:seconds
                                            repeats:YES
                                              block:^(NSTimer*) {
                                                  work();
                                              }];
    [NSRunLoop.mainRunLoop addTimer:timer forMode:NSRunLoopCommonModes];
}

}  // namespace tactora::macos
