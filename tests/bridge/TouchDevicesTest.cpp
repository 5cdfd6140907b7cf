#include "bridge/TouchDevices.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "bridge/DeviceFrameRecorder.h"
#include "bridge/FakeFramework.h"
#include "bridge/FakeRegistry.h"
#include "bridge/FrameRecorder.h"
#include "bridge/RawFrame.h"
#include "bridge/TouchBridge.h"

namespace tactora::testing {
namespace {

constexpr std::uint32_t kMouse = 21;
constexpr std::uint32_t kTrackpad = 22;
constexpr std::uint32_t kLaptop = 23;
constexpr std::uint32_t kStrip = 24;
constexpr std::uint32_t kReturnedTrackpad = 25;
constexpr std::uint32_t kSecondMouse = 26;
constexpr std::uint32_t kReturnedMouse = 27;

// The kinds the client has switched on, as a device choice for the bridge, and every device
// it was asked about.
struct Choice {
    std::set<TADeviceKind> kinds;
    std::set<std::uint64_t> asked;

    static bool ask(void* context, const TADeviceInfo* device) {
        auto* self = static_cast<Choice*>(context);
        self->asked.insert(device->id);
        return self->kinds.contains(device->kind);
    }
};

class TouchDevices : public ::testing::Test {
  protected:
    void SetUp() override {
        DeviceFrameRecorder::clear();
        FrameRecorder::clear();
    }

    void addMouse(std::uint32_t service = kMouse) {
        fake_.controls().addDescribedDevice(service, "HIDMouseAcceleration", "Magic Mouse", false);
    }
    void addTrackpad(std::uint32_t service = kTrackpad) {
        fake_.controls().addDescribedDevice(service, "HIDTrackpadAcceleration", "Magic Trackpad",
                                            false);
    }
    void addLaptopTrackpad() {
        fake_.controls().addDescribedDevice(kLaptop, "HIDTrackpadAcceleration",
                                            "Apple Internal Keyboard / Trackpad", true);
    }

    void useOthers() { TAUseOtherDevices(DeviceFrameRecorder::record, Choice::ask, &choice_); }
    static std::int32_t start() { return TAStart(FrameRecorder::record); }

    static std::vector<TADeviceInfo> known() {
        std::vector<TADeviceInfo> list;
        TADeviceInfo info;
        for (std::int32_t i = 0; TAKnownDevice(i, &info); ++i) {
            list.push_back(info);
        }
        return list;
    }

    static TADeviceInfo device(std::uint64_t id) {
        for (const TADeviceInfo& info : known()) {
            if (info.id == id) {
                return info;
            }
        }
        ADD_FAILURE() << "no device " << id;
        return {};
    }

    void deliver(std::uint32_t service, const RawFrame& raw) {
        ASSERT_TRUE(fake_.controls().deliverDeviceFrame(service, raw.data(), raw.count()));
    }

