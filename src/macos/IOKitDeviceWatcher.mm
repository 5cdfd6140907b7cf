#include "macos/IOKitDeviceWatcher.h"

#include <utility>

namespace tactora::macos {

bool IOKitDeviceWatcher::watch(Change arrived, Change left) {
    arrived_ = std::move(arrived);
    left_ = std::move(left);
    // The bridge calls back with this object as its context, on the main thread, for as long
    // as watch_ lives; watch_ is destroyed with this object.
    watch_.reset(TAWatchDevices(&IOKitDeviceWatcher::changed, this));
    return watch_ != nullptr;
}

void IOKitDeviceWatcher::changed(void* context, std::int32_t arrived, std::uint64_t entryID) {
    auto* self = static_cast<IOKitDeviceWatcher*>(context);
    const Change& handler = arrived != 0 ? self->arrived_ : self->left_;
    if (handler) {
        handler(entryID);
    }
}

}  // namespace tactora::macos
