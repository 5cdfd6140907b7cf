#pragma once

#include <memory>

#include "core/profiles/Preferences.h"

namespace tactora {

// Remembers, in the user defaults, that each of the two permissions has been seen granted, so
// that a grant the system no longer honours (after an update or a rebuild) can be told apart
// from one never given. Main thread only.
class PermissionMemory {
  public:
    static constexpr const char* accessibilityKey = "permissions.accessibilitySeenGranted";
    static constexpr const char* inputMonitoringKey = "permissions.inputMonitoringSeenGranted";

    // Reads what earlier runs remembered; anything but the integer 1 reads as never granted.
    explicit PermissionMemory(std::shared_ptr<Preferences> defaults);

    // The permissions as they are now; remembers each one seen granted.
    void observe(bool accessibility, bool inputMonitoring);

    // Granted in an earlier run and not granted now.
    bool accessibilityStale(bool accessibilityNow) const;
    bool inputMonitoringStale(bool inputMonitoringNow) const;

    // Forgets both: after a reset they are asked for anew, not stale.
    void forget();

  private:
    void remember(const char* key, bool& seen);

    std::shared_ptr<Preferences> defaults_;
    bool accessibilityBefore_ = false;
    bool inputMonitoringBefore_ = false;
    bool accessibilitySeen_ = false;
    bool inputMonitoringSeen_ = false;
};

}  // namespace tactora