    FakeFramework fake_;
    FakeRegistry registry_{fake_};
    Choice choice_{{TADeviceKindMagicTrackpad}, {}};
};

TEST_F(TouchDevices, ListsEveryDeviceWithItsKindAndNameTheMouseIncluded) {
    addMouse();
    addTrackpad();
    addLaptopTrackpad();
    fake_.controls().addDescribedDevice(kStrip, "", "Touch Bar", false);

    ASSERT_EQ(start(), 1);

    const std::vector<TADeviceInfo> devices = known();
    ASSERT_EQ(devices.size(), 4u);
    EXPECT_EQ(devices[0].id, kMouse);
    EXPECT_EQ(devices[0].kind, TADeviceKindMagicMouse);
    EXPECT_EQ(devices[0].state, TADeviceStateConnected);
    EXPECT_STREQ(devices[0].name, "Magic Mouse");
    EXPECT_EQ(devices[1].kind, TADeviceKindMagicTrackpad);
    EXPECT_STREQ(devices[1].name, "Magic Trackpad");
    EXPECT_EQ(devices[2].kind, TADeviceKindBuiltInTrackpad);
    EXPECT_STREQ(devices[2].name, "Apple Internal Keyboard / Trackpad");
    EXPECT_EQ(devices[3].kind, TADeviceKindOther);
    EXPECT_EQ(TAKnownDeviceCount(), 4);
}

TEST_F(TouchDevices, WithoutAChoiceNothingButTheMouseEverStarts) {
    addTrackpad();
    addMouse();
    addMouse(kSecondMouse);
    addLaptopTrackpad();

    ASSERT_EQ(start(), 1);
    ASSERT_EQ(TARefreshDevices(), 0);

    EXPECT_EQ(fake_.log().starts, 1);
    EXPECT_EQ(fake_.log().startedService, kMouse);
    EXPECT_EQ(fake_.log().registrations, 1);
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateOff);
    EXPECT_EQ(device(kSecondMouse).state, TADeviceStateOff);
    deliver(kMouse, RawFrame({{3, kTouching, 0.5f, 0.25f}}));
    ASSERT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_EQ(FrameRecorder::received()[0], (std::vector<DeliveredContact>{{3, 0.5f, 0.25f}}));
    EXPECT_TRUE(DeviceFrameRecorder::received().empty());
}

TEST_F(TouchDevices, StartsTheChosenDevicesBesideTheMouse) {
    addMouse();
    addTrackpad();
    addLaptopTrackpad();
    choice_.kinds = {TADeviceKindBuiltInTrackpad};
    useOthers();

    ASSERT_EQ(start(), 1);

    EXPECT_TRUE(fake_.controls().isStarted(kMouse));
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_TRUE(fake_.controls().isStarted(kLaptop));
    EXPECT_EQ(device(kMouse).state, TADeviceStateConnected);
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateOff);
    EXPECT_EQ(device(kLaptop).state, TADeviceStateConnected);
    EXPECT_EQ(fake_.log().starts, 2);
    EXPECT_EQ(fake_.log().startMode, 0);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
    EXPECT_EQ(TAConnectedDevice(), kMouse);
}

TEST_F(TouchDevices, NeverAsksAboutTheMouseThatStartTook) {
    addMouse();
    addTrackpad();
    addMouse(kSecondMouse);
    choice_.kinds = {TADeviceKindMagicMouse, TADeviceKindMagicTrackpad};
    useOthers();

    ASSERT_EQ(start(), 1);
    ASSERT_EQ(TARefreshDevices(), 0);

    EXPECT_EQ(choice_.asked, (std::set<std::uint64_t>{kTrackpad, kSecondMouse}));
    EXPECT_EQ(device(kSecondMouse).state, TADeviceStateConnected);
    EXPECT_EQ(fake_.log().starts, 3);
}

TEST_F(TouchDevices, HandsEachFrameToItsClientWithTheDeviceItCameFrom) {
    addMouse();
    addTrackpad();
    addLaptopTrackpad();
    choice_.kinds = {TADeviceKindMagicTrackpad, TADeviceKindBuiltInTrackpad};
    useOthers();
    ASSERT_EQ(start(), 1);

    deliver(kMouse, RawFrame({{1, kTouching, 0.5f, 0.5f}}));
    deliver(kTrackpad, RawFrame({{7, kTouching, 0.25f, 0.75f, 1.5f, 0.5f, 12.0f, 9.0f}}));
    deliver(kLaptop, RawFrame({{8, kPressing, 0.125f, 0.5f}}));
    deliver(kMouse, RawFrame({}));
    deliver(kTrackpad, RawFrame(touchingContacts(1, kLifting)));

    EXPECT_EQ(DeviceFrameRecorder::devices(),
              (std::vector<std::uint64_t>{kTrackpad, kLaptop, kTrackpad}));
    const std::vector<DeviceFrame>& frames = DeviceFrameRecorder::received();
    EXPECT_EQ(frames[0].contacts,
              (std::vector<DeliveredShape>{{7, 0.25f, 0.75f, 1.5f, 0.5f, 12.0f, 9.0f}}));
    EXPECT_EQ(frames[1].contacts, (std::vector<DeliveredShape>{{8, 0.125f, 0.5f, 0, 0, 0, 0}}));
    EXPECT_TRUE(frames[2].contacts.empty());
    ASSERT_EQ(FrameRecorder::received().size(), 2u);
    EXPECT_EQ(FrameRecorder::received()[0], (std::vector<DeliveredContact>{{1, 0.5f, 0.5f}}));
    EXPECT_TRUE(FrameRecorder::received()[1].empty());
}

