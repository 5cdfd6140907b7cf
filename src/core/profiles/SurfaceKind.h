#pragma once

namespace tactora {

// The two families of touch surface a profile maps gestures for: the Magic Mouse, and
// trackpads (the Magic Trackpad and a Mac's built-in trackpad share one set of gestures).
enum class SurfaceKind {
    mouse,
    trackpad,
};

}  // namespace tactora
