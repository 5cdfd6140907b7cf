#include "core/devices/DeviceGestures.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "../app/fakes/FakeClock.h"
#include "../app/fakes/FakeMainQueue.h"
#include "../app/fakes/FakeTapEvent.h"
#include "../app/fakes/FakeTouchDevices.h"
#include "FakeGestureRunner.h"
#include "core/app/Controller.h"
#include "core/profiles/GestureSlot.h"
#include "core/profiles/MemoryPreferences.h"

namespace tactora::testing {
namespace {

constexpr std::uint64_t mouseID = 10;
constexpr std::uint64_t trackpadID = 20;
constexpr std::uint64_t builtInID = 30;
constexpr std::uint64_t mouseSender = 110;
constexpr std::uint64_t trackpadSender = 120;
constexpr std::uint64_t builtInSender = 130;

using Contacts = std::vector<std::pair<float, float>>;

// Writes down what the devices' gestures tell, one line each.
class RecordingWatcher final : public DeviceGestureWatcher {
  public:
    void recognised(std::uint64_t device, GestureKind kind, std::int64_t fingers) override {
        lines.push_back((kind == GestureKind::tap ? "tap " : "click ") + std::to_string(fingers) +
                        " @" + std::to_string(device));
    }
    void rewritten(std::uint64_t device, ActionIndex action, MouseButton button) override {
        lines.push_back("action " + std::to_string(action) + " button " +
                        std::to_string(static_cast<int>(button)) + " @" + std::to_string(device));
    }

    std::vector<std::string> lines;
};

// Writes down, besides, the frames, the choices and the actions carried out for a device, and
// how many actions the runner had carried out when each action began and ended.
class FullWatcher final : public DeviceGestureWatcher {
  public:
    explicit FullWatcher(const FakeGestureRunner& runner) : runner_(runner) {}

    void recognised(std::uint64_t /*device*/, GestureKind /*kind*/,
                    std::int64_t /*fingers*/) override {}
    void rewritten(std::uint64_t /*device*/, ActionIndex /*action*/,
                   MouseButton /*button*/) override {}
    void frameReceived(const ContactFrame& frame, double time) override {
        lines.push_back("frame " + std::to_string(frame.count) + " @" +
                        std::to_string(frame.device) + " at " + std::to_string(time));
    }
    void useChosen(const TouchDevice& device, bool use, double time) override {
        lines.push_back(std::string("use ") + (use ? "on" : "off") + " @" +
                        std::to_string(device.id) + " at " + std::to_string(time));
    }
    void actionBegins(std::uint64_t device) override {
        lines.push_back("begins @" + std::to_string(device) + " after " +
                        std::to_string(runner_.performed.size()));
    }
    void actionEnded() override {
        lines.push_back("ended after " + std::to_string(runner_.performed.size()));
    }

    std::vector<std::string> lines;

  private:
    const FakeGestureRunner& runner_;
};

Contacts fingers(int count) {
    Contacts contacts;
    for (int i = 0; i < count; ++i) {
        contacts.emplace_back(0.2f + 0.15f * static_cast<float>(i), 0.5f);
    }
    return contacts;
}

class DeviceGesturesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        devices.listed = {
            {.id = mouseID,
             .kind = TouchDeviceKind::magicMouse,
             .state = TouchDeviceState::connected,
             .name = "Magic Mouse"},
            {.id = trackpadID, .kind = TouchDeviceKind::magicTrackpad, .name = "Magic Trackpad"},
            {.id = builtInID, .kind = TouchDeviceKind::builtInTrackpad, .name = "Apple Internal"},
        };
        devices.senders = {
            {mouseSender, mouseID}, {trackpadSender, trackpadID}, {builtInSender, builtInID}};
        gestures = std::make_shared<DeviceGestures>(DeviceGestureServices{
            .devices = devices, .queue = queue, .clock = clock, .defaults = defaults});
        gestures->runThrough(runner);
    }

    void launchUsing(std::vector<std::uint64_t> ticked) {
        for (const TouchDevice& device : devices.listed) {
            if (std::ranges::find(ticked, device.id) != ticked.end()) {
                gestures->setUses(device, true);
            }
        }
        gestures->launched(clock.now);
    }