TEST_F(TouchDevices, KeepsAtMostSixteenTouchingContactsPerFrame) {
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);

    deliver(kTrackpad, RawFrame(touchingContacts(20)));
    deliver(kTrackpad, RawFrame(touchingContacts(33)));

    ASSERT_EQ(DeviceFrameRecorder::received().size(), 1u);
    EXPECT_EQ(DeviceFrameRecorder::received()[0].contacts.size(), 16u);
}

TEST_F(TouchDevices, ChosenDevicesRunWhenNoMouseIsThere) {
    addTrackpad();
    useOthers();

    EXPECT_EQ(start(), 1) << "frames flow from the trackpad";

    EXPECT_STREQ(TAStatus(), "sensor.missing");
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateConnected);
    EXPECT_EQ(TAConnectedDevice(), 0u);
}

TEST_F(TouchDevices, ChosenDevicesRunBesideABlockedMouse) {
    addMouse();
    addTrackpad();
    fake_.controls().setDeviceStartResult(kMouse, -7);
    useOthers();

    EXPECT_EQ(start(), 1) << "frames flow from the trackpad";

    EXPECT_STREQ(TAStatus(), "sensor.blocked");
    EXPECT_EQ(TAStatusError(), -7);
    EXPECT_EQ(device(kMouse).state, TADeviceStateBlocked);
    EXPECT_EQ(device(kMouse).error, -7);
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateConnected);
    EXPECT_FALSE(choice_.asked.contains(kMouse));
    deliver(kTrackpad, RawFrame(touchingContacts(1)));
    EXPECT_EQ(DeviceFrameRecorder::devices(), (std::vector<std::uint64_t>{kTrackpad}));
}

TEST_F(TouchDevices, DropsFramesOfADeviceNoLongerInUse) {
    addMouse();
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);
    choice_.kinds = {};
    ASSERT_EQ(TARefreshDevices(), 1);

    // A frame already under way when the device stopped.
    deliver(kTrackpad, RawFrame(touchingContacts(1)));

    EXPECT_TRUE(DeviceFrameRecorder::received().empty());
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_TRUE(fake_.controls().isStarted(kMouse));
}

TEST_F(TouchDevices, AnArrivingDeviceIsListedAndStartedWithoutTouchingTheMouse) {
    addMouse();
    useOthers();
    ASSERT_EQ(start(), 1);

    addTrackpad();
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_EQ(device(kTrackpad).state, TADeviceStateConnected);
    EXPECT_EQ(fake_.log().starts, 2);
    EXPECT_EQ(fake_.log().stops, 0);
    EXPECT_EQ(fake_.log().unregistrations, 0);
    EXPECT_EQ(fake_.log().startedService, kTrackpad);
    deliver(kMouse, RawFrame(touchingContacts(1)));
    deliver(kTrackpad, RawFrame(touchingContacts(2)));
    EXPECT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_EQ(DeviceFrameRecorder::devices(), (std::vector<std::uint64_t>{kTrackpad}));
}

TEST_F(TouchDevices, ALeavingDeviceIsStoppedAndListedMissingWhileTheOthersRunOn) {
    addMouse();
    addTrackpad();
    addLaptopTrackpad();
    choice_.kinds = {TADeviceKindMagicTrackpad, TADeviceKindBuiltInTrackpad};
    useOthers();
    ASSERT_EQ(start(), 1);

    fake_.controls().removeDevice(kTrackpad);
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_EQ(device(kTrackpad).state, TADeviceStateMissing);
    EXPECT_STREQ(device(kTrackpad).name, "Magic Trackpad");
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_TRUE(fake_.controls().isStarted(kLaptop));
    EXPECT_TRUE(fake_.controls().isStarted(kMouse));
    EXPECT_EQ(fake_.log().stops, 1);
    EXPECT_EQ(fake_.log().stoppedService, kTrackpad);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
}

TEST_F(TouchDevices, AReturningDeviceTakesItsEntryBackUnderItsNewId) {
    addMouse();
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);
    fake_.controls().removeDevice(kTrackpad);
    ASSERT_EQ(TARefreshDevices(), 1);

    addTrackpad(kReturnedTrackpad);
    EXPECT_EQ(TARefreshDevices(), 1);

    const std::vector<TADeviceInfo> devices = known();
    ASSERT_EQ(devices.size(), 2u);
    EXPECT_EQ(devices[1].id, kReturnedTrackpad);
    EXPECT_EQ(devices[1].state, TADeviceStateConnected);
    EXPECT_TRUE(fake_.controls().isStarted(kReturnedTrackpad));
    deliver(kReturnedTrackpad, RawFrame(touchingContacts(1)));
    EXPECT_EQ(DeviceFrameRecorder::devices(), (std::vector<std::uint64_t>{kReturnedTrackpad}));
}

