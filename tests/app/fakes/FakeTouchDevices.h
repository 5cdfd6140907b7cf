#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "core/platform/TouchDevices.h"

namespace tactora::testing {

// Several touch devices, as the test describes them: refresh() applies the choice to every
// connected device but the Magic Mouse, and send() delivers a frame of a device in use as the
// sensor's thread would.
class FakeTouchDevices final : public TouchDevices {
  public:
    void useOthers(DeviceFrameCallback newCallback, Choice newChoose) override {
        callback = newCallback;
        choose = std::move(newChoose);
    }

    bool refresh() override {
        ++refreshes;
        if (onRefresh) {
            onRefresh();
        }
        bool anyChanged = false;
        for (TouchDevice& device : listed) {
            if (device.kind == TouchDeviceKind::magicMouse ||
                device.state == TouchDeviceState::missing || !choose) {
                continue;
            }
            const TouchDeviceState wanted =
                choose(device) ? TouchDeviceState::connected : TouchDeviceState::off;
            anyChanged = anyChanged || wanted != device.state;
            device.state = wanted;
        }
        return anyChanged;
    }

    std::vector<TouchDevice> devices() const override { return listed; }

    std::uint64_t deviceForSender(std::uint64_t senderID) override {
        ++senderQuestions;
        const auto found = senders.find(senderID);
        if (found == senders.end()) {
            return 0;
        }
        for (const TouchDevice& device : listed) {
            if (device.id == found->second && device.state == TouchDeviceState::connected &&
                device.kind != TouchDeviceKind::magicMouse) {
                return device.id;
            }
        }
        return 0;
    }

    bool watch(std::function<void()> whenChanged) override {
        changed = std::move(whenChanged);
        return true;
    }

    // A frame of `device`, handed over only while it is in use, as the sensor does.
    void send(std::uint64_t device, std::vector<std::pair<float, float>> contacts) {
        ContactFrame frame;
        frame.device = device;
        for (const auto& [x, y] : contacts) {
            frame.ids.at(frame.count) = static_cast<std::int32_t>(frame.count + 1);
            frame.xs.at(frame.count) = x;
            frame.ys.at(frame.count) = y;
            ++frame.count;
        }
        for (const TouchDevice& listedDevice : listed) {
            if (listedDevice.id == device && listedDevice.state == TouchDeviceState::connected &&
                callback != nullptr) {
                callback(frame);
            }
        }
    }

    // The device leaves: listed as missing, and the watchers told.
    void leave(std::uint64_t device) {
        for (TouchDevice& listedDevice : listed) {
            if (listedDevice.id == device) {
                listedDevice.state = TouchDeviceState::missing;
            }
        }
        if (changed) {
            changed();
        }
    }

    std::vector<TouchDevice> listed;
    std::map<std::uint64_t, std::uint64_t> senders;  // sender id → device id
    DeviceFrameCallback callback = nullptr;
    Choice choose;
    std::function<void()> changed;
    // What else a refresh brings up to date, as the sensor's Magic Mouse does in the program.
    std::function<void()> onRefresh;
    int refreshes = 0;
    int senderQuestions = 0;
};

}  // namespace tactora::testing
