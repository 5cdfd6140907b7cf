#pragma once

#include <memory>
#include <string>

#include "app/ControllerHarness.h"
#include "app/fakes/FakeActionValuePicker.h"
#include "app/fakes/FakeOpener.h"
#include "app/fakes/FakeProcessLauncher.h"
#include "app/fakes/FakeSystemEventPoster.h"
#include "core/moreactions/ExtraActions.h"

namespace tactora::testing {

// The texts of the extra actions whose arguments the tests read back, beside the controller
// harness's own.
inline std::shared_ptr<const StringsTable> extraActionsTable() {
    StringsTable::Entries entries = {
        {"live", "%d | %@ | %@"},
        {"gesture.tap", "tap %d"},
        {"gesture.click", "click %d"},
        {"error.action", "%@ failed %d"},
        {"profile.default", "Default"},
        {"action.app.expose", "App Exposé"},
        {"extra.missing.app", "no app %@"},
        {"extra.missing.file", "no file %@"},
        {"extra.missing.url", "no url %@"},
        {"extra.missing.shortcut", "no shortcut %@"},
        {"extra.failed.open", "not opened %@"},
        {"extra.failed.shortcut", "shortcut %@ failed %d"},
        {"extra.timeout.shortcut", "shortcut %@ too long"},
        {"extra.failed.start", "not started %@"},
        {"extra.row.missing", "missing %@"},
        {"extra.url.invalid", "bad url %@"},
    };
    return std::make_shared<const StringsTable>(std::move(entries));
}

// The running program on fakes with the further actions, carried out through fakes of their
// own.
class ExtraActionsHarness : public ControllerHarness {
  public:
    ExtraActionsHarness() {
        setStringTable(extraActionsTable());
        clearApplicationController();
        controller.reset();
        app.reset();
        app = std::make_unique<Tactora>(
            services(), ExtraActionPlatform{systemEvents, opener, processes, picker}, views());
        controller = app->sharedController();
        setApplicationController(controller);
    }
    // The program goes before the fakes it reaches.
    ~ExtraActionsHarness() {
        clearApplicationController();
        controller.reset();
        app.reset();
    }
    ExtraActionsHarness(const ExtraActionsHarness&) = delete;
    ExtraActionsHarness& operator=(const ExtraActionsHarness&) = delete;
    ExtraActionsHarness(ExtraActionsHarness&&) = delete;
    ExtraActionsHarness& operator=(ExtraActionsHarness&&) = delete;

    ExtraActions& extras() { return *app->extraActions(); }

    void assignExtra(std::int64_t slot, ExtraAction action, const std::string& value = {}) {
        controller->profiles().setExtra({action, value}, slot);
    }

    // A tap with `fingers` fingers, performed after the wait.
    void tapAndWait(std::int32_t fingers) {
        tap(fingers);
        queue.advance(Controller::tapDelay + 0.01);
    }

    FakeOpener opener;
    FakeProcessLauncher processes;
    FakeSystemEventPoster systemEvents;
    FakeActionValuePicker picker;
};

}  // namespace tactora::testing
