#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "core/app/ControllerObserver.h"
#include "core/app/GestureSwitch.h"
#include "core/app/StatusDisplay.h"
#include "core/keepon/KeepOn.h"
#include "core/keepon/OtherSurfaces.h"
#include "core/keepon/PermissionMemory.h"
#include "core/platform/Clock.h"
#include "core/platform/DeviceWatcher.h"
#include "core/platform/LoginItem.h"
#include "core/platform/LoginItemStatus.h"
#include "core/platform/MainQueue.h"
#include "core/platform/PermissionResetTool.h"
#include "core/platform/Permissions.h"
#include "core/platform/ProcessActivity.h"
#include "core/platform/Sensor.h"
#include "core/platform/SettingsView.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// What keeps gestures working by themselves: "Keep gestures on" (switching gestures back on
// after the program paused them, with cool-downs after the system disabled the event tap and
// retries after a wake), the mouse coming and going, the process activity held while gestures
// are on, "Open at login", the memory of granted permissions and their reset. It learns what
// happens as an observer of the controller and acts through its gesture switch; the decisions
// themselves are KeepOn's, PermissionMemory's and DeviceNotices'.
//
// Main thread only. Held by std::shared_ptr: work it schedules holds it weakly.
class GestureKeeper final : public ControllerObserver,
                            public std::enable_shared_from_this<GestureKeeper> {
    struct Passkey {
        explicit Passkey() = default;
    };

  public:
    // A reconnect after a device arrived or left waits this long, so that a burst of device
    // notices (and a mouse still settling) leads to one reconnect.
    static constexpr double deviceSettle = 0.5;
    // A reset takes well under a second; one that hangs is stopped after this many seconds.
    static constexpr double resetTimeLimit = 5;

    // What it reaches the system through.
    struct Services {
        Clock& clock;
        MainQueue& queue;
        SettingsView& view;
        Permissions& permissions;
        Sensor& sensor;
        DeviceWatcher& devices;
        LoginItem& loginItem;
        ProcessActivity& activity;
        PermissionResetTool& resetTool;
        std::shared_ptr<Preferences> defaults;
        // The touch devices beside the Magic Mouse; null when there are none.
        OtherSurfaces* otherSurfaces = nullptr;
    };

    static std::shared_ptr<GestureKeeper> create(Services services, GestureSwitch& gestures,
                                                 StatusDisplay& display);
    GestureKeeper(Passkey /*unused*/, Services services, GestureSwitch& gestures,
                  StatusDisplay& display);

    // The "Keep gestures on" checkbox's action: takes its state, and the master switch's as
    // the user's choice.
    void toggleKeepOn();
    // A multitouch mouse arrived while none is connected: reconnects deviceSettle seconds later,
    // then retries as after a wake until it is connected. A mouse arriving while another one
    // works changes nothing. While other touch devices are in use the sensor follows it
    // instead, without pausing them.
    void deviceArrived(std::uint64_t device);
    // The connected mouse left: pauses and reconnects, deviceSettle seconds later. Another
    // device leaving changes nothing. While other touch devices are in use the sensor follows
    // it instead, without pausing them.
    void deviceLeft(std::uint64_t device);
    // The "Open at login" checkbox's action: registers or unregisters the login item.
    void toggleLoginItem();
    // Opens the Login Items pane of System Settings, where a pending login item is approved.
    void openLoginItems();
    // Pauses gestures, then resets both permissions of this application with the system's
    // tool, off the main thread and resetTimeLimit seconds at most each; then asks again for the
    // first permission missing. A failed reset shows the tool's exit status, one that took too
    // long says so.
    void resetPermissions();

    const KeepOn& keepOn() const { return keepOn_; }

    void switchChosen(const SwitchNote& note) override;
    void switchChanged(const SwitchNote& note) override;
    void activeChanged(const ActiveNote& note) override;
    // Watches the devices and reads the login item's status once, after the start-up
    // reconnect's own status line, so that a login item waiting for approval is said.
    void launched(double time) override;
    void windowShown(const MomentNote& note) override;
    void woke(const MomentNote& note) override;
    void reconnected(const ReconnectNote& note) override;
    void permissionsPolled(const PermissionsNote& note) override;
    void refreshed(double time) override;

  private:
    void armIfWanted(bool announce);
    KeepOnWait missingForGestures() const;
    void showWait(KeepOnWait wait, const std::string& before);
    void waitAfterFailedTick();
    void coolDown(double seconds);
    void scheduleWakeRetry();
    // Follows the devices, or reconnects when a notice since the last one wanted it,
    // deviceSettle seconds from the first notice.
    void scheduleDeviceReconnect(bool reconnect);
    // Whether the sensor follows the mouse coming and going without a pause.
    bool followsBesideOthers() const;
    void syncActivity(bool on);
    // The login item's status is a query to a system service: read only when the window is
    // shown, the application becomes active, at launch, and after registering or unregistering.
    void refreshLoginItem();
    void resetNextPermission(std::size_t index, const std::string& bundleID);
    void permissionsReset();

    Services services_;
    GestureSwitch& gestures_;
    StatusDisplay& display_;
    KeepOn keepOn_;
    PermissionMemory permissionMemory_;
    bool activityHeld_ = false;
    bool deviceReconnectPending_ = false;
    bool deviceReconnectWanted_ = false;
    // The mouse the sensor connected at the last reconnect (or follow), 0 for none. Notices are
    // judged by it rather than by what the sensor says now: keeping the other devices' list
    // current may already have let go of a mouse that left.
    std::uint64_t mouse_ = 0;
    // The user's tick waiting to be applied: a tick that does not take says what it waits for.
    bool tickPending_ = false;
    // What the refresh under way found (accessibility, input monitoring), and what the one
    // before it found: only a change is acted on.
    std::pair<bool, bool> polled_{false, false};
    std::optional<std::pair<bool, bool>> lastPermissions_;
    std::optional<LoginItemStatus> loginStatus_;
};

}  // namespace tactora
