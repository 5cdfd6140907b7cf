#pragma once

#include <cstdint>

namespace tactora {

// The index of an entry of the action catalogue, as stored in a profile's gesture slots.
using ActionIndex = std::int64_t;

namespace action {
inline constexpr ActionIndex defaultAction = 0;  // leave the gesture to the system
inline constexpr ActionIndex left = 1;
inline constexpr ActionIndex right = 2;
inline constexpr ActionIndex middle = 3;
inline constexpr ActionIndex doubleClick = 4;
inline constexpr ActionIndex copy = 5;
inline constexpr ActionIndex paste = 6;
inline constexpr ActionIndex cut = 7;
inline constexpr ActionIndex undo = 8;
inline constexpr ActionIndex redo = 9;
inline constexpr ActionIndex back = 10;
inline constexpr ActionIndex forward = 11;
inline constexpr ActionIndex missionControl = 12;
inline constexpr ActionIndex showDesktop = 13;
inline constexpr ActionIndex custom = 14;  // performs the slot's recorded shortcut
inline constexpr ActionIndex count = 15;

constexpr bool isValid(ActionIndex index) {
    return index >= 0 && index < count;
}
}  // namespace action

}  // namespace tactora
