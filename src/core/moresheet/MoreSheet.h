#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "core/actions/ActionIndex.h"
#include "core/app/ControllerObserver.h"
#include "core/app/ProfileSwitcher.h"
#include "core/platform/Dialogs.h"
#include "core/platform/MoreSheetView.h"
#include "core/profiles/MoreGestureSlot.h"
#include "core/profiles/Uuid.h"

namespace tactora {

// The More Gestures sheet: the active profile's gestures beyond the eight, each with the gesture
// rows' action pop-up and shortcut recording, and the depth of the top band. Every choice is
// stored at once in the active profile and shown; while the sheet is open it shows whichever
// profile is active, following a switch as it happens. Reaches the profiles through the
// controller's profile switcher and learns of switches as one of its observers.
//
// Main thread only.
class MoreSheet final : public ControllerObserver {
  public:
    MoreSheet(ProfileSwitcher& switcher, Dialogs& dialogs, MoreSheetView& view);

    // The "More Gestures…" button: shows the sheet of the active profile.
    void open();
    // The sheet closed (Done, Escape); nothing is shown again until the next open().
    void closed();
    bool isOpen() const { return shownProfile_.has_value(); }

    // A row's pop-up chose `action` for the slot tagged `slot`. The custom action of a slot
    // without a shortcut records one first and is stored only with it. An unknown slot or action
    // stores nothing and shows the sheet as it was.
    void changed(std::int64_t slot, ActionIndex action);
    // A row's record button: runs the recording dialog and, when it is saved, stores the
    // shortcut and makes the slot custom.
    void recordShortcut(std::int64_t slot);
    // The depth slider moved to `depth`: stores the nearest of its stops when that is a change.
    void setTopBand(double depth);

    // Called after every change this sheet stores in the active profile, so that what recognises
    // the further gestures can take the new slots at once.
    void setMappingChanged(std::function<void()> changed) { mappingChanged_ = std::move(changed); }

    // A switch of profile while the sheet is open shows the new profile's gestures.
    void profileSelected(const ProfileNote& note) override;
    // So does a profile made active without a selection (a new or duplicated profile).
    void refreshed(double time) override;

  private:
    void show();
    void showIfOpen();
    void record(MoreGestureSlot slot);
    void stored();
    static std::optional<MoreGestureSlot> slotOf(std::int64_t tag);

    ProfileSwitcher& switcher_;
    Dialogs& dialogs_;
    MoreSheetView& view_;
    std::function<void()> mappingChanged_;
    std::optional<Uuid> shownProfile_;  // the profile on show while the sheet is open
};

}  // namespace tactora
