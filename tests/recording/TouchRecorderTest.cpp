// The recorder through its own interface: told notes as the controller would tell them.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "app/fakes/CallLog.h"
#include "app/fakes/FakeClock.h"
#include "app/fakes/FakeSettingsView.h"
#include "app/fakes/FakeTraceSink.h"
#include "app/fakes/FakeWorkspace.h"
#include "core/app/ProfileSwitcher.h"
#include "core/profiles/MemoryPreferences.h"
#include "core/recording/TouchRecorder.h"
#include "support/RecordedStatusDisplay.h"

namespace tactora::testing {
namespace {

class StoreOnly final : public ProfileSwitcher {
  public:
    ProfileStore& profiles() override { return store; }
    void switchProfileAutomatically(const Uuid& id) override { store.activate(id); }
    void refreshProfileUI() override {}
    void dropPendingWork() override {}
    bool pressesHeld() override { return false; }
    void tellFrontApplication(const FrontApplicationNote& /*note*/) override {}

    ProfileStore store{std::make_shared<MemoryPreferences>(), "Default"};
};

class TouchRecorderTest : public ::testing::Test {
  protected:
    std::vector<std::string> lines() const {
        std::vector<std::string> result;
        std::istringstream stream(sink.files.back());
        for (std::string line; std::getline(stream, line);) {
            result.push_back(line);
        }
        return result;
    }

    CallLog log;
    FakeClock clock;
    FakeTraceSink sink;
    FakeWorkspace workspace{log};
    FakeSettingsView view{log};
    RecordedStatusDisplay display;
    StoreOnly switcher;
    TouchRecorder recorder{sink, clock, workspace, view, display, switcher};
};

TEST_F(TouchRecorderTest, OffUntilAskedAndThenItSaysSoOnTheLiveLineAndInTheMenu) {
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_FALSE(recorder.wantsMouseEvents());
    EXPECT_EQ(display.entries.back().title, "menu.trace.start");

    recorder.recordTouches();
    EXPECT_TRUE(recorder.wantsMouseEvents());
    EXPECT_EQ(display.liveNote, "trace.live");
    EXPECT_EQ(display.entries.back().title, "menu.trace.stop");
    EXPECT_EQ(display.refreshes, 1);

    recorder.recordTouches();
    EXPECT_FALSE(sink.open);
    EXPECT_EQ(display.liveNote, "");
    EXPECT_EQ(display.entries.back().title, "menu.trace.start");
}

TEST_F(TouchRecorderTest, WritesMouseEventsButOnlyTheUsersChoiceOfProfile) {
    recorder.recordTouches();
    const std::size_t header = lines().size();
    recorder.mouseEventDecided(
        {event::leftMouseDown, 0, true, MouseEventFate::swallowed, MouseButton::left, clock.now});
    recorder.profileSelected({"5F3A0C1E-0000-4000-8000-000000000001", false, clock.now});
    recorder.profileSelected({"5F3A0C1E-0000-4000-8000-000000000002", true, clock.now});

    const std::vector<std::string> written = lines();
    ASSERT_EQ(written.size(), header + 2);
    EXPECT_EQ(written[header], "1000.0 left-down 0 mouse");
    EXPECT_EQ(written[header + 1], "1000.0 profile 5F3A0C1E-0000-4000-8000-000000000002");
}

TEST_F(TouchRecorderTest, StopsAtItsTimeLimitWhenRefreshed) {
    recorder.recordTouches();
    recorder.refreshed(clock.now + TraceRecorder::longest - 1);
    EXPECT_TRUE(recorder.isRecording());
    recorder.refreshed(clock.now + TraceRecorder::longest);
    EXPECT_FALSE(recorder.isRecording());
}

}  // namespace
}  // namespace tactora::testing