    // A frame of `device`, received on the main thread.
    void frame(std::uint64_t device, int count) {
        devices.send(device, fingers(count));
        queue.runReady();
    }

    // A touch of `count` fingers on `device`, lifted 0.1 s later.
    void tap(std::uint64_t device, int count) {
        frame(device, count);
        queue.advance(0.05);
        frame(device, count);
        queue.advance(0.05);
        frame(device, 0);
    }

    std::optional<EventDisposition> event(EventType type, std::uint64_t sender,
                                          std::int64_t button = 0) {
        last = std::make_unique<FakeTapEvent>(type, button, sender);
        return gestures->decide(type, *last);
    }

    FakeClock clock;
    FakeMainQueue queue{clock};
    FakeTouchDevices devices;
    FakeGestureRunner runner;
    std::shared_ptr<MemoryPreferences> defaults = std::make_shared<MemoryPreferences>();
    std::shared_ptr<DeviceGestures> gestures;
    std::unique_ptr<FakeTapEvent> last;
};

TEST_F(DeviceGesturesTest, AThreeFingerTrackpadTapRunsItsTrackpadSlotAfterTheTapsWait) {
    runner.slots.at(slot::forTap(3)).action = action::middle;
    launchUsing({trackpadID});

    tap(trackpadID, 3);
    queue.advance(Controller::tapDelay / 2);
    EXPECT_TRUE(runner.performed.empty());
    queue.advance(Controller::tapDelay);

    ASSERT_EQ(runner.performed.size(), 1u);
    EXPECT_EQ(runner.performed[0].action, action::middle);
    EXPECT_EQ(runner.performed[0].origin, ActionOrigin::tap);
    EXPECT_EQ(runner.performed[0].fingers, 3);
}

TEST_F(DeviceGesturesTest, TrackpadsAreUnusedUntilTickedAndTheirFramesChangeNothing) {
    runner.slots.at(slot::forTap(3)).action = action::middle;
    launchUsing({});

    EXPECT_EQ(devices.listed[1].state, TouchDeviceState::off);
    tap(trackpadID, 3);
    queue.advance(1.0);

    EXPECT_TRUE(runner.performed.empty());
    EXPECT_EQ(event(event::leftMouseDown, trackpadSender), std::nullopt);
}

TEST_F(DeviceGesturesTest,
       TheChoiceIsGivenBeforeTheFirstConnectionButNothingIsDecidedBeforeLaunch) {
    runner.slots.at(slot::forTap(3)).action = action::middle;
    gestures->setUses(devices.listed[1], true);

    // The launch's first connection starts what the choice accepts; the mouse is never asked.
    ASSERT_NE(devices.callback, nullptr);
    ASSERT_TRUE(devices.choose);
    EXPECT_TRUE(devices.choose(devices.listed[1]));
    EXPECT_FALSE(devices.choose(devices.listed[2]));
    EXPECT_FALSE(devices.choose(devices.listed[0]));
    EXPECT_EQ(devices.refreshes, 0);
    EXPECT_EQ(event(event::leftMouseDown, trackpadSender), std::nullopt);
}

TEST_F(DeviceGesturesTest, OthersAreInUseOnlyWhileATrackpadIsConnectedAndTicked) {
    EXPECT_FALSE(gestures->othersInUse());
    launchUsing({trackpadID});
    EXPECT_TRUE(gestures->othersInUse());

    devices.leave(trackpadID);

    EXPECT_FALSE(gestures->othersInUse());
}

TEST_F(DeviceGesturesTest, FingersOnTwoTrackpadsNeverMakeOneTap) {
    runner.slots.at(slot::forTap(2)).action = action::right;
    runner.slots.at(slot::forTap(3)).action = action::middle;
    runner.slots.at(slot::forTap(4)).action = action::copy;
    launchUsing({trackpadID, builtInID});

    // Two fingers on one and two on the other, interleaved within milliseconds.
    for (int step = 0; step < 3; ++step) {
        frame(trackpadID, 2);
        queue.advance(0.002);
        frame(builtInID, 2);
        queue.advance(0.03);
    }
    frame(trackpadID, 0);
    queue.advance(0.002);
    frame(builtInID, 0);
    queue.advance(0.5);

    ASSERT_EQ(runner.performed.size(), 2u);
    EXPECT_EQ(runner.performed[0].action, action::right);
    EXPECT_EQ(runner.performed[1].action, action::right);
}

