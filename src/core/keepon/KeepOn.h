#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string>

#include "core/keepon/KeepOnWait.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// The decisions of "Keep gestures on": whether it is chosen, what the user last chose for the
// master switch (both kept in the user defaults, under keys of their own), what it waits for,
// how long the event tap cools down after the system disabled it, when it gives up, and when a
// wake that did not find the mouse tries again. It schedules nothing itself: the controller
// asks it and carries out the answer. Main thread only.
class KeepOn {
  public:
    static constexpr const char* enabledKey = "keepGesturesOn";
    static constexpr const char* wantedKey = "gesturesWanted";

    // The cool-down after the first, second and every later disable of the event tap.
    static constexpr std::array<double, 3> coolDowns{1.0, 5.0, 30.0};
    // This many disables within disableWindow seconds, and gestures stay paused.
    static constexpr std::size_t disableLimit = 3;
    static constexpr double disableWindow = 60;
    // Disables further apart than this start the cool-down ladder again.
    static constexpr double ladderMemory = 600;
    // After a wake whose reconnect did not find the mouse: wait this long before each further
    // attempt, one after the other.
    static constexpr std::array<double, 3> wakeRetries{1.0, 3.0, 8.0};

    // Reads both choices; anything but the integer 1 reads as off.
    explicit KeepOn(std::shared_ptr<Preferences> defaults);

    bool enabled() const { return enabled_; }
    // The checkbox: turning it on takes the master switch's state `gesturesOn` as the user's
    // choice. Either way nothing waits any longer. True when it waited for the sensor, a
    // permission or the event tap: the status line that said so no longer holds.
    bool setEnabled(bool on, bool gesturesOn);

    // The user's last choice of the master switch, kept while enabled() is true.
    bool wanted() const { return wanted_; }
    // The user ticked or unticked the switch, or chose Pause. Cancels any scheduled re-arm; a
    // tick also forgets earlier disables of the tap and ends a stop. True when an untick ended
    // a wait for the sensor, a permission or the event tap: the status line that said so no
    // longer holds.
    bool userChose(bool on);

    // Whether gestures should be switched back on now: chosen, wanted, and neither cooling
    // down nor stopped.
    bool shouldArm() const;

    KeepOnWait waiting() const { return waiting_; }
    // Whether the status line says what it waits for ("… once the mouse is connected"): the
    // sensor, a permission or the event tap.
    static bool waitIsAnnounced(KeepOnWait wait);
    // Records what it waits for; true when that differs from before (the status line then
    // says it, once).
    bool setWaiting(KeepOnWait wait);

    // The system disabled the tap at `now` (seconds of uptime) while the user wanted gestures:
    // the cool-down before re-enabling it, or nothing when the limit is reached (then it waits
    // for the user: stopped). Cancels any earlier scheduled re-arm. Once stopped, later notices
    // change nothing until the user ticks the switch.
    std::optional<double> tapDisabled(double now);
    // A scheduled cool-down ended; false when something since made it moot.
    bool coolDownEnded(std::uint64_t epoch);

    // Scheduled re-arms carry this; anything that makes them moot changes it.
    std::uint64_t epoch() const { return epoch_; }

    // The system woke: the wake retries start from the first delay.
    void woke();
    // A mouse arrived: its touch stream is often not ready at the first notice, so the same
    // retries as after a wake start.
    void deviceArrived() { woke(); }
    // The next delay of the wake retries, or nothing when they are used up or not due (no
    // wake since the mouse was last found).
    std::optional<double> nextWakeRetry();
    // Whether a scheduled wake retry is still the latest one.
    bool wakeRetryCurrent(std::uint64_t retryEpoch) const { return retryEpoch == wakeEpoch_; }
    std::uint64_t wakeEpoch() const { return wakeEpoch_; }
    // The mouse was found: no further wake retries.
    void sensorConnected();

  private:
    void store(const char* key, bool value);
    void cancelScheduled() { ++epoch_; }

    std::shared_ptr<Preferences> defaults_;
    bool enabled_ = false;
    bool wanted_ = false;
    KeepOnWait waiting_ = KeepOnWait::nothing;
    std::deque<double> disables_;
    std::uint64_t epoch_ = 0;
    std::optional<std::size_t> wakeRetry_;
    std::uint64_t wakeEpoch_ = 0;
};

}  // namespace tactora
