#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "core/app/ControllerEvents.h"
#include "core/gestures/Finger.h"
#include "core/misfire/MisfireOptions.h"
#include "core/platform/ContactShape.h"

namespace tactora {

// Finds the touches that the options against accidents hide from the recogniser altogether:
// when every contact of a touch is left out (it landed in an edge band, or it is larger than a
// fingertip while only fingertips count), nothing reaches the recogniser and the controller has
// nothing to tell, yet the user made a touch. Fed the frames as the sensor delivered them, it
// says so at the end of such a touch, with the reason, judged by the same pure rules as the
// guard's. Main thread only; allocates nothing.
class UnseenTouches {
  public:
    // One frame as the sensor delivered it; `shapes` is empty or one per finger. At the end of a
    // touch of which no contact was kept, why none was.
    std::optional<DropReason> frame(std::span<const Finger> fingers,
                                    std::span<const std::optional<ContactShape>> shapes,
                                    const MisfireOptions& options);

  private:
    struct Contact {
        std::int64_t id = 0;
        std::optional<DropReason> leftOut;
    };
    static constexpr std::size_t capacity = 16;

    const Contact* find(std::int64_t id) const;

    std::array<Contact, capacity> contacts_{};
    std::size_t count_ = 0;
    bool touching_ = false;
    bool kept_ = false;  // some contact of the touch reached the recogniser
    std::optional<DropReason> reason_;
};

}  // namespace tactora
