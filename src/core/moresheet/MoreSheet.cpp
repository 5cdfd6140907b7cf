#include "core/moresheet/MoreSheet.h"

#include <cmath>
#include <string>

#include "core/app/ShortcutForProfile.h"
#include "core/moresheet/MoreSheetRows.h"

namespace tactora {

MoreSheet::MoreSheet(ProfileSwitcher& switcher, Dialogs& dialogs, MoreSheetView& view,
                     ExtraActionPerformer* extras)
    : switcher_(switcher), dialogs_(dialogs), view_(view), extras_(extras) {}

void MoreSheet::open() {
    show();
}

void MoreSheet::closed() {
    shownProfile_.reset();
}

void MoreSheet::show() {
    const WorkProfile& profile = switcher_.profiles().current();
    shownProfile_ = profile.id;
    view_.showMoreSheet(moresheet::moreSheetContent(profile.moreGestures, extras_));
}

void MoreSheet::showIfOpen() {
    if (isOpen()) {
        show();
    }
}

std::optional<MoreGestureSlot> MoreSheet::slotOf(std::int64_t tag) {
    if (tag < 0 || tag >= static_cast<std::int64_t>(moreslot::count)) {
        return std::nullopt;
    }
    return static_cast<MoreGestureSlot>(tag);
}

void MoreSheet::changed(std::int64_t slot, ActionIndex action) {
    const std::optional<MoreGestureSlot> gesture = slotOf(slot);
    ProfileStore& store = switcher_.profiles();
    if (const std::optional<ExtraAction> extra = action::extra(action); gesture && extra) {
        choose(*gesture, *extra);
        return;
    }
    if (gesture && action::isValid(action)) {
        const MoreGestureMap& map = store.current().moreGestures;
        if (action == action::custom && !map.shortcut(*gesture)) {
            // The recording stores the shortcut and the custom action together when it is saved.
            record(*gesture);
            return;
        }
        if (action != map.action(*gesture)) {
            store.setMoreAction(action, *gesture);
            stored();
        }
    }
    // Also puts a pop-up whose choice was refused back on the stored action.
    showIfOpen();
}

void MoreSheet::recordShortcut(std::int64_t slot) {
    const std::optional<MoreGestureSlot> gesture = slotOf(slot);
    if (!gesture) {
        return;
    }
    if (const std::optional<SlotExtra>& extra =
            switcher_.profiles().current().moreGestures.extra(*gesture)) {
        choose(*gesture, extra->action);
        return;
    }
    record(*gesture);
}

void MoreSheet::choose(MoreGestureSlot slot, ExtraAction extra) {
    if (extras_ == nullptr) {
        showIfOpen();
        return;
    }
    // Nothing half seen may complete after the panel, as with the recording.
    switcher_.dropPendingWork();
    const MoreGestureMap& map = switcher_.profiles().current().moreGestures;
    // Choosing the slot's own action again changes its value, starting from the one it has.
    const std::string current = map.action(slot) == action::index(extra) ? map.value(slot) : "";
    // A value may come after the list of Shortcuts arrived; by then it belongs to the same
    // profile only.
    extras_->choose(extra, current,
                    [this, alive = std::weak_ptr<int>(lifetime_), slot, extra,
                     profile = switcher_.profiles().activeID()](const std::string& value) {
                        if (alive.expired() || switcher_.profiles().activeID() != profile) {
                            return;
                        }
                        switcher_.dropPendingWork();
                        switcher_.profiles().setMoreExtra({extra, value}, slot);
                        stored();
                        showIfOpen();
                    });
    // Also puts the pop-up back on the stored action when the choice was cancelled.
    showIfOpen();
}

void MoreSheet::valuesChanged() {
    showIfOpen();
}

void MoreSheet::record(MoreGestureSlot slot) {
    if (const std::optional<SavedShortcut> shortcut =
            recordShortcutForProfile(switcher_, dialogs_)) {
        switcher_.profiles().setMoreShortcut(*shortcut, slot);
        stored();
    }
    showIfOpen();
}

void MoreSheet::setTopBand(double depth) {
    const std::optional<double> stop = moresheet::topBandStop(depth);
    ProfileStore& store = switcher_.profiles();
    if (stop &&
        std::abs(*stop - store.current().moreGestures.topBand) >= moresheet::topBandStep / 2) {
        store.setTopBand(*stop);
        stored();
    }
    // Also puts the slider on the stop it stands for.
    showIfOpen();
}

void MoreSheet::stored() {
    if (mappingChanged_) {
        mappingChanged_();
    }
}

void MoreSheet::profileSelected(const ProfileNote& /*note*/) {
    showIfOpen();
}

void MoreSheet::refreshed(double /*time*/) {
    if (isOpen() && switcher_.profiles().activeID() != *shownProfile_) {
        show();
    }
}

}  // namespace tactora
