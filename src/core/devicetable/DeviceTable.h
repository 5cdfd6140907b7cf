#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "core/actions/ActionIndex.h"
#include "core/actions/ExtraAction.h"
#include "core/app/ControllerObserver.h"
#include "core/app/ExtraActionPerformer.h"
#include "core/app/ProfileSwitcher.h"
#include "core/devices/DeviceGestures.h"
#include "core/devices/TrackpadSettings.h"
#include "core/platform/DeviceTableContent.h"
#include "core/platform/DeviceTableView.h"
#include "core/platform/Dialogs.h"
#include "core/platform/SystemPreferences.h"
#include "core/platform/Workspace.h"
#include "core/profiles/GestureSlots.h"
#include "core/profiles/SurfaceKind.h"
#include "core/profiles/Uuid.h"

namespace tactora {

// What the devices' part of the settings window reaches: not owned, each must outlive it.
struct DeviceTableServices {
    ProfileSwitcher& switcher;
    DeviceGestures& devices;
    Dialogs& dialogs;
    // Opens the system's settings where a competing gesture is switched off.
    Workspace& workspace;
    // Where the system keeps its own trackpad settings.
    const SystemPreferences& systemPreferences;
    DeviceTableView& view;
    // Chooses the further actions' values and titles their buttons; without it a further action
    // chosen in a trackpad row stores nothing.
    ExtraActionPerformer* extras = nullptr;
};

// The touch devices in the settings window. Once a trackpad has been seen: a choice between the
// Magic Mouse's gesture rows and the trackpads', and a sheet with every device seen and a box to
// use it, a hint, and one line for each mapped trackpad gesture that competes with a gesture of
// the system's own that is switched on, with a button that opens where that one is switched off
// (the competing row shows a warning sign too). The trackpads' rows edit the active profile's
// trackpad slots as the mouse's rows edit the mouse's (the same pop-ups, the further actions and
// shortcut recording), every choice stored at once.
//
// The system's trackpad settings are read again whenever the window is shown and whenever the
// application becomes active, since the user changes them in System Settings meanwhile. Nothing
// is shown before launching finished. An observer of the controller; main thread only.
class DeviceTable final : public ControllerObserver {
  public:
    explicit DeviceTable(DeviceTableServices services);

    // A device's box: uses the device with this id for gestures, or stops using it. The Magic
    // Mouse's box, and a device no longer listed, change nothing; the list is shown again either
    // way, so that a box the user changed shows what holds.
    void setUses(std::uint64_t device, bool use);
    // The choice above the gesture table. The trackpads' rows show only while trackpads are
    // chosen and a trackpad has been seen.
    void chooseSurface(SurfaceKind surface);
    SurfaceKind surface() const { return surface_; }
    // A trackpad row's pop-up chose `action` for `slot`, as the mouse's rows choose: the custom
    // action of a slot without a shortcut records one first, a further action asks for its value
    // first (a cancelled choice keeps what the slot had). An unknown slot or action stores
    // nothing; the rows are shown again either way.
    void changed(std::int64_t slot, ActionIndex action);
    // A trackpad row's record button: records a shortcut and makes the slot custom, or, for a
    // slot with a further action, chooses that action's value again.
    void recordShortcut(std::int64_t slot);
    // A conflict's button: opens the system's settings of the gesture it is tagged with. An
    // unknown tag opens nothing.
    void openSettings(std::int64_t tag);

    // The list of devices, or the use of one, changed.
    void devicesChanged();
    // What the further actions' buttons show may have changed by itself.
    void valuesChanged();

    // The system's trackpad settings as last read.
    const TrackpadSettings& settings() const { return settings_; }

    void launched(double time) override;
    void windowShown(const MomentNote& note) override;
    void activeChanged(const ActiveNote& note) override;
    void profileSelected(const ProfileNote& note) override;
    // Shows a profile made active without a selection (a new, duplicated or imported one), or
    // trackpad slots changed elsewhere.
    void refreshed(double time) override;

  private:
    DeviceTableContent content() const;
    // Shows the content now, even when unchanged: a control the user changed goes back to what
    // holds.
    void show();
    void readSettings();
    void record(std::int64_t slot);
    void choose(std::int64_t slot, ExtraAction extra);
    const GestureSlots& slots() const;

    DeviceTableServices services_;
    bool launched_ = false;
    SurfaceKind surface_ = SurfaceKind::mouse;
    TrackpadSettings settings_;
    // What was shown last, to tell whether a refresh changes anything.
    std::optional<Uuid> shownProfile_;
    std::optional<GestureSlots> shownSlots_;
    // A value chosen later (the list of Shortcuts arrived) holds this weakly, and is dropped once
    // the table is gone.
    std::shared_ptr<int> lifetime_ = std::make_shared<int>(0);
};

}  // namespace tactora
