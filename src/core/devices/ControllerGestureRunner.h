#pragma once

#include <cstdint>

#include "core/app/Controller.h"
#include "core/devices/GestureRunner.h"

namespace tactora {

// The controller as the gestures of the devices beside the Magic Mouse reach it: its dispatch
// guard, the active profile's trackpad slots, its actions and its posted buttons. Main thread
// only.
class ControllerGestureRunner final : public GestureRunner {
  public:
    // `controller` is not owned and must outlive this.
    explicit ControllerGestureRunner(Controller& controller) : controller_(controller) {}

    bool canRunGestures() const override { return controller_.canRunGestures(); }
    GestureDispatchContext dispatchContext() override { return controller_.dispatchContext(); }
    bool mayDispatch(const GestureDispatchContext& context) override {
        return controller_.mayDispatch(context);
    }
    SlotAction trackpadSlot(std::int64_t slot) override;
    void perform(const SlotAction& action, ActionOrigin origin, std::int64_t fingers) override {
        controller_.perform(action.action, action.shortcut, origin, fingers, action.value);
    }
    void post(MouseButton button, bool down, std::uint64_t flags) override {
        controller_.post(button, down, 1, flags);
    }

  private:
    Controller& controller_;
};

}  // namespace tactora
