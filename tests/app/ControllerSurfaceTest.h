#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "app/ControllerHarness.h"

namespace tactora::testing {

// A launched program with gestures on and the surface texts in the string table: what the live
// view's and the menu-bar feedback's tests start from.
class ControllerSurfaceTest : public ::testing::Test {
  protected:
    void SetUp() override {
        StringsTable::Entries entries = testTable()->entries();
        entries.insert({{"finger.many", "%d fingers"},
                        {"surface.idle", "%d | none"},
                        {"surface.gesture", "%d | %@"},
                        {"surface.action", "%d | %@ | %@"},
                        {"action.copy", "Copy"},
                        {"action.right", "Right click"}});
        setStringTable(std::make_shared<const StringsTable>(entries));
        initializeGlobals();
        h.launchAndSwitchOn();
    }

    // The window comes on screen, as the window server reports it.
    void showWindow() { h.surface.setVisible(true); }

    const SurfaceSnapshot& shown() const { return h.surface.shown; }

    // Moves virtual time to exactly `moment`, running what falls due by then.
    void runUntil(double moment) {
        h.clock.now = moment;
        h.queue.runReady();
    }

    ControllerHarness h;
};

}  // namespace tactora::testing
