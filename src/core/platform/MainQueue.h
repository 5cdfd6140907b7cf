#pragma once

#include <functional>

namespace tactora {

// The main thread's serial queue. Work given to it runs on the main thread, one item at a
// time, in the order it falls due; items due at the same moment run in the order they were
// given. Closures that must not outlive the controller capture a std::weak_ptr to it.
class MainQueue {
  public:
    virtual ~MainQueue() = default;

    // Runs `work` soon, after the current call has returned; never inside this call.
    // The only member that may be called from any thread (the sensor's frames arrive this way).
    virtual void async(std::function<void()> work) = 0;

    // Runs `work` once, `seconds` from now (at least that late, never earlier). Main thread.
    virtual void after(double seconds, std::function<void()> work) = 0;

    // Runs `work` every `seconds`, starting `seconds` from now, for the rest of the process;
    // there is no way to stop it. Main thread.
    virtual void every(double seconds, std::function<void()> work) = 0;
};

}  // namespace tactora
