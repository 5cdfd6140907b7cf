#pragma once

namespace tactora {

// The two families of touch surface a profile maps the eight gestures for: the Magic Mouse, and
// trackpads (a Magic Trackpad and a Mac's built-in trackpad share one set).
enum class SurfaceKind {
    mouse,
    trackpad,
};

}  // namespace tactora
