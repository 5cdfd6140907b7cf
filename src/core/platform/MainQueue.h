#pragma once

#include <functional>

#include "core/platform/ContactFrame.h"

namespace tactora {

// Receives one contact frame on the main thread.
using FrameReceiver = void (*)(const ContactFrame& frame);

// The main thread's serial queue. Work given to it runs on the main thread, one item at a
// time, in the order it falls due; items due at the same moment run in the order they were
// given. Closures that must not outlive the controller capture a std::weak_ptr to it.
class MainQueue {
  public:
    virtual ~MainQueue() = default;

    // Runs `work` soon, after the current call has returned; never inside this call.
    // The only member that may be called from any thread (the sensor's frames arrive this way).
    virtual void async(std::function<void()> work) = 0;

    // Runs `receive` with a copy of `frame` soon, in order with the work given to async(). May
    // be called from any thread. The frame travels by value inside the queued work itself, with
    // no closure around it, so that a frame costs the queue at most its one unit of work.
    virtual void asyncFrame(const ContactFrame& frame, FrameReceiver receive) = 0;

    // Runs `work` once, `seconds` from now (at least that late, never earlier). Main thread.
    virtual void after(double seconds, std::function<void()> work) = 0;

    // Runs `work` every `seconds`, starting `seconds` from now, for the rest of the process;
    // there is no way to stop it. A run may come up to a tenth of `seconds` late, so that the
    // system can gather it with other wake-ups. Main thread.
    virtual void every(double seconds, std::function<void()> work) = 0;
};

}  // namespace tactora