TEST_F(DeviceGesturesTest, AClickOnTheSameTrackpadVetoesItsTapButAClickElsewhereDoesNot) {
    runner.slots.at(slot::forTap(3)).action = action::middle;
    launchUsing({trackpadID, builtInID});

    tap(trackpadID, 3);
    event(event::leftMouseDown, trackpadSender);
    event(event::leftMouseUp, trackpadSender);
    queue.advance(0.5);
    EXPECT_TRUE(runner.performed.empty());

    tap(builtInID, 3);
    event(event::leftMouseDown, trackpadSender);
    event(event::leftMouseUp, trackpadSender);
    queue.advance(0.5);
    ASSERT_EQ(runner.performed.size(), 1u);
    EXPECT_EQ(runner.performed[0].fingers, 3);
}

TEST_F(DeviceGesturesTest, AScrollOfTheTrackpadSpoilsItsTap) {
    runner.slots.at(slot::forTap(2)).action = action::right;
    launchUsing({trackpadID});

    frame(trackpadID, 2);
    EXPECT_EQ(event(event::scrollWheel, trackpadSender), EventDisposition::pass);
    queue.advance(0.05);
    frame(trackpadID, 0);
    queue.advance(0.5);

    EXPECT_TRUE(runner.performed.empty());
}

TEST_F(DeviceGesturesTest, ATapWhileGesturesCannotRunDoesNothing) {
    runner.slots.at(slot::forTap(3)).action = action::middle;
    launchUsing({trackpadID});
    runner.canRun = false;

    tap(trackpadID, 3);
    runner.canRun = true;
    queue.advance(0.5);

    EXPECT_TRUE(runner.performed.empty());
}

TEST_F(DeviceGesturesTest, AThreeFingerClickIsAMiddleButtonPressThroughItsDragsToTheUp) {
    runner.slots.at(slot::forClick(3)).action = action::middle;
    launchUsing({trackpadID});
    frame(trackpadID, 3);

    EXPECT_EQ(event(event::leftMouseDown, trackpadSender), EventDisposition::pass);
    EXPECT_EQ(last->type, event::otherMouseDown);
    EXPECT_EQ(last->button(), static_cast<std::int64_t>(MouseButton::centre));
    EXPECT_EQ(gestures->heldPresses(), 1u);

    // The fingers may move or lift while the button is held: the press goes on to its up.
    frame(trackpadID, 1);
    queue.advance(1.0);
    EXPECT_EQ(event(event::leftMouseDragged, trackpadSender), EventDisposition::pass);
    EXPECT_EQ(last->type, event::otherMouseDragged);
    EXPECT_EQ(event(event::leftMouseUp, trackpadSender), EventDisposition::pass);
    EXPECT_EQ(last->type, event::otherMouseUp);
    EXPECT_EQ(last->button(), static_cast<std::int64_t>(MouseButton::centre));

    EXPECT_EQ(gestures->heldPresses(), 0u);
    EXPECT_TRUE(runner.posted.empty());
}

TEST_F(DeviceGesturesTest, AClickWhoseActionIsNoButtonIsSwallowedAndRunsOnRelease) {
    runner.slots.at(slot::forClick(4)).action = action::copy;
    launchUsing({trackpadID});
    frame(trackpadID, 4);

    EXPECT_EQ(event(event::leftMouseDown, trackpadSender), EventDisposition::swallow);
    EXPECT_EQ(event(event::leftMouseDragged, trackpadSender), EventDisposition::swallow);
    EXPECT_TRUE(runner.performed.empty());
    EXPECT_EQ(event(event::leftMouseUp, trackpadSender), EventDisposition::swallow);
    EXPECT_TRUE(runner.performed.empty());  // not from inside the tap's callback
    queue.runReady();

    ASSERT_EQ(runner.performed.size(), 1u);
    EXPECT_EQ(runner.performed[0].action, action::copy);
    EXPECT_EQ(runner.performed[0].origin, ActionOrigin::click);
    EXPECT_EQ(runner.performed[0].fingers, 4);
}

