#include "core/devices/DeviceRecognisers.h"

#include <algorithm>
#include <iterator>

namespace tactora {

DeviceRecognisers::Touch* DeviceRecognisers::touchOf(std::uint64_t device) {
    if (recent_ < touches_.size() && touches_[recent_].device == device) {
        return &touches_[recent_];
    }
    const auto found = std::ranges::find(touches_, device, &Touch::device);
    if (found == touches_.end()) {
        return nullptr;
    }
    recent_ = static_cast<std::size_t>(std::distance(touches_.begin(), found));
    return &*found;
}

DeviceRecognisers::Touch& DeviceRecognisers::touchFor(std::uint64_t device) {
    if (Touch* touch = touchOf(device)) {
        return *touch;
    }
    touches_.push_back(
        {.device = device, .gesture = GestureState(), .lastFrame = 0, .lastClick = 0});
    recent_ = touches_.size() - 1;
    return touches_.back();
}

std::optional<std::int64_t> DeviceRecognisers::update(std::uint64_t device,
                                                      std::span<const Finger> fingers, double now) {
    Touch& touch = touchFor(device);
    touch.lastFrame = now;
    return touch.gesture.update(fingers, now);
}

const DeviceRecognisers::Touch* DeviceRecognisers::find(std::uint64_t device) const {
    const auto found = std::ranges::find(touches_, device, &Touch::device);
    return found == touches_.end() ? nullptr : &*found;
}

void DeviceRecognisers::physicalClick(std::uint64_t device, double now) {
    Touch& touch = touchFor(device);
    touch.gesture.physicalClick();
    touch.lastClick = now;
}

void DeviceRecognisers::scrolled(std::uint64_t device) {
    // A device that has sent no frame has no touch to spoil.
    if (Touch* touch = touchOf(device)) {
        touch->gesture.moved = true;
    }
}

void DeviceRecognisers::resetAll() {
    for (Touch& touch : touches_) {
        touch.gesture.reset();
        touch.lastFrame = 0;
        touch.lastClick = 0;
    }
}

void DeviceRecognisers::forget(std::uint64_t device) {
    std::erase_if(touches_, [device](const Touch& touch) { return touch.device == device; });
    recent_ = 0;
}

void DeviceRecognisers::forgetAllBut(const std::function<bool(std::uint64_t)>& kept) {
    std::erase_if(touches_, [&kept](const Touch& touch) { return !kept(touch.device); });
    recent_ = 0;
}

}  // namespace tactora