TEST_F(TouchDevices, WithoutAChoiceTheMouseLeavingIsOnlyListedItsConnectionIsStarts) {
    addMouse();
    addTrackpad();
    ASSERT_EQ(start(), 1);

    fake_.controls().removeDevice(kMouse);
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_EQ(device(kMouse).state, TADeviceStateMissing);
    EXPECT_TRUE(fake_.controls().isStarted(kMouse));
    EXPECT_EQ(fake_.log().stops, 0);
    EXPECT_EQ(fake_.log().unregistrations, 0);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
    EXPECT_EQ(TAConnectedDevice(), kMouse);
}

TEST_F(TouchDevices, WithoutAChoiceAnArrivingMouseWaitsForStart) {
    addTrackpad();
    ASSERT_EQ(start(), 0);

    addMouse();
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_EQ(device(kMouse).state, TADeviceStateOff);
    EXPECT_FALSE(fake_.controls().isStarted(kMouse));
    EXPECT_STREQ(TAStatus(), "sensor.missing");
    EXPECT_EQ(TAConnectedDevice(), 0u);
    EXPECT_EQ(fake_.log().starts, 0);
}

TEST_F(TouchDevices, WithoutAChoiceOnlyTheMouseMakesStartSucceed) {
    addTrackpad();

    EXPECT_EQ(start(), 0);

    EXPECT_STREQ(TAStatus(), "sensor.missing");
    EXPECT_EQ(fake_.log().starts, 0);
}

TEST_F(TouchDevices, StartFailsWhenTheChoiceRunsNothingAndNoMouseIsThere) {
    addTrackpad();
    choice_.kinds = {};
    useOthers();

    EXPECT_EQ(start(), 0);

    EXPECT_STREQ(TAStatus(), "sensor.missing");
}

TEST_F(TouchDevices, StartFailsWhenTheMouseIsBlockedAndNoChosenDeviceRuns) {
    addMouse();
    addTrackpad();
    fake_.controls().setStartResult(-4);
    useOthers();

    EXPECT_EQ(start(), 0);

    EXPECT_STREQ(TAStatus(), "sensor.blocked");
    EXPECT_EQ(TAStatusError(), -4);
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateBlocked);
}

TEST_F(TouchDevices, TheMouseLeavingIsStoppedWhileTheChosenDevicesRunOn) {
    addMouse();
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);

    fake_.controls().removeDevice(kMouse);
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_EQ(device(kMouse).state, TADeviceStateMissing);
    EXPECT_FALSE(fake_.controls().isStarted(kMouse));
    EXPECT_EQ(fake_.log().stops, 1);
    EXPECT_EQ(fake_.log().stoppedService, kMouse);
    EXPECT_STREQ(TAStatus(), "sensor.missing");
    EXPECT_EQ(TAStatusError(), 0);
    EXPECT_EQ(TAConnectedDevice(), 0u);
    EXPECT_TRUE(fake_.controls().isStarted(kTrackpad));
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateConnected);
    // A mouse frame already under way when it stopped reaches no one.
    deliver(kMouse, RawFrame(touchingContacts(1)));
    deliver(kTrackpad, RawFrame(touchingContacts(2)));
    EXPECT_TRUE(FrameRecorder::received().empty());
    EXPECT_EQ(DeviceFrameRecorder::devices(), (std::vector<std::uint64_t>{kTrackpad}));
    EXPECT_EQ(TARefreshDevices(), 0);
}

TEST_F(TouchDevices, AMouseArrivingWhenNoneWasThereIsStartedForStartsClient) {
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);

    addMouse();
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_TRUE(fake_.controls().isStarted(kMouse));
    EXPECT_EQ(device(kMouse).state, TADeviceStateConnected);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
    EXPECT_EQ(TAStatusError(), 0);
    EXPECT_EQ(TAConnectedDevice(), kMouse);
    EXPECT_FALSE(choice_.asked.contains(kMouse)) << "the mouse is TAStart's, not the choice's";
    EXPECT_EQ(fake_.log().starts, 2);
    EXPECT_EQ(fake_.log().stops, 0);
    EXPECT_EQ(fake_.log().unregistrations, 0);
    deliver(kMouse, RawFrame({{4, kTouching, 0.5f, 0.75f}}));
    deliver(kTrackpad, RawFrame(touchingContacts(1)));
    ASSERT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_EQ(FrameRecorder::received()[0], (std::vector<DeliveredContact>{{4, 0.5f, 0.75f}}));
    EXPECT_EQ(DeviceFrameRecorder::devices(), (std::vector<std::uint64_t>{kTrackpad}));
    EXPECT_EQ(TARefreshDevices(), 0);
}

