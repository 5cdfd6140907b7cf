#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/advanced/AdvancedSettings.h"
#include "core/app/Controller.h"
#include "core/app/ControllerServices.h"
#include "core/devices/ControllerGestureRunner.h"
#include "core/devices/DeviceGestures.h"
#include "core/devicetable/DeviceTable.h"
#include "core/feedback/MenuBarFeedback.h"
#include "core/frontmost/FrontmostProfiles.h"
#include "core/keepgestures/GestureKeeper.h"
#include "core/liveview/LiveView.h"
#include "core/misfire/MisfireGuard.h"
#include "core/moreactions/ExtraActions.h"
#include "core/moregestures/MoreGesturesExtension.h"
#include "core/moresheet/MoreSheet.h"
#include "core/platform/AdvancedSheetView.h"
#include "core/platform/DeviceTableView.h"
#include "core/platform/MoreSheetView.h"
#include "core/platform/SystemPreferences.h"
#include "core/profilefiles/ProfileFileControls.h"
#include "core/recording/TouchRecorder.h"

namespace tactora {

// The views of the parts beside the controller that the controller itself never touches, and
// what only those parts reach: not owned, each must outlive the program. A part without its
// view never shows it; without touch devices, nothing but the Magic Mouse is used; without the
// system's preferences, its trackpad settings read as their defaults.
struct PartViews {
    AdvancedSheetView* advanced = nullptr;
    MoreSheetView* moreSheet = nullptr;
    TouchDevices* touchDevices = nullptr;
    DeviceTableView* deviceTable = nullptr;
    const SystemPreferences* systemPreferences = nullptr;
};

// The running program: the controller and the parts beside it, wired together. The controller
// owns what the base system gives it; each part here learns what happens as one of its
// observers and reaches it only through a narrow interface of its own:
//
//   keepgestures/ keeping gestures on by themselves, the login item and the permission reset
//   frontmost/   profiles that follow the application in front, and the applications sheet
//   liveview/    the settings window's live view of the touch surface
//   feedback/    the finger count in the menu bar
//   recording/   the recording of touch traces
//   profilefiles/ deleting, exporting and importing profiles
//   moreactions/ the further actions (opening, Shortcuts, media keys, the system's views,
//                modifier clicks), which the controller hands on through ExtraActionPerformer
//   misfire/     the options against accidental gestures and the tap's limits, which the
//                controller consults through TouchJudge
//   moregestures/ the gestures beyond the eight, which the controller feeds through
//                GestureExtension
//   moresheet/   the More Gestures sheet, which edits their actions (the further ones through
//                ExtraActionPerformer, as the gesture rows do), shortcuts and top band
//   advanced/    the Advanced sheet, which edits those options and limits, and its try area
//   devices/     the trackpads beside the Magic Mouse: which are used, and their taps and
//                clicks, whose events the controller hands on through DeviceEvents
//   devicetable/ the devices in the settings window, the trackpads' gesture rows in place of
//                the mouse's, and their conflicts with the system's own gestures
//
// The shell sends each menu item and control to the part that owns it. Main thread only, like
// everything it holds; made once the string table is installed.
class Tactora {
  public:
    // Without the further actions: a gesture mapped to one does nothing.
    explicit Tactora(ControllerServices services, PartViews views = {});
    // With the further actions, carried out through `platform`.
    Tactora(const ControllerServices& services, ExtraActionPlatform platform, PartViews views = {});
    Tactora(const Tactora&) = delete;
    Tactora& operator=(const Tactora&) = delete;
    Tactora(Tactora&&) = delete;
    Tactora& operator=(Tactora&&) = delete;
    ~Tactora();

    Controller& controller() { return *controller_; }
    const std::shared_ptr<Controller>& sharedController() const { return controller_; }
    GestureKeeper& keeper() { return *keeper_; }
    FrontmostProfiles& frontmost() { return *frontmost_; }
    LiveView& liveView() { return *liveView_; }
    MenuBarFeedback& feedback() { return *feedback_; }
    TouchRecorder& recorder() { return recorder_; }
    ProfileFileControls& profileFiles() { return profileFiles_; }
    // Nothing when made without the further actions.
    ExtraActions* extraActions() { return extras_.get(); }
    MisfireGuard& misfireGuard() { return *guard_; }
    MoreGesturesExtension& moreGestures() { return *more_; }
    AdvancedSettings& advanced() { return advanced_; }
    MoreSheet& moreSheet() { return moreSheet_; }
    DeviceGestures& deviceGestures() { return *devices_; }
    DeviceTable& deviceTable() { return deviceTable_; }

  private:
    // Stands in for the Advanced sheet when there is none: shows nothing.
    class NoAdvancedSheet final : public AdvancedSheetView {
      public:
        void show(const AdvancedSheet& /*sheet*/) override {}
        void showTries(const std::vector<TryLine>& /*tries*/,
                       const std::string& /*announcement*/) override {}
    };
    // Stands in for the More Gestures sheet when there is none: shows nothing.
    class NoMoreSheet final : public MoreSheetView {
      public:
        void showMoreSheet(const MoreSheetContent& /*content*/) override {}
    };

    // Stands in for the touch devices when there are none: lists nothing, starts nothing.
    class NoTouchDevices final : public TouchDevices {
      public:
        void useOthers(DeviceFrameCallback /*callback*/, Choice /*choose*/) override {}
        bool refresh() override { return false; }
        std::vector<TouchDevice> devices() const override { return {}; }
        std::uint64_t deviceForSender(std::uint64_t /*senderID*/) override { return 0; }
        bool watch(std::function<void()> /*changed*/) override { return false; }
    };

    // Stands in for the devices' part of the window when there is none: shows nothing.
    class NoDeviceTable final : public DeviceTableView {
      public:
        void showDeviceTable(const DeviceTableContent& /*content*/) override {}
    };
    // Stands in for the system's preferences when there are none: holds nothing.
    class NoSystemPreferences final : public SystemPreferences {
      public:
        std::optional<std::int64_t> integer(std::string_view /*domain*/,
                                            std::string_view /*key*/) const override {
            return std::nullopt;
        }
    };

    Tactora(ControllerServices services, std::shared_ptr<ExtraActions> extras, PartViews views);

    std::shared_ptr<ExtraActions> extras_;
    std::shared_ptr<MisfireGuard> guard_;
    std::shared_ptr<MoreGesturesExtension> more_;
    NoTouchDevices noTouchDevices_;
    std::shared_ptr<DeviceGestures> devices_;
    std::shared_ptr<Controller> controller_;
    ControllerGestureRunner runner_;
    std::shared_ptr<GestureKeeper> keeper_;
    std::shared_ptr<FrontmostProfiles> frontmost_;
    std::shared_ptr<LiveView> liveView_;
    std::shared_ptr<MenuBarFeedback> feedback_;
    TouchRecorder recorder_;
    ProfileFileControls profileFiles_;
    NoAdvancedSheet noAdvancedSheet_;
    NoMoreSheet noMoreSheet_;
    AdvancedSettings advanced_;
    MoreSheet moreSheet_;
    NoDeviceTable noDeviceTable_;
    NoSystemPreferences noSystemPreferences_;
    DeviceTable deviceTable_;
};

}  // namespace tactora
