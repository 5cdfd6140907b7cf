#pragma once

namespace tactora {

// The time the controller measures taps, clicks and the live line against. Main thread only.
class Clock {
  public:
    virtual ~Clock() = default;

    // Seconds of system uptime: monotonic, never goes back, unaffected by changes of the
    // wall-clock time.
    virtual double uptime() const = 0;
};

}  // namespace tactora