TEST_F(TouchDevices, TheTrackpadsFramesKeepArrivingWhileTheMouseLeavesAndReturns) {
    addMouse();
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);
    deliver(kTrackpad, RawFrame(touchingContacts(1)));

    fake_.controls().removeDevice(kMouse);
    ASSERT_EQ(TARefreshDevices(), 1);
    deliver(kTrackpad, RawFrame(touchingContacts(2)));

    addMouse(kReturnedMouse);
    ASSERT_EQ(TARefreshDevices(), 1);
    deliver(kTrackpad, RawFrame(touchingContacts(3)));
    deliver(kReturnedMouse, RawFrame(touchingContacts(1)));

    EXPECT_EQ(DeviceFrameRecorder::devices(),
              (std::vector<std::uint64_t>{kTrackpad, kTrackpad, kTrackpad}));
    EXPECT_EQ(DeviceFrameRecorder::received()[2].contacts.size(), 3u);
    EXPECT_EQ(FrameRecorder::received().size(), 1u);
    EXPECT_TRUE(fake_.controls().isStarted(kTrackpad));
    // The trackpad was started once and never stopped; only the mice came and went.
    EXPECT_EQ(fake_.log().starts, 3);
    EXPECT_EQ(fake_.log().stops, 1);
    EXPECT_EQ(fake_.log().stoppedService, kMouse);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
    EXPECT_EQ(TAConnectedDevice(), kReturnedMouse);
    // The returning mouse takes its entry back.
    const std::vector<TADeviceInfo> devices = known();
    ASSERT_EQ(devices.size(), 2u);
    EXPECT_EQ(devices[0].id, kReturnedMouse);
    EXPECT_EQ(devices[0].state, TADeviceStateConnected);
}

TEST_F(TouchDevices, AnArrivingMouseThatCannotStartIsReportedBlockedAndLeftAlone) {
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);

    addMouse();
    fake_.controls().setDeviceStartResult(kMouse, -9);
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_STREQ(TAStatus(), "sensor.blocked");
    EXPECT_EQ(TAStatusError(), -9);
    EXPECT_EQ(TAConnectedDevice(), 0u);
    EXPECT_EQ(device(kMouse).state, TADeviceStateBlocked);
    EXPECT_EQ(device(kMouse).error, -9);
    EXPECT_FALSE(fake_.controls().isStarted(kMouse));
    EXPECT_TRUE(fake_.controls().isStarted(kTrackpad));

    // Like every blocked device, tried again only by the next start.
    fake_.controls().setDeviceStartResult(kMouse, 0);
    EXPECT_EQ(TARefreshDevices(), 0);
    EXPECT_STREQ(TAStatus(), "sensor.blocked");

    // Once it leaves, the status says so.
    fake_.controls().removeDevice(kMouse);
    EXPECT_EQ(TARefreshDevices(), 1);
    EXPECT_STREQ(TAStatus(), "sensor.missing");
    EXPECT_EQ(TAStatusError(), 0);
    EXPECT_TRUE(fake_.controls().isStarted(kTrackpad));
}

TEST_F(TouchDevices, AMouseInUseBesideIsNotTakenWhenStartsMouseLeaves) {
    addMouse();
    addTrackpad();
    addMouse(kSecondMouse);
    choice_.kinds = {TADeviceKindMagicMouse, TADeviceKindMagicTrackpad};
    useOthers();
    ASSERT_EQ(start(), 1);

    fake_.controls().removeDevice(kMouse);
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_STREQ(TAStatus(), "sensor.missing");
    EXPECT_EQ(TAConnectedDevice(), 0u);
    EXPECT_EQ(device(kSecondMouse).state, TADeviceStateConnected);
    EXPECT_TRUE(fake_.controls().isStarted(kSecondMouse));
    deliver(kSecondMouse, RawFrame(touchingContacts(1)));
    EXPECT_EQ(DeviceFrameRecorder::devices(), (std::vector<std::uint64_t>{kSecondMouse}));
    EXPECT_TRUE(FrameRecorder::received().empty());
}

