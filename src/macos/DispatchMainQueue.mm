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
    // The run loop keeps the timer for the rest of the process; nothing here needs to.
    [NSTimer scheduledTimerWithTimeInterval:seconds
                                    repeats:YES
                                      block:^(NSTimer*) {
                                          work();
                                      }];
}

}  // namespace tactora::macos
