#pragma once

#include "core/platform/TouchDevices.h"
#include "core/trace/TraceLine.h"

// A touch device's kind as a trace names it, and back: what the recorder writes and the replay
// reads. Pure.
namespace tactora::trace {

TraceDeviceKind traceKind(TouchDeviceKind kind);
TouchDeviceKind touchKind(TraceDeviceKind kind);

}  // namespace tactora::trace
