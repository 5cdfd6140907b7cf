// What VoiceOver announces from the live view as the controller feeds it.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/ControllerHarness.h"

namespace tactora::testing {
namespace {

class SurfaceAnnouncementTest : public ::testing::Test {
  protected:
    void SetUp() override {
        StringsTable::Entries entries = testTable()->entries();
        entries.insert({{"surface.action", "%d | %@ | %@"},
                        {"action.copy", "Copy"},
                        {"action.right", "Right click"}});
        setStringTable(std::make_shared<const StringsTable>(entries));
        initializeGlobals();
        h.launchAndSwitchOn();
    }

    const std::vector<std::string>& announced() const { return h.surface.announcements; }

    ControllerHarness h;
};

TEST_F(SurfaceAnnouncementTest, ATapIsAnnouncedWhenRecognisedAndItsActionWhenItRuns) {
    h.assign(5, action::copy);
    h.surface.setVisible(true);
    h.tap(2);
    EXPECT_EQ(announced(), (std::vector<std::string>{"tap 2"}));

    h.queue.advance(Controller::tapDelay);
    EXPECT_EQ(announced(), (std::vector<std::string>{"tap 2", "Copy"}));

    // The refresh timer redraws for seconds more; nothing is announced again.
    h.queue.advance(3);
    EXPECT_EQ(announced().size(), 2U);
}

TEST_F(SurfaceAnnouncementTest, ARewrittenClickIsAnnouncedWithItsAction) {
    h.assign(1, action::right);
    h.surface.setVisible(true);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    // What the tap decided reaches the live view once its callback has returned.
    h.queue.runReady();

    EXPECT_EQ(announced(), (std::vector<std::string>{"click 2", "Right click"}));
}

TEST_F(SurfaceAnnouncementTest, NothingIsAnnouncedWhileTheWindowIsNotVisible) {
    h.assign(5, action::copy);
    h.tap(2);
    h.queue.advance(Controller::tapDelay);

    EXPECT_TRUE(announced().empty());
}

TEST_F(SurfaceAnnouncementTest, AGestureStillHighlightedWhenTheWindowComesUpIsAnnouncedOnce) {
    h.assign(5, action::copy);
    h.tap(2);
    h.queue.advance(Controller::tapDelay);
    h.surface.setVisible(true);

    EXPECT_EQ(announced(), (std::vector<std::string>{"0 | tap 2 | Copy"}));
    h.queue.advance(0.5);
    EXPECT_EQ(announced().size(), 1U);
}

TEST_F(SurfaceAnnouncementTest, AGestureOverBeforeTheWindowComesUpIsNotAnnounced) {
    h.assign(5, action::copy);
    h.tap(2);
    h.queue.advance(3);
    h.surface.setVisible(true);

    EXPECT_TRUE(announced().empty());
}

}  // namespace
}  // namespace tactora::testing
