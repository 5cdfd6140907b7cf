#pragma once

#include <cstdint>

#include "core/platform/EventTypes.h"

namespace tactora {

// The mouse event that the event tap is examining, open for reading and rewriting in place.
// Valid only during the controller's handle() call that receives it. Main thread only.
class TapEvent {
  public:
    virtual ~TapEvent() = default;

    // The integer value of event field `field` (see EventTypes.h).
    virtual std::int64_t integerField(EventField field) const = 0;

    virtual void setIntegerField(EventField field, std::int64_t value) = 0;

    // Changes the event's type; everything else about it stays.
    virtual void setType(EventType type) = 0;
    // Replaces the event's modifier flags (in the layout of ModifierFlags).
    virtual void setFlags(std::uint64_t flags) = 0;
};

}  // namespace tactora
