#include "macos/DispatchMainQueue.h"

#import <Foundation/Foundation.h>

#include <utility>

namespace tactora::macos {

void DispatchMainQueue::async(std::function<void()> work) {
    dispatch_async(dispatch_get_main_queue(), ^{
        work();
    });
}

void DispatchMainQueue::asyncFrame(const ContactFrame& frame, FrameReceiver receive) {
    // The block captures a plain copy of the frame and a function pointer: copying the block to
    // the heap, which dispatch_async does, is the hand-over's only allocation.
    const ContactFrame copy = frame;
    dispatch_async(dispatch_get_main_queue(), ^{
        receive(copy);
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
    // Apple suggests at least a tenth of the interval; it lets the system coalesce wake-ups.
    timer.tolerance = seconds / 10;
    [NSRunLoop.mainRunLoop addTimer:timer forMode:NSRunLoopCommonModes];
}

}  // namespace tactora::macos