TEST_F(DeviceGesturesTest, AnUnmappedClickAndAClickWithoutFreshContactsStayOrdinary) {
    runner.slots.at(slot::forClick(3)).action = action::middle;
    launchUsing({trackpadID});

    frame(trackpadID, 2);
    EXPECT_EQ(event(event::leftMouseDown, trackpadSender), EventDisposition::pass);
    EXPECT_EQ(last->changes, 0);
    event(event::leftMouseUp, trackpadSender);

    frame(trackpadID, 3);
    queue.advance(Controller::freshContact);
    EXPECT_EQ(event(event::leftMouseDown, trackpadSender), EventDisposition::pass);
    EXPECT_EQ(last->changes, 0);
    EXPECT_EQ(gestures->heldPresses(), 0u);
}

TEST_F(DeviceGesturesTest, AClickCountsTheFingersOfItsOwnDeviceOnly) {
    runner.slots.at(slot::forClick(3)).action = action::middle;
    launchUsing({trackpadID, builtInID});
    frame(builtInID, 3);
    frame(trackpadID, 1);

    EXPECT_EQ(event(event::leftMouseDown, trackpadSender), EventDisposition::pass);
    EXPECT_EQ(last->changes, 0);
}

TEST_F(DeviceGesturesTest, ADeviceLeavingDuringAHeldPressGetsExactlyOneUp) {
    runner.slots.at(slot::forClick(3)).action = action::middle;
    launchUsing({trackpadID, builtInID});
    frame(trackpadID, 3);
    frame(builtInID, 3);
    event(event::leftMouseDown, trackpadSender);
    event(event::leftMouseDown, builtInSender);
    ASSERT_EQ(gestures->heldPresses(), 2u);

    devices.leave(trackpadID);

    ASSERT_EQ(runner.posted.size(), 1u);
    EXPECT_EQ(runner.posted[0].button, MouseButton::centre);
    EXPECT_FALSE(runner.posted[0].down);
    EXPECT_EQ(gestures->heldPresses(), 1u);
    // A late up from the gone device is no longer its press.
    EXPECT_EQ(event(event::leftMouseUp, trackpadSender), std::nullopt);
    devices.leave(trackpadID);
    EXPECT_EQ(runner.posted.size(), 1u);
}

TEST_F(DeviceGesturesTest, ADeviceThatLeftMidTouchEndsNoTapWhenItSendsAgain) {
    runner.slots.at(slot::forTap(3)).action = action::middle;
    launchUsing({trackpadID});
    frame(trackpadID, 3);
    queue.advance(0.05);
    frame(trackpadID, 3);

    devices.leave(trackpadID);
    // Listed again under the same id, and used again as it was ticked.
    devices.listed[1].state = TouchDeviceState::off;
    devices.changed();
    ASSERT_EQ(devices.listed[1].state, TouchDeviceState::connected);
    queue.advance(0.05);
    frame(trackpadID, 0);
    queue.advance(0.5);

    EXPECT_TRUE(runner.performed.empty());
}

TEST_F(DeviceGesturesTest, SwitchingGesturesOffLetsGoOfEveryHeldPressOnceAndForgetsTouches) {
    runner.slots.at(slot::forClick(3)).action = action::middle;
    runner.slots.at(slot::forTap(2)).action = action::right;
    launchUsing({trackpadID, builtInID});
    frame(trackpadID, 3);
    event(event::leftMouseDown, trackpadSender);
    frame(builtInID, 2);

    gestures->switchChanged({.on = false});
    gestures->switchChanged({.on = false});
    frame(builtInID, 0);
    queue.advance(0.5);

    ASSERT_EQ(runner.posted.size(), 1u);
    EXPECT_FALSE(runner.posted[0].down);
    EXPECT_TRUE(runner.performed.empty());
}

