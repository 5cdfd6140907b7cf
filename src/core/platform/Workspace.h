#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tactora {

// The running applications and this application's place among them. Main thread only.
class Workspace {
  public:
    virtual ~Workspace() = default;

    // The process id of the frontmost application, or nothing when there is none.
    virtual std::optional<std::int32_t> frontmostProcessID() const = 0;

    // The bundle identifier of the frontmost application, or nothing when there is none or it
    // has no identifier.
    virtual std::optional<std::string> frontmostBundleIdentifier() const = 0;

    // Whether this application is the active one.
    virtual bool isActive() const = 0;

    // The process ids of the running applications with this application's bundle identifier,
    // this process included, in the order the system lists them; empty when the bundle has no
    // identifier.
    virtual std::vector<std::int32_t> instanceProcessIDs() const = 0;

    // This process's id.
    virtual std::int32_t ownProcessID() const = 0;

    // Activates the running application with this process id, ignoring other applications.
    virtual void activateApplication(std::int32_t processID) = 0;

    // Activates this application, ignoring other applications.
    virtual void activate() = 0;

    // Opens `url` with the workspace (the System Settings addresses of the privacy panes).
    virtual void openURL(const std::string& url) = 0;

    // Asks this application to terminate; the shell then calls the controller's
    // applicationWillTerminate() before the process ends. Returns at once.
    virtual void terminate() = 0;

    // Calls `handler` on the main thread each time the system wakes from sleep, for the rest
    // of the process. Called once.
    virtual void observeWake(std::function<void()> handler) = 0;
};

}  // namespace tactora
