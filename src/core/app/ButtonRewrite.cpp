#include "core/app/ButtonRewrite.h"

#include <cstdint>

#include "core/actions/MouseEventType.h"
#include "core/platform/EventTypes.h"

namespace tactora {

void rewriteButton(TapEvent& event, MouseButton button, bool down, bool drag) {
    const MouseMotion motion = drag   ? MouseMotion::drag
                               : down ? MouseMotion::down
                                      : MouseMotion::up;
    event.setType(mouseEventType(button, motion));
    event.setIntegerField(event::buttonNumber, static_cast<std::int64_t>(button));
}

}  // namespace tactora