TEST_F(TouchDevices, StopEndsAMouseTheRefreshTookAndReleasesEveryList) {
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);
    addMouse();
    ASSERT_EQ(TARefreshDevices(), 1);

    TAStop();

    EXPECT_FALSE(fake_.controls().isStarted(kMouse));
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_FALSE(fake_.log().handlerRegistered);
    EXPECT_EQ(fake_.log().listsCreated, fake_.log().listsReleased);
    EXPECT_EQ(TAConnectedDevice(), 0u);
    EXPECT_EQ(device(kMouse).state, TADeviceStateOff);
}

TEST_F(TouchDevices, NothingChangesWhenNothingCameOrWent) {
    addMouse();
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);

    EXPECT_EQ(TARefreshDevices(), 0);

    EXPECT_EQ(fake_.log().starts, 2);
    EXPECT_EQ(fake_.log().registrations, 2);
    EXPECT_EQ(fake_.log().stops, 0);
    EXPECT_EQ(fake_.log().unregistrations, 0);
}

TEST_F(TouchDevices, AChoiceGivenAfterStartTakesEffectAtTheNextRefresh) {
    addMouse();
    addTrackpad();
    ASSERT_EQ(start(), 1);

    useOthers();
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));

    EXPECT_EQ(TARefreshDevices(), 1);
    EXPECT_TRUE(fake_.controls().isStarted(kTrackpad));
    EXPECT_EQ(fake_.log().stops, 0);
}

TEST_F(TouchDevices, AChangedChoiceStartsAndStopsOnlyTheChangedDevices) {
    addMouse();
    addTrackpad();
    addLaptopTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);

    choice_.kinds = {TADeviceKindBuiltInTrackpad};
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_TRUE(fake_.controls().isStarted(kMouse));
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_TRUE(fake_.controls().isStarted(kLaptop));
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateOff);
    EXPECT_EQ(fake_.log().starts, 3);
    EXPECT_EQ(fake_.log().stops, 1);
}

TEST_F(TouchDevices, TakingTheChoiceBackStopsTheOthersAtOnce) {
    addMouse();
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);
    choice_.asked.clear();

    TAUseOtherDevices(nullptr, nullptr, nullptr);

    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_TRUE(fake_.controls().isStarted(kMouse));
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateOff);
    EXPECT_EQ(TARefreshDevices(), 0);
    EXPECT_TRUE(choice_.asked.empty());
}

TEST_F(TouchDevices, ABlockedDeviceKeepsItsCodeWhileTheMouseRuns) {
    addMouse();
    addTrackpad();
    fake_.controls().setDeviceStartResult(kTrackpad, 5);
    useOthers();

    ASSERT_EQ(start(), 1);

    EXPECT_EQ(device(kTrackpad).state, TADeviceStateBlocked);
    EXPECT_EQ(device(kTrackpad).error, 5);
    EXPECT_FALSE(fake_.controls().isStarted(kTrackpad));
    EXPECT_EQ(device(kMouse).state, TADeviceStateConnected);
    EXPECT_STREQ(TAStatus(), "sensor.connected");
    EXPECT_EQ(TAStatusError(), 0);

    // Tried again only by the next start, not by every refresh.
    fake_.controls().setDeviceStartResult(kTrackpad, 0);
    EXPECT_EQ(TARefreshDevices(), 0);
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateBlocked);
    ASSERT_EQ(start(), 1);
    EXPECT_EQ(device(kTrackpad).state, TADeviceStateConnected);
}

TEST_F(TouchDevices, SwitchingABlockedDeviceOffClearsItsCode) {
    addTrackpad();
    fake_.controls().setDeviceStartResult(kTrackpad, 5);
    useOthers();
    ASSERT_EQ(start(), 0);

    choice_.kinds = {};
    EXPECT_EQ(TARefreshDevices(), 1);

    EXPECT_EQ(device(kTrackpad).state, TADeviceStateOff);
    EXPECT_EQ(device(kTrackpad).error, 0);
}

