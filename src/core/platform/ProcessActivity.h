#pragma once

namespace tactora {

// Keeps the system from napping the process (deferring its timers and event handling) while
// gestures are on; the system may still sleep. Main thread only.
class ProcessActivity {
  public:
    virtual ~ProcessActivity() = default;

    // Begins the activity; the controller calls it only while none is held.
    virtual void begin() = 0;

    // Ends the activity begun last; the controller calls it only while one is held.
    virtual void end() = 0;
};

}  // namespace tactora
