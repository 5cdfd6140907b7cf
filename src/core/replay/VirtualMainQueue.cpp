#include "core/replay/VirtualMainQueue.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tactora {

void VirtualMainQueue::async(std::function<void()> work) {
    add(now_, 0, std::move(work));
}

void VirtualMainQueue::asyncFrame(const ContactFrame& frame, FrameReceiver receive) {
    add(now_, 0, [frame, receive] { receive(frame); });
}

void VirtualMainQueue::after(double seconds, std::function<void()> work) {
    add(now_ + seconds, 0, std::move(work));
}

void VirtualMainQueue::every(double seconds, std::function<void()> work) {
    add(now_ + seconds, seconds, std::move(work));
}

void VirtualMainQueue::advanceTo(double time) {
    runDue(time, true);
}

void VirtualMainQueue::advanceUpTo(double time) {
    runDue(time, false);
}

void VirtualMainQueue::runDue(double until, bool inclusive) {
    const double target = std::max(until, now_);
    const auto due = [&] {
        return !items_.empty() &&
               (items_.top().due < target || (inclusive && items_.top().due == target));
    };
    while (due()) {
        Item item = items_.top();
        items_.pop();
        now_ = std::max(now_, item.due);
        if (item.interval > 0) {
            add(nextDue(item, target), item.interval, item.work);
        }
        item.work();
    }
    now_ = target;
}

// A repeating item that would fall due again before `target` fires once for all those times,
// as a timer that missed its firings does, so that a long quiet stretch costs nothing.
double VirtualMainQueue::nextDue(const Item& item, double target) {
    double next = item.due + item.interval;
    if (next <= target) {
        next = item.due + item.interval * (std::floor((target - item.due) / item.interval) + 1);
    }
    // Far from zero an interval can be smaller than the spacing of the numbers themselves.
    return next > target ? next : std::nextafter(target, std::numeric_limits<double>::infinity());
}

void VirtualMainQueue::add(double due, double interval, std::function<void()> work) {
    items_.push({due, nextSequence_++, interval, std::move(work)});
}

}  // namespace tactora