TEST_F(TouchDevices, AFrameworkThatCannotBeLoadedListsNothing) {
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);
    TASetFrameworkPath("/nonexistent/MultitouchSupport");

    EXPECT_EQ(start(), 0);
    EXPECT_STREQ(TAStatus(), "sensor.unavailable");
    EXPECT_EQ(TAKnownDeviceCount(), 0);
    EXPECT_EQ(TARefreshDevices(), 0);
}

TEST_F(TouchDevices, StopEndsEveryDeviceAndReleasesEveryList) {
    addMouse();
    addTrackpad();
    choice_.kinds = {TADeviceKindMagicTrackpad, TADeviceKindBuiltInTrackpad};
    useOthers();
    ASSERT_EQ(start(), 1);
    addLaptopTrackpad();
    ASSERT_EQ(TARefreshDevices(), 1);
    fake_.controls().removeDevice(kTrackpad);
    ASSERT_EQ(TARefreshDevices(), 1);

    TAStop();

    EXPECT_FALSE(fake_.controls().isStarted(kMouse));
    EXPECT_FALSE(fake_.controls().isStarted(kLaptop));
    EXPECT_EQ(fake_.log().listsCreated, 3);
    EXPECT_EQ(fake_.log().listsReleased, 3);
    EXPECT_FALSE(fake_.log().handlerRegistered);
    EXPECT_EQ(TARefreshDevices(), 0);
    // Listed as last seen, nothing in use.
    EXPECT_EQ(TAKnownDeviceCount(), 3);
    EXPECT_EQ(device(kMouse).state, TADeviceStateOff);
    EXPECT_EQ(device(kLaptop).state, TADeviceStateOff);
}

TEST_F(TouchDevices, ListsAreReleasedOnceNothingInUseCameFromThem) {
    addMouse();
    ASSERT_EQ(start(), 1);

    ASSERT_EQ(TARefreshDevices(), 0);
    ASSERT_EQ(TARefreshDevices(), 0);

    // The first list holds the mouse; of the two later ones only the newest is held.
    EXPECT_EQ(fake_.log().listsCreated, 3);
    EXPECT_EQ(fake_.log().listsReleased, 1);
}

TEST_F(TouchDevices, TellsWhichDeviceInUseBesideTheMouseSentAnInputEvent) {
    addMouse();
    addTrackpad();
    addLaptopTrackpad();
    fake_.controls().addSender(1001, kMouse);
    fake_.controls().addSender(1002, kTrackpad);
    fake_.controls().addSender(1003, kLaptop);
    useOthers();
    ASSERT_EQ(start(), 1);

    EXPECT_EQ(TADeviceForSender(1001), 0u) << "the mouse is TAIsMouseSender's";
    EXPECT_EQ(TADeviceForSender(kMouse), 0u);
    EXPECT_EQ(TADeviceForSender(1002), kTrackpad);
    EXPECT_EQ(TADeviceForSender(kTrackpad), kTrackpad);
    EXPECT_EQ(TADeviceForSender(1003), 0u) << "the built-in trackpad is not in use";
    EXPECT_EQ(TADeviceForSender(4242), 0u) << "an unknown sender";
    EXPECT_EQ(TADeviceForSender(0), 0u);
}

TEST_F(TouchDevices, TellsTwoDevicesOfOneKindApartByName) {
    addTrackpad();
    fake_.controls().addDescribedDevice(kReturnedTrackpad, "HIDTrackpadAcceleration",
                                        "Second Trackpad", false);
    fake_.controls().addSender(1001, kTrackpad);
    fake_.controls().addSender(1002, kReturnedTrackpad);
    useOthers();
    ASSERT_EQ(start(), 1);

    EXPECT_EQ(TADeviceForSender(1001), kTrackpad);
    EXPECT_EQ(TADeviceForSender(1002), kReturnedTrackpad);
}

TEST_F(TouchDevices, StartingAgainEndsEveryEarlierDeviceFirst) {
    addMouse();
    addTrackpad();
    useOthers();
    ASSERT_EQ(start(), 1);

    ASSERT_EQ(start(), 1);

    EXPECT_EQ(fake_.log().starts, 4);
    EXPECT_EQ(fake_.log().stops, 2);
    EXPECT_EQ(fake_.log().listsCreated, 2);
    EXPECT_EQ(fake_.log().listsReleased, 1);
    EXPECT_EQ(TAKnownDeviceCount(), 2);
}

}  // namespace
}  // namespace tactora::testing
