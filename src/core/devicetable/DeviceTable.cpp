#include "core/devicetable/DeviceTable.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "core/app/ShortcutForProfile.h"
#include "core/devices/SystemGestureConflicts.h"
#include "core/devicetable/DeviceTableRows.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"

namespace tactora {

DeviceTable::DeviceTable(DeviceTableServices services) : services_(services) {}

const GestureSlots& DeviceTable::slots() const {
    return services_.switcher.profiles().current().trackpad;
}

// The conflicts are listed in the sheet, which is there once a trackpad has been seen, whichever
// surface's rows the window shows.
DeviceTableContent DeviceTable::content() const {
    const DeviceGestures& devices = services_.devices;
    const bool trackpadSeen = devices.trackpadSeen();
    DeviceTableContent content{
        .showsSurfaceChoice = trackpadSeen,
        .openTitle = L("devices.open"),
        .mouseSurface = L("devices.surface.mouse"),
        .trackpadSurface = L("devices.surface.trackpads"),
        .surfaceHelp = L("devices.surface.help"),
        .showsTrackpadRows = trackpadSeen && surface_ == SurfaceKind::trackpad,
        .rows = devicetable::trackpadRows(slots(), services_.extras),
        .devicesTitle = L("devices.title"),
        .devices = devicetable::deviceLines(
            devices.devices(),
            [&devices](const TouchDevice& device) { return devices.uses(device); }),
        .hint = L("devices.trackpad.hint"),
        .conflicts = {},
        .doneTitle = L("devices.done"),
    };
    if (trackpadSeen) {
        content.conflicts = devicetable::conflictLines(slots(), settings_);
        devicetable::markConflicts(content.rows, content.conflicts);
    }
    return content;
}

void DeviceTable::show() {
    if (!launched_) {
        return;
    }
    shownProfile_ = services_.switcher.profiles().activeID();
    shownSlots_ = slots();
    services_.view.showDeviceTable(content());
}

void DeviceTable::readSettings() {
    settings_ = readTrackpadSettings(services_.systemPreferences);
}

// --- The devices ------------------------------------------------------------------------------

void DeviceTable::setUses(std::uint64_t device, bool use) {
    for (const TouchDevice& listed : services_.devices.devices()) {
        if (listed.id == device) {
            // Tells devicesChanged() through the list's watcher when the use changed.
            services_.devices.setUses(listed, use);
            break;
        }
    }
    show();
}

void DeviceTable::chooseSurface(SurfaceKind surface) {
    surface_ = surface;
    show();
}

void DeviceTable::devicesChanged() {
    show();
}

void DeviceTable::valuesChanged() {
    show();
}

// --- The trackpads' rows ----------------------------------------------------------------------

void DeviceTable::changed(std::int64_t slot, ActionIndex action) {
    if (!slot::isValid(slot)) {
        show();
        return;
    }
    if (const std::optional<ExtraAction> extra = action::extra(action)) {
        choose(slot, *extra);
        return;
    }
    const auto index = static_cast<std::size_t>(slot);
    if (action::isValid(action)) {
        const GestureSlots& current = slots();
        if (action == action::custom && !current.shortcuts.at(index)) {
            // The recording stores the shortcut and the custom action together when it is saved.
            record(slot);
            return;
        }
        if (action != current.actions.at(index) || current.extraAt(index)) {
            services_.switcher.dropPendingWork();
            services_.switcher.profiles().setAction(action, slot, SurfaceKind::trackpad);
        }
    }
    // Also puts a pop-up whose choice was refused back on the stored action.
    show();
}

void DeviceTable::recordShortcut(std::int64_t slot) {
    if (!slot::isValid(slot)) {
        return;
    }
    if (const std::optional<SlotExtra> extra = slots().extraAt(static_cast<std::size_t>(slot))) {
        choose(slot, extra->action);
        return;
    }
    record(slot);
}

void DeviceTable::record(std::int64_t slot) {
    if (const std::optional<SavedShortcut> shortcut =
            recordShortcutForProfile(services_.switcher, services_.dialogs)) {
        services_.switcher.profiles().setShortcut(*shortcut, slot, SurfaceKind::trackpad);
    }
    show();
}

void DeviceTable::choose(std::int64_t slot, ExtraAction extra) {
    ExtraActionPerformer* const extras = services_.extras;
    if (extras == nullptr) {
        show();
        return;
    }
    ProfileSwitcher& switcher = services_.switcher;
    switcher.dropPendingWork();
    // Choosing the slot's own action again changes its value, starting from the one it has.
    const std::optional<SlotExtra> held = slots().extraAt(static_cast<std::size_t>(slot));
    const std::string current = held && held->action == extra ? held->value : "";
    // A value may come after the list of Shortcuts arrived; by then it belongs to the same
    // profile only.
    extras->choose(extra, current,
                   [this, alive = std::weak_ptr<int>(lifetime_), slot, extra,
                    profile = switcher.profiles().activeID()](const std::string& value) {
                       ProfileSwitcher& later = services_.switcher;
                       if (alive.expired() || later.profiles().activeID() != profile) {
                           return;
                       }
                       later.dropPendingWork();
                       later.profiles().setExtra({extra, value}, slot, SurfaceKind::trackpad);
                       show();
                   });
    // Also puts the pop-up back on the stored action when the choice was cancelled.
    show();
}

void DeviceTable::openSettings(std::int64_t tag) {
    for (const SystemTrackpadGesture gesture : systemTrackpadGestures) {
        if (static_cast<std::int64_t>(gesture) == tag) {
            services_.workspace.openURL(std::string(settingsAddress(gesture)));
            return;
        }
    }
}

// --- What the controller tells ----------------------------------------------------------------

void DeviceTable::launched(double /*time*/) {
    launched_ = true;
    readSettings();
    show();
}

void DeviceTable::windowShown(const MomentNote& /*note*/) {
    readSettings();
    show();
}

void DeviceTable::activeChanged(const ActiveNote& note) {
    if (note.active) {
        readSettings();
        show();
    }
}

void DeviceTable::profileSelected(const ProfileNote& /*note*/) {
    show();
}

void DeviceTable::refreshed(double /*time*/) {
    if (launched_ &&
        (shownProfile_ != services_.switcher.profiles().activeID() || shownSlots_ != slots())) {
        show();
    }
}

}  // namespace tactora
