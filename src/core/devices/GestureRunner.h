#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/app/ControllerEvents.h"
#include "core/gestures/GestureDispatchContext.h"
#include "core/platform/MouseButton.h"

namespace tactora {

// What a gesture slot of the active profile holds: its action, the shortcut of the custom
// action and the value of a further action.
struct SlotAction {
    ActionIndex action = action::defaultAction;
    std::optional<SavedShortcut> shortcut;
    std::string value;
};

// What the gestures of the devices beside the Magic Mouse reach the controller through: its
// dispatch guard, the active profile's trackpad slots, its actions and its posted buttons, so
// that a trackpad's gesture runs exactly as the mouse's would. Main thread only.
class GestureRunner {
  public:
    virtual ~GestureRunner() = default;

    // Whether gestures may run now (switched on, nothing being configured, another application
    // in front).
    virtual bool canRunGestures() const = 0;
    // The moment a gesture was recognised in, and whether it is still current.
    virtual GestureDispatchContext dispatchContext() = 0;
    virtual bool mayDispatch(const GestureDispatchContext& context) = 0;

    // The active profile's trackpad slot `slot` (see GestureSlot.h).
    virtual SlotAction trackpadSlot(std::int64_t slot) = 0;
    // Carries out `action` for a gesture of `fingers` fingers.
    virtual void perform(const SlotAction& action, ActionOrigin origin, std::int64_t fingers) = 0;
    // Posts one marked mouse button event at the pointer.
    virtual void post(MouseButton button, bool down, std::uint64_t flags) = 0;

  protected:
    GestureRunner() = default;
    GestureRunner(const GestureRunner&) = default;
    GestureRunner& operator=(const GestureRunner&) = default;
    GestureRunner(GestureRunner&&) = default;
    GestureRunner& operator=(GestureRunner&&) = default;
};

}  // namespace tactora
