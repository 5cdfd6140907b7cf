#include "core/trace/TraceDevices.h"

namespace tactora::trace {

TraceDeviceKind traceKind(TouchDeviceKind kind) {
    switch (kind) {
        case TouchDeviceKind::magicMouse:
            return TraceDeviceKind::magicMouse;
        case TouchDeviceKind::magicTrackpad:
            return TraceDeviceKind::magicTrackpad;
        case TouchDeviceKind::builtInTrackpad:
            return TraceDeviceKind::builtInTrackpad;
        case TouchDeviceKind::other:
            break;
    }
    return TraceDeviceKind::other;
}

TouchDeviceKind touchKind(TraceDeviceKind kind) {
    switch (kind) {
        case TraceDeviceKind::magicMouse:
            return TouchDeviceKind::magicMouse;
        case TraceDeviceKind::magicTrackpad:
            return TouchDeviceKind::magicTrackpad;
        case TraceDeviceKind::builtInTrackpad:
            return TouchDeviceKind::builtInTrackpad;
        case TraceDeviceKind::other:
            break;
    }
    return TouchDeviceKind::other;
}

}  // namespace tactora::trace
