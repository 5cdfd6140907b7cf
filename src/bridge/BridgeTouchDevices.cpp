#include "bridge/BridgeTouchDevices.h"

#include <algorithm>
#include <atomic>
#include <cstddef>
#include <utility>

namespace tactora {

namespace {

// Read on the framework's thread; written on the main thread by useOthers() and the destructor.
std::atomic<DeviceFrameCallback> frameClient{nullptr};
// The instance whose choice the bridge asks. Main thread only.
const BridgeTouchDevices* chooser = nullptr;

// Copies the bridge's frame into the core's, on the framework's thread; allocates nothing.
void deliver(std::uint64_t device, const TAFrame* frame) {
    const DeviceFrameCallback client = frameClient.load();
    if (client == nullptr) {
        return;
    }
    ContactFrame copy;
    copy.device = device;
    copy.count =
        std::min(static_cast<std::size_t>(std::max(frame->count, 0)), ContactFrame::capacity);
    std::copy_n(frame->ids, copy.count, copy.ids.begin());
    std::copy_n(frame->xs, copy.count, copy.xs.begin());
    std::copy_n(frame->ys, copy.count, copy.ys.begin());
    copy.hasShapes = copy.count > 0;
    for (std::size_t i = 0; i < copy.count; ++i) {
        const float* values = frame->shapes + i * TA_SHAPE_VALUES;
        copy.shapes[i] = {values[0], values[1], values[2], values[3]};
    }
    client(copy);
}

TouchDeviceKind kindOf(TADeviceKind kind) {
    switch (kind) {
        case TADeviceKindMagicMouse:
            return TouchDeviceKind::magicMouse;
        case TADeviceKindMagicTrackpad:
            return TouchDeviceKind::magicTrackpad;
        case TADeviceKindBuiltInTrackpad:
            return TouchDeviceKind::builtInTrackpad;
        case TADeviceKindOther:
            break;
    }
    return TouchDeviceKind::other;
}

TouchDeviceState stateOf(TADeviceState state) {
    switch (state) {
        case TADeviceStateConnected:
            return TouchDeviceState::connected;
        case TADeviceStateMissing:
            return TouchDeviceState::missing;
        case TADeviceStateBlocked:
            return TouchDeviceState::blocked;
        case TADeviceStateOff:
            break;
    }
    return TouchDeviceState::off;
}

}  // namespace

TouchDevice touchDevice(const TADeviceInfo& info) {
    return {info.id, kindOf(info.kind), stateOf(info.state), info.error, info.name};
}

// The bridge must not ask a choice that is gone.
BridgeTouchDevices::~BridgeTouchDevices() {
    if (chooser == this) {
        TAUseOtherDevices(nullptr, nullptr, nullptr);
        frameClient.store(nullptr);
        chooser = nullptr;
    }
}

void BridgeTouchDevices::useOthers(DeviceFrameCallback callback, Choice choose) {
    choose_ = std::move(choose);
    if (!choose_) {
        TAUseOtherDevices(nullptr, nullptr, nullptr);
        frameClient.store(nullptr);
        chooser = nullptr;
        return;
    }
    frameClient.store(callback);
    chooser = this;
    TAUseOtherDevices(&deliver, &BridgeTouchDevices::ask, this);
}

bool BridgeTouchDevices::refresh() {
    return TARefreshDevices() != 0;
}

std::vector<TouchDevice> BridgeTouchDevices::devices() const {
    std::vector<TouchDevice> list;
    TADeviceInfo info;
    for (std::int32_t index = 0; TAKnownDevice(index, &info); ++index) {
        list.push_back(touchDevice(info));
    }
    return list;
}

std::uint64_t BridgeTouchDevices::deviceForSender(std::uint64_t senderID) {
    return TADeviceForSender(senderID);
}

bool BridgeTouchDevices::watch(std::function<void()> changed) {
    changed_ = std::move(changed);
    // The bridge calls back with this object as its context, on the main thread, for as long
    // as watch_ lives; watch_ is destroyed with this object.
    watch_.reset(TAWatchMultitouchDevices(&BridgeTouchDevices::changed, this));
    return watch_ != nullptr;
}

bool BridgeTouchDevices::ask(void* context, const TADeviceInfo* device) {
    const auto* self = static_cast<const BridgeTouchDevices*>(context);
    return self->choose_ && self->choose_(touchDevice(*device));
}

void BridgeTouchDevices::changed(void* context, std::int32_t arrived, std::uint64_t entryID) {
    (void)arrived;
    (void)entryID;
    auto* self = static_cast<BridgeTouchDevices*>(context);
    if (self->changed_) {
        self->changed_();
    }
}

}  // namespace tactora