TEST_F(DeviceGesturesTest, ThePressesOfAProfileChangeWakeOrQuitAreLetGoOf) {
    runner.slots.at(slot::forClick(3)).action = action::middle;
    launchUsing({trackpadID});
    const auto holdAndThen = [&](auto&& what) {
        frame(trackpadID, 3);
        event(event::leftMouseDown, trackpadSender);
        what();
        EXPECT_EQ(gestures->heldPresses(), 0u);
    };

    holdAndThen([&] { gestures->profileSelected({}); });
    holdAndThen([&] { gestures->woke({}); });
    holdAndThen([&] { gestures->activeChanged({.active = true}); });
    holdAndThen([&] { gestures->terminating(clock.now); });

    EXPECT_EQ(runner.posted.size(), 4u);
}

TEST_F(DeviceGesturesTest, EventsOfTheMouseAndOfUnknownSendersAreLeftToTheController) {
    launchUsing({trackpadID});

    EXPECT_EQ(event(event::leftMouseDown, mouseSender), std::nullopt);
    EXPECT_EQ(event(event::leftMouseDown, 999), std::nullopt);
    EXPECT_EQ(event(event::leftMouseDown, 0), std::nullopt);
}

TEST_F(DeviceGesturesTest, TheSenderOfTheLastEventIsNotAskedAboutAgainUntilDevicesChange) {
    launchUsing({trackpadID});
    event(event::leftMouseDragged, trackpadSender);
    event(event::leftMouseDragged, trackpadSender);
    EXPECT_EQ(devices.senderQuestions, 1);

    devices.leave(builtInID);
    event(event::leftMouseDragged, trackpadSender);
    EXPECT_EQ(devices.senderQuestions, 2);
}

TEST_F(DeviceGesturesTest, UntickingATrackpadStopsItAtOnceAndLetsGoOfItsPress) {
    runner.slots.at(slot::forClick(3)).action = action::middle;
    launchUsing({trackpadID});
    frame(trackpadID, 3);
    event(event::leftMouseDown, trackpadSender);

    gestures->setUses(devices.listed[1], false);

    EXPECT_EQ(devices.listed[1].state, TouchDeviceState::off);
    EXPECT_EQ(runner.posted.size(), 1u);
    EXPECT_EQ(event(event::leftMouseUp, trackpadSender), std::nullopt);
}

TEST_F(DeviceGesturesTest, TheMagicMouseIsAlwaysUsedAndCannotBeUnticked) {
    launchUsing({});

    gestures->setUses(devices.listed[0], false);

    EXPECT_TRUE(gestures->uses(devices.listed[0]));
    EXPECT_FALSE(gestures->uses(devices.listed[1]));
    EXPECT_FALSE(defaults->string(std::string(DeviceChoice::key)).has_value());
}

TEST_F(DeviceGesturesTest, ATrackpadIsSeenOnlyOnceOneIsListed) {
    EXPECT_TRUE(gestures->trackpadSeen());
    devices.listed.resize(1);
    EXPECT_FALSE(gestures->trackpadSeen());
}

TEST_F(DeviceGesturesTest, ATickedTrackpadThatComesBackWithANewIdIsUsedAgain) {
    runner.slots.at(slot::forTap(3)).action = action::middle;
    launchUsing({trackpadID});
    devices.leave(trackpadID);

    constexpr std::uint64_t returnedID = 21;
    devices.listed.push_back(
        {.id = returnedID, .kind = TouchDeviceKind::magicTrackpad, .name = "Magic Trackpad"});
    devices.changed();
    tap(returnedID, 3);
    queue.advance(0.5);

    EXPECT_EQ(devices.listed.back().state, TouchDeviceState::connected);
    EXPECT_EQ(runner.performed.size(), 1u);
}

