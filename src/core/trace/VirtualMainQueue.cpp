#include "core/trace/VirtualMainQueue.h"

#include <algorithm>
#include <utility>

namespace tactora {

void VirtualMainQueue::async(std::function<void()> work) {
    add(now_, 0, std::move(work));
}

void VirtualMainQueue::after(double seconds, std::function<void()> work) {
    add(now_ + seconds, 0, std::move(work));
}

void VirtualMainQueue::every(double seconds, std::function<void()> work) {
    add(now_ + seconds, seconds, std::move(work));
}

void VirtualMainQueue::advanceTo(double time) {
    const double target = std::max(time, now_);
    while (!items_.empty() && items_.top().due <= target) {
        Item item = items_.top();
        items_.pop();
        now_ = std::max(now_, item.due);
        if (item.interval > 0) {
            add(item.due + item.interval, item.interval, item.work);
        }
        item.work();
    }
    now_ = target;
}

void VirtualMainQueue::add(double due, double interval, std::function<void()> work) {
    items_.push({due, nextSequence_++, interval, std::move(work)});
}

}  // namespace tactora
