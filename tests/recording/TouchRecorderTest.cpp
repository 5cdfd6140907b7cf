// The recorder through its own interface: told notes as the controller would tell them.
#include <gtest/gtest.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include "app/fakes/CallLog.h"
#include "app/fakes/FakeClock.h"
#include "app/fakes/FakeMainQueue.h"
#include "app/fakes/FakeSettingsView.h"
#include "app/fakes/FakeTouchDevices.h"
#include "app/fakes/FakeTraceSink.h"
#include "app/fakes/FakeWorkspace.h"
#include "core/app/ProfileSwitcher.h"
#include "core/devices/DeviceGestures.h"
#include "core/profiles/MemoryPreferences.h"
#include "core/recording/TouchRecorder.h"
#include "devices/FakeGestureRunner.h"
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

constexpr std::uint64_t trackpadID = 20;
constexpr std::uint64_t trackpadSender = 120;

// The recorder beside the gestures of a Magic Trackpad in use.
class TouchRecorderDevicesTest : public TouchRecorderTest {
  protected:
    void SetUp() override {
        devices.listed = {
            {.id = 10,
             .kind = TouchDeviceKind::magicMouse,
             .state = TouchDeviceState::connected,
             .error = 0,
             .name = "Magic Mouse"},
            {.id = trackpadID,
             .kind = TouchDeviceKind::magicTrackpad,
             .state = TouchDeviceState::off,
             .error = 0,
             .name = "Magic Trackpad"},
        };
        devices.senders = {{trackpadSender, trackpadID}};
        gestures->runThrough(runner);
        gestures->setUses(devices.listed[1], true);
        gestures->launched(clock.now);
        recorder.followDevices(gestures.get());
    }
    void TearDown() override { recorder.followDevices(nullptr); }

    // What the recording wrote after its opening lines.
    std::vector<std::string> written() const {
        std::vector<std::string> all = lines();
        all.erase(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(opening_));
        return all;
    }
    void startRecording() {
        recorder.recordTouches();
        opening_ = lines().size();
    }
    void trackpadFrame(std::vector<std::pair<float, float>> contacts) {
        devices.send(trackpadID, std::move(contacts));
        queue.runReady();
    }

    FakeMainQueue queue{clock};
    FakeTouchDevices devices;
    FakeGestureRunner runner;
    std::shared_ptr<DeviceGestures> gestures = std::make_shared<DeviceGestures>(
        DeviceGestureServices{.devices = devices,
                              .queue = queue,
                              .clock = clock,
                              .defaults = std::make_shared<MemoryPreferences>()});

  private:
    std::size_t opening_ = 0;
};

TEST_F(TouchRecorderDevicesTest, WritesATrackpadsFramesWithItsDeviceDeclaredFirst) {
    trackpadFrame({{0.5f, 0.25f}});  // before the recording: not written
    startRecording();
    trackpadFrame({{0.5f, 0.25f}, {0.75f, 0.5f}});
    clock.now += 0.5;
    trackpadFrame({});

    EXPECT_EQ(written(), (std::vector<std::string>{"1000.0 device 20 magic-trackpad Magic Trackpad",
                                                   "1000.0 frame @20 1:0.5,0.25 2:0.75,0.5",
                                                   "1000.5 frame @20"}));
}

TEST_F(TouchRecorderDevicesTest, WritesATrackpadsEventsWithItsDeviceAndOtherSendersAsBefore) {
    startRecording();
    recorder.mouseEventDecided({.type = event::leftMouseDown,
                                .button = 0,
                                .fromMouse = false,
                                .fate = MouseEventFate::rewritten,
                                .rewrittenTo = MouseButton::centre,
                                .time = clock.now,
                                .sender = trackpadSender});
    recorder.mouseEventDecided({.type = event::scrollWheel,
                                .button = 0,
                                .fromMouse = false,
                                .fate = MouseEventFate::passed,
                                .rewrittenTo = MouseButton::left,
                                .time = clock.now,
                                .sender = trackpadSender});
    recorder.mouseEventDecided({.type = event::leftMouseUp,
                                .button = 0,
                                .fromMouse = false,
                                .fate = MouseEventFate::passed,
                                .rewrittenTo = MouseButton::left,
                                .time = clock.now,
                                .sender = 999});
    recorder.mouseEventDecided({.type = event::rightMouseDown,
                                .button = 1,
                                .fromMouse = true,
                                .fate = MouseEventFate::passed,
                                .rewrittenTo = MouseButton::left,
                                .time = clock.now,
                                .sender = 1});

    EXPECT_EQ(written(),
              (std::vector<std::string>{"1000.0 device 20 magic-trackpad Magic Trackpad",
                                        "1000.0 left-down 0 @20", "1000.0 scroll @20",
                                        "1000.0 left-up 0 other", "1000.0 right-down 1 mouse"}));
}

TEST_F(TouchRecorderDevicesTest, WritesTheUsersChoiceOfATrackpadAndNothingOfItOnceOff) {
    startRecording();
    clock.now += 1;
    gestures->setUses(devices.listed[1], false);
    trackpadFrame({{0.5f, 0.5f}});
    recorder.mouseEventDecided({.type = event::leftMouseDown,
                                .button = 0,
                                .fromMouse = false,
                                .fate = MouseEventFate::passed,
                                .rewrittenTo = MouseButton::left,
                                .time = clock.now,
                                .sender = trackpadSender});
    clock.now += 1;
    gestures->setUses(devices.listed[1], true);

    EXPECT_EQ(written(), (std::vector<std::string>{"1001.0 device 20 magic-trackpad Magic Trackpad",
                                                   "1001.0 use @20 off", "1001.0 left-down 0 other",
                                                   "1002.0 use @20 on"}));
}

TEST_F(TouchRecorderDevicesTest, ARecordingOfTheMouseAloneNamesNoDevice) {
    startRecording();
    const std::vector<Finger> fingers = {Finger(1, 0.5, 0.5)};
    recorder.frameReceived({.fingers = fingers, .shapes = {}, .time = clock.now});
    recorder.mouseEventDecided({.type = event::leftMouseDown,
                                .button = 0,
                                .fromMouse = true,
                                .fate = MouseEventFate::passed,
                                .rewrittenTo = MouseButton::left,
                                .time = clock.now,
                                .sender = 1});
    recorder.frameReceived({.fingers = {}, .shapes = {}, .time = clock.now});

    EXPECT_EQ(written(), (std::vector<std::string>{"1000.0 frame 1:0.5,0.5",
                                                   "1000.0 left-down 0 mouse", "1000.0 frame"}));
}

TEST_F(TouchRecorderDevicesTest, EachRecordingDeclaresItsDevicesAgain) {
    startRecording();
    trackpadFrame({{0.5f, 0.5f}});
    recorder.recordTouches();
    startRecording();
    trackpadFrame({});

    EXPECT_EQ(written(), (std::vector<std::string>{"1000.0 device 20 magic-trackpad Magic Trackpad",
                                                   "1000.0 frame @20"}));
}

}  // namespace
}  // namespace tactora::testing
