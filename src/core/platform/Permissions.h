#pragma once

namespace tactora {

// The two privacy permissions the program needs. Main thread only.
class Permissions {
  public:
    virtual ~Permissions() = default;

    // Whether the process is trusted for Accessibility (needed to post events).
    virtual bool accessibilityTrusted() const = 0;

    // Whether Input Monitoring is granted (needed for the event tap), without prompting.
    virtual bool inputMonitoringGranted() const = 0;

    // Asks for Accessibility trust with the system's own prompt; the answer arrives later, so
    // nothing is returned.
    virtual void requestAccessibility() = 0;

    // Asks for Input Monitoring with the system's own prompt; nothing is returned.
    virtual void requestInputMonitoring() = 0;
};

}  // namespace tactora