TEST_F(DeviceGesturesTest, TheWatcherHearsEveryTapAndClickWithItsDeviceAndEveryRewrite) {
    RecordingWatcher watcher;
    gestures->watch(&watcher);
    runner.slots.at(slot::forClick(3)).action = action::middle;
    launchUsing({trackpadID, builtInID});

    tap(builtInID, 2);
    frame(trackpadID, 3);
    event(event::leftMouseDown, trackpadSender);
    event(event::leftMouseUp, trackpadSender);
    frame(trackpadID, 1);
    event(event::leftMouseDown, trackpadSender);

    EXPECT_EQ(watcher.lines, (std::vector<std::string>{"tap 2 @30", "click 3 @20",
                                                       "action 3 button 2 @20", "click 1 @20"}));
    gestures->watch(nullptr);
}

TEST_F(DeviceGesturesTest, TheWindowIsToldWhenDevicesComeAndGoOrAreTicked) {
    int told = 0;
    gestures->setListChanged([&told] { ++told; });

    gestures->setUses(devices.listed[2], true);
    EXPECT_EQ(told, 1);
    gestures->launched(clock.now);
    EXPECT_EQ(told, 2);
    devices.leave(builtInID);
    EXPECT_EQ(told, 3);
    gestures->setUses(devices.listed[1], true);
    EXPECT_EQ(told, 4);
}

TEST_F(DeviceGesturesTest, TheWatcherHearsEveryFrameOfADeviceInUseWithItsDeviceAndTime) {
    launchUsing({trackpadID});
    FullWatcher watcher(runner);
    gestures->watch(&watcher);

    frame(trackpadID, 3);
    queue.advance(0.25);
    frame(builtInID, 2);  // not in use: never delivered
    frame(trackpadID, 0);

    EXPECT_EQ(watcher.lines,
              (std::vector<std::string>{"frame 3 @20 at " + std::to_string(clock.now - 0.25),
                                        "frame 0 @20 at " + std::to_string(clock.now)}));
    gestures->watch(nullptr);
}

TEST_F(DeviceGesturesTest, TheWatcherHearsTheUsersChoiceOfATrackpadButNotOfTheMouse) {
    FullWatcher watcher(runner);
    gestures->watch(&watcher);
    launchUsing({});

    gestures->setUses(devices.listed[1], true);
    gestures->setUses(devices.listed[0], false);
    gestures->setUses(devices.listed[1], false);

    const std::string at = " at " + std::to_string(clock.now);
    EXPECT_EQ(watcher.lines, (std::vector<std::string>{"use on @20" + at, "use off @20" + at}));
    gestures->watch(nullptr);
}

TEST_F(DeviceGesturesTest, TheWatcherKnowsWhichDevicesGestureAnActionIsCarriedOutFor) {
    runner.slots.at(slot::forTap(3)).action = action::middle;
    runner.slots.at(slot::forClick(4)).action = action::copy;
    launchUsing({trackpadID, builtInID});
    FullWatcher watcher(runner);
    gestures->watch(&watcher);

    devices.send(builtInID, fingers(3));
    queue.runReady();
    queue.advance(0.1);
    devices.send(builtInID, {});
    queue.runReady();
    queue.advance(0.5);
    devices.send(trackpadID, fingers(4));
    queue.runReady();
    event(event::leftMouseDown, trackpadSender);
    event(event::leftMouseUp, trackpadSender);
    queue.runReady();

    std::erase_if(watcher.lines, [](const std::string& line) { return line.starts_with("frame"); });
    EXPECT_EQ(watcher.lines, (std::vector<std::string>{"begins @30 after 0", "ended after 1",
                                                       "begins @20 after 1", "ended after 2"}));
    gestures->watch(nullptr);
}

TEST_F(DeviceGesturesTest, TellsWhichDeviceInUseASenderIsOnceLaunched) {
    EXPECT_EQ(gestures->deviceOfSender(trackpadSender), 0u);
    launchUsing({trackpadID});

    EXPECT_EQ(gestures->deviceOfSender(trackpadSender), trackpadID);
    EXPECT_EQ(gestures->deviceOfSender(builtInSender), 0u);  // not in use
    EXPECT_EQ(gestures->deviceOfSender(mouseSender), 0u);
    EXPECT_EQ(gestures->deviceOfSender(999), 0u);
}

}  // namespace
}  // namespace tactora::testing
