#pragma once

#include <cstdint>
#include <vector>

#include "bridge/TouchDevices.h"

namespace tactora::testing {

struct DeliveredShape {
    std::int32_t id;
    float x;
    float y;
    float size;
    float angle;
    float majorAxis;
    float minorAxis;
    bool operator==(const DeliveredShape&) const = default;
};

struct DeviceFrame {
    std::uint64_t device;
    std::vector<DeliveredShape> contacts;
};

// A device frame callback for the bridge that keeps every frame it is handed with its device.
// The bridge takes a plain function pointer, so the frames live in one process-wide list.
class DeviceFrameRecorder {
  public:
    static void clear() { frames().clear(); }
    static const std::vector<DeviceFrame>& received() { return frames(); }

    static void record(std::uint64_t device, const TAFrame* frame) {
        DeviceFrame copy{device, {}};
        for (std::int32_t i = 0; i < frame->count; ++i) {
            const float* shape = frame->shapes + i * TA_SHAPE_VALUES;
            copy.contacts.push_back({frame->ids[i], frame->xs[i], frame->ys[i], shape[0], shape[1],
                                     shape[2], shape[3]});
        }
        frames().push_back(copy);
    }

    static std::vector<std::uint64_t> devices() {
        std::vector<std::uint64_t> list;
        for (const DeviceFrame& frame : frames()) {
            list.push_back(frame.device);
        }
        return list;
    }

  private:
    static std::vector<DeviceFrame>& frames() {
        static std::vector<DeviceFrame> list;
        return list;
    }
};

}  // namespace tactora::testing
