#pragma once

namespace tactora {

// How a recognised gesture was made: a tap, or a physical click with fingers resting.
enum class GestureKind {
    tap,
    click,
};

}  // namespace tactora
