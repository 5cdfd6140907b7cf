#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "core/devices/GestureRunner.h"

namespace tactora::testing {

// The controller as the devices' gestures see it: trackpad slots the test sets, a guard the
// test opens and closes, and a record of what was carried out and posted.
class FakeGestureRunner final : public GestureRunner {
  public:
    struct Performed {
        ActionIndex action;
        ActionOrigin origin;
        std::int64_t fingers;
    };
    struct Posted {
        MouseButton button;
        bool down;
        std::uint64_t flags;
    };

    bool canRunGestures() const override { return canRun; }
    GestureDispatchContext dispatchContext() override {
        return {.generation = generation, .profile = {}, .targetPID = std::nullopt};
    }
    bool mayDispatch(const GestureDispatchContext& context) override {
        return canRun && context.generation == generation;
    }
    SlotAction trackpadSlot(std::int64_t slot) override {
        return slots.at(static_cast<std::size_t>(slot));
    }
    void perform(const SlotAction& action, ActionOrigin origin, std::int64_t fingers) override {
        performed.push_back({action.action, origin, fingers});
    }
    void post(MouseButton button, bool down, std::uint64_t flags) override {
        posted.push_back({button, down, flags});
    }

    bool canRun = true;
    std::int64_t generation = 0;
    std::array<SlotAction, 8> slots{};
    std::vector<Performed> performed;
    std::vector<Posted> posted;
};

}  // namespace tactora::testing
