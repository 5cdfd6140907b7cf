#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "core/actions/ActionIndex.h"
#include "core/actions/ExtraAction.h"
#include "core/app/ControllerObserver.h"
#include "core/app/ExtraActionPerformer.h"
#include "core/app/ProfileSwitcher.h"
#include "core/platform/Dialogs.h"
#include "core/platform/MoreSheetView.h"
#include "core/profiles/MoreGestureSlot.h"
#include "core/profiles/Uuid.h"

namespace tactora {

// The More Gestures sheet: the active profile's gestures beyond the eight, each with the gesture
// rows' action pop-up (the further actions too, whose values are chosen as the rows choose
// theirs) and shortcut recording, and the depth of the top band. Every choice is
// stored at once in the active profile and shown; while the sheet is open it shows whichever
// profile is active, following a switch as it happens. Reaches the profiles through the
// controller's profile switcher and learns of switches as one of its observers.
//
// Main thread only.
class MoreSheet final : public ControllerObserver {
  public:
    // `extras` (not owned; it must outlive the sheet) chooses the further actions' values and
    // titles their buttons; without it a further action chosen in the sheet stores nothing.
    MoreSheet(ProfileSwitcher& switcher, Dialogs& dialogs, MoreSheetView& view,
              ExtraActionPerformer* extras = nullptr);

    // The "More Gestures…" button: shows the sheet of the active profile.
    void open();
    // The sheet closed (Done, Escape); nothing is shown again until the next open().
    void closed();
    bool isOpen() const { return shownProfile_.has_value(); }

    // A row's pop-up chose `action` for the slot tagged `slot`. The custom action of a slot
    // without a shortcut records one first and is stored only with it. A further action asks
    // for its value first (starting from the slot's own when it holds that action already) and
    // is stored with it; a cancelled choice keeps what the slot had. An unknown slot or action
    // stores nothing and shows the sheet as it was.
    void changed(std::int64_t slot, ActionIndex action);
    // A row's record button: runs the recording dialog and, when it is saved, stores the
    // shortcut and makes the slot custom. For a slot with a further action it chooses that
    // action's value again instead.
    void recordShortcut(std::int64_t slot);
    // What the further actions' buttons show may have changed by itself (the list of Shortcuts
    // arrived): shows the sheet again while it is open.
    void valuesChanged();
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
    void choose(MoreGestureSlot slot, ExtraAction extra);
    void stored();
    static std::optional<MoreGestureSlot> slotOf(std::int64_t tag);

    ProfileSwitcher& switcher_;
    Dialogs& dialogs_;
    MoreSheetView& view_;
    ExtraActionPerformer* extras_;
    std::function<void()> mappingChanged_;
    std::optional<Uuid> shownProfile_;  // the profile on show while the sheet is open
    // A value chosen later (the list of Shortcuts arrived) holds this weakly, and is dropped
    // once the sheet is gone.
    std::shared_ptr<int> lifetime_ = std::make_shared<int>(0);
};

}  // namespace tactora
