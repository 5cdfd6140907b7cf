#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/fakes/CallLog.h"
#include "app/fakes/FakeAdvancedSheetView.h"
#include "app/fakes/FakeAppShell.h"
#include "app/fakes/FakeClock.h"
#include "app/fakes/FakeDeviceWatcher.h"
#include "app/fakes/FakeDialogs.h"
#include "app/fakes/FakeEventPoster.h"
#include "app/fakes/FakeEventTap.h"
#include "app/fakes/FakeLoginItem.h"
#include "app/fakes/FakeMainQueue.h"
#include "app/fakes/FakeMoreSheetView.h"
#include "app/fakes/FakePermissionResetTool.h"
#include "app/fakes/FakePermissions.h"
#include "app/fakes/FakePointerDragger.h"
#include "app/fakes/FakeProcessActivity.h"
#include "app/fakes/FakeProfileFiles.h"
#include "app/fakes/FakeSecureInput.h"
#include "app/fakes/FakeSensor.h"
#include "app/fakes/FakeSettingsView.h"
#include "app/fakes/FakeSurfaceView.h"
#include "app/fakes/FakeTapEvent.h"
#include "app/fakes/FakeTouchDevices.h"
#include "app/fakes/FakeTraceSink.h"
#include "app/fakes/FakeWorkspace.h"
#include "core/app/ApplicationController.h"
#include "core/app/Controller.h"
#include "core/app/Globals.h"
#include "core/composition/Tactora.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "core/platform/EventTypes.h"
#include "core/profiles/MemoryPreferences.h"

namespace tactora::testing {

// The sender id of the Magic Mouse in these tests, and of some other pointing device.
inline constexpr std::uint64_t mouseSender = 0x1000A;
inline constexpr std::uint64_t otherSender = 0x2000B;

// Texts whose arguments the tests read back; every other key shows as itself.
inline std::shared_ptr<const StringsTable> testTable() {
    return std::make_shared<const StringsTable>(StringsTable::Entries{
        {"live", "%d | %@ | %@"},
        {"permissions", "AX %@ IM %@"},
        {"gesture.tap", "tap %d"},
        {"gesture.click", "click %d"},
        {"action.failed", "failed %d"},
        {"error.action", "%@ failed %d"},
        {"sensor.blocked", "blocked %d"},
        {"action.mission", "Mission Control"},
        {"action.desktop", "Show Desktop"},
        {"profile.default", "Default"},
        {"profile.automatic", "%@ (for %@)"},
        {"profile.delete.message", "delete %@"},
        {"apps.title", "apps of %@"},
        {"keep.cooldown", "cool %d"},
        {"reset.failed", "reset failed %d"},
        {"login.failed", "login failed %d"},
    });
}

// The running program (the controller and the parts beside it) wired to fakes, its controller
// installed as the application controller, on virtual time.
class ControllerHarness {
  public:
    ControllerHarness() : ControllerHarness(std::make_shared<MemoryPreferences>()) {}
    // On defaults that an earlier run left behind.
    explicit ControllerHarness(std::shared_ptr<MemoryPreferences> earlierDefaults)
        : defaults(std::move(earlierDefaults)) {
        sensor.mice.insert(mouseSender);
        setStringTable(testTable());
        initializeGlobals();
        app = std::make_unique<Tactora>(services(), views());
        controller = app->sharedController();
        setApplicationController(controller);
    }
    ~ControllerHarness() {
        clearApplicationController();
        app.reset();
        setStringTable(nullptr);
    }
    ControllerHarness(const ControllerHarness&) = delete;
    ControllerHarness& operator=(const ControllerHarness&) = delete;
    ControllerHarness(ControllerHarness&&) = delete;
    ControllerHarness& operator=(ControllerHarness&&) = delete;

    Controller& c() { return *controller; }
    Tactora& a() { return *app; }

    // Everything the controller reaches the platform through, for a second controller on the
    // same fakes.
    ControllerServices services() {
        return {clock,     queue,   workspace, permissions, poster,    eventTap,
                sensor,    shell,   view,      dialogs,     traceSink, defaults,
                surface,   files,   devices,   loginItem,   activity,  secureInput,
                resetTool, dragger, nullptr,   nullptr,     nullptr,   nullptr};
    }

    // The views of the parts beside the controller.
    PartViews views() {
        return {.advanced = &advancedView, .moreSheet = &moreSheet, .touchDevices = &touchDevices};
    }

    // Launches, then ticks the master switch as the user would.
    void launchAndSwitchOn() {
        controller->applicationDidFinishLaunching();
        view.enabled = true;
        controller->toggle();
        log.clear();
    }

    // One contact frame of fingers 1...n (at x positions starting at `x`), through the
    // sensor's callback and the main queue.
    void frame(std::int32_t fingers, float x = 0.5F) {
        std::vector<std::int32_t> ids;
        std::vector<float> xs;
        std::vector<float> ys;
        for (std::int32_t i = 0; i < fingers; ++i) {
            ids.push_back(i + 1);
            xs.push_back(x);
            ys.push_back(0.5F);
        }
        Controller::frameCallback(fingers, ids.data(), xs.data(), ys.data(), nullptr);
        queue.runReady();
    }

    // Fingers down now, lifted `duration` seconds later.
    void tap(std::int32_t fingers, double duration = 0.1) {
        frame(fingers);
        queue.advance(duration);
        frame(0);
    }

    // Fingers that land and stay, as they rest on the surface while clicking.
    void rest(std::int32_t fingers) { frame(fingers); }

    EventDisposition send(FakeTapEvent& event) { return controller->handle(event.type, event); }

    FakeTapEvent mouseEvent(EventType type, std::int64_t button = 0) {
        return FakeTapEvent(type, button, mouseSender);
    }

    void assign(std::int64_t slot, ActionIndex action) {
        controller->profiles().setAction(action, slot);
    }

    std::size_t performedCount() const { return poster.posted.size() + poster.dockRequests.size(); }

    CallLog log;
    FakeClock clock;
    FakeMainQueue queue{clock};
    FakeWorkspace workspace{log};
    FakePermissions permissions{log};
    FakeEventPoster poster;
    FakeEventTap eventTap{log};
    FakeSensor sensor{log};
    FakeAppShell shell{log};
    FakeSettingsView view{log};
    FakeDialogs dialogs{log};
    FakeTraceSink traceSink;
    FakeSurfaceView surface;
    std::shared_ptr<MemoryPreferences> defaults;
    FakeProfileFiles files{log};
    FakeDeviceWatcher devices;
    FakeLoginItem loginItem;
    FakeProcessActivity activity;
    FakeSecureInput secureInput;
    FakePermissionResetTool resetTool;
    FakePointerDragger dragger;
    FakeAdvancedSheetView advancedView;
    FakeMoreSheetView moreSheet;
    // Lists nothing unless a test adds devices before launching.
    FakeTouchDevices touchDevices;
    std::unique_ptr<Tactora> app;
    std::shared_ptr<Controller> controller;
};

}  // namespace tactora::testing
