#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "core/localization/KeyArgument.h"
#include "core/localization/LocalizationKey.h"

namespace tactora {

// Every key the program looks up through L, with the arguments its callers pass, in order.
// Each table must hold exactly these keys, and each text exactly the conversions its shown
// arguments need (LocalizationAudit checks it).
inline constexpr auto localizationKeys = std::to_array<LocalizationKey>({
    // The action catalogue, in index order.
    LocalizationKey("action.default"),
    LocalizationKey("action.left"),
    LocalizationKey("action.right"),
    LocalizationKey("action.middle"),
    LocalizationKey("action.double"),
    LocalizationKey("action.copy"),
    LocalizationKey("action.paste"),
    LocalizationKey("action.cut"),
    LocalizationKey("action.undo"),
    LocalizationKey("action.redo"),
    LocalizationKey("action.back"),
    LocalizationKey("action.forward"),
    LocalizationKey("action.mission"),
    LocalizationKey("action.desktop"),
    LocalizationKey("action.custom"),
    // The actions beyond the first fifteen, in index order.
    LocalizationKey("action.open.app"),
    LocalizationKey("action.open.file"),
    LocalizationKey("action.open.url"),
    LocalizationKey("action.shortcut.run"),
    LocalizationKey("action.media.play"),
    LocalizationKey("action.media.next"),
    LocalizationKey("action.media.previous"),
    LocalizationKey("action.volume.up"),
    LocalizationKey("action.volume.down"),
    LocalizationKey("action.volume.mute"),
    LocalizationKey("action.space.left"),
    LocalizationKey("action.space.right"),
    LocalizationKey("action.app.expose"),
    LocalizationKey("action.launchpad"),
    LocalizationKey("action.notifications"),
    LocalizationKey("action.spotlight"),
    LocalizationKey("action.lookup"),
    LocalizationKey("action.screenshot"),
    LocalizationKey("action.click.command"),
    LocalizationKey("action.click.option"),
    LocalizationKey("action.click.shift"),
    LocalizationKey("action.click.control"),
    // Outcomes of performing an action; "action.failed" shows the Dock's status code, and
    // "error.action" the action's display name and that code.
    LocalizationKey("action.sent"),
    LocalizationKey("action.failed", {integerArgument}),
    LocalizationKey("error.action", {stringArgument, integerArgument}),
    LocalizationKey("shortcut.missing"),
    LocalizationKey("error.enable"),
    LocalizationKey("error.paused"),
    // Recognised gestures, by finger count.
    LocalizationKey("gesture.tap", {integerArgument}),
    LocalizationKey("gesture.click", {integerArgument}),
    // Status lines: fingers, last gesture, last action; then the two permission states.
    LocalizationKey("live", {integerArgument, stringArgument, stringArgument}),
    LocalizationKey("permissions", {stringArgument, stringArgument}),
    LocalizationKey("ok"),
    LocalizationKey("pending"),
    // The master switch and the menus.
    LocalizationKey("enable"),
    LocalizationKey("menu.open"),
    LocalizationKey("menu.pause"),
    LocalizationKey("menu.exit"),
    LocalizationKey("menu.quit"),
    LocalizationKey("menu.active"),
    LocalizationKey("menu.feedback"),
    // The standard Edit and Window menus of the menu bar.
    LocalizationKey("menu.edit"),
    LocalizationKey("menu.undo"),
    LocalizationKey("menu.redo"),
    LocalizationKey("menu.cut"),
    LocalizationKey("menu.copy"),
    LocalizationKey("menu.paste"),
    LocalizationKey("menu.select_all"),
    LocalizationKey("menu.window"),
    LocalizationKey("menu.close_window"),
    // The rest of the standard application and Window menus.
    LocalizationKey("menu.about"),
    LocalizationKey("menu.preferences"),
    LocalizationKey("menu.hide"),
    LocalizationKey("menu.hide_others"),
    LocalizationKey("menu.show_all"),
    LocalizationKey("menu.minimize"),
    LocalizationKey("menu.bring_all_to_front"),
    // Sensor states: each gets the bridge's error code, which only a failed start shows.
    LocalizationKey("sensor.not_started", {unshownIntegerArgument}),
    LocalizationKey("sensor.connected", {unshownIntegerArgument}),
    LocalizationKey("sensor.blocked", {integerArgument}),
    LocalizationKey("sensor.missing", {unshownIntegerArgument}),
    LocalizationKey("sensor.incompatible", {unshownIntegerArgument}),
    LocalizationKey("sensor.unavailable", {unshownIntegerArgument}),
    // The settings window.
    LocalizationKey("hero"),
    LocalizationKey("intro"),
    LocalizationKey("permission.access"),
    LocalizationKey("permission.monitor"),
    LocalizationKey("reconnect"),
    LocalizationKey("section.tap"),
    LocalizationKey("section.click"),
    LocalizationKey("finger.one"),
    LocalizationKey("test.desktop"),
    LocalizationKey("footer"),
    LocalizationKey("finger.many", {integerArgument}),
    LocalizationKey("record.button"),
    LocalizationKey("record.hint"),
    // The "More Gestures" sheet: its button in the settings window, its sections and rows (a
    // swipe's row shows the finger count with "finger.one" or "finger.many" beside it).
    LocalizationKey("more.button"),
    LocalizationKey("more.title"),
    LocalizationKey("more.intro"),
    LocalizationKey("more.section.region"),
    LocalizationKey("more.section.tip"),
    LocalizationKey("more.section.swipe"),
    LocalizationKey("more.section.hold"),
    LocalizationKey("more.tap.left"),
    LocalizationKey("more.tap.right"),
    LocalizationKey("more.tap.top"),
    LocalizationKey("more.top.depth"),
    LocalizationKey("more.tip.left"),
    LocalizationKey("more.tip.right"),
    LocalizationKey("more.swipe.up"),
    LocalizationKey("more.swipe.down"),
    LocalizationKey("more.swipe.left"),
    LocalizationKey("more.swipe.right"),
    LocalizationKey("more.hold"),
    LocalizationKey("more.done"),
    // What VoiceOver reads for the live view of the touch surface: the fingers on it, then the
    // last gesture ("gesture.tap" or "gesture.click") and the name of the action it performed.
    LocalizationKey("surface.idle", {integerArgument}),
    LocalizationKey("surface.gesture", {integerArgument, stringArgument}),
    LocalizationKey("surface.action", {integerArgument, stringArgument, stringArgument}),
    // The shortcut recording dialog.
    LocalizationKey("record.title"),
    LocalizationKey("record.help"),
    LocalizationKey("record.wait"),
    // Profiles and the naming dialog.
    LocalizationKey("profile.default"),
    LocalizationKey("profile.label"),
    LocalizationKey("profile.new"),
    LocalizationKey("profile.rename"),
    LocalizationKey("profile.duplicate"),
    LocalizationKey("profile.name"),
    LocalizationKey("profile.save"),
    LocalizationKey("cancel"),
    // The profile actions, deleting a profile, and profiles chosen by the application in front
    // (the profile's name, then the application's).
    LocalizationKey("profile.actions"),
    LocalizationKey("profile.applications"),
    LocalizationKey("profile.delete"),
    LocalizationKey("profile.delete.message", {stringArgument}),
    LocalizationKey("profile.delete.info"),
    LocalizationKey("profile.delete.button"),
    LocalizationKey("profile.automatic", {stringArgument, stringArgument}),
    // The applications sheet; its title gets the profile's name.
    LocalizationKey("apps.title", {stringArgument}),
    LocalizationKey("apps.info"),
    LocalizationKey("apps.column.name"),
    LocalizationKey("apps.column.id"),
    LocalizationKey("apps.add"),
    LocalizationKey("apps.remove"),
    LocalizationKey("apps.choose"),
    LocalizationKey("apps.choose.message"),
    LocalizationKey("apps.done"),
    // Exporting and importing profiles; the done lines get the number of profiles.
    LocalizationKey("export.menu"),
    LocalizationKey("export.file"),
    LocalizationKey("export.message"),
    LocalizationKey("export.failed"),
    LocalizationKey("export.write"),
    LocalizationKey("export.done", {integerArgument}),
    LocalizationKey("import.menu"),
    LocalizationKey("import.message"),
    LocalizationKey("import.failed"),
    LocalizationKey("import.unreadable"),
    LocalizationKey("import.large"),
    LocalizationKey("import.json"),
    LocalizationKey("import.shape"),
    LocalizationKey("import.empty"),
    LocalizationKey("import.blank"),
    LocalizationKey("import.duplicates"),
    LocalizationKey("import.done", {integerArgument}),
    // Touch traces: the status menu's item, the live line's note, where a recording went.
    LocalizationKey("menu.trace.start"),
    LocalizationKey("menu.trace.stop"),
    LocalizationKey("trace.live"),
    LocalizationKey("trace.started", {stringArgument}),
    LocalizationKey("trace.saved", {stringArgument}),
    LocalizationKey("trace.failed"),
    // Why a recording could not start: what could not be made, and the system's own words.
    LocalizationKey("trace.failed.permission", {stringArgument}),
    LocalizationKey("trace.failed.full", {stringArgument}),
    LocalizationKey("trace.failed.readonly", {stringArgument}),
    LocalizationKey("trace.failed.other", {stringArgument, stringArgument}),
    // What is wrong with a trace that can't be replayed; each gets the line's number.
    LocalizationKey("trace.error.header", {integerArgument}),
    LocalizationKey("trace.error.version", {integerArgument}),
    LocalizationKey("trace.error.time", {integerArgument}),
    LocalizationKey("trace.error.back", {integerArgument}),
    LocalizationKey("trace.error.event", {integerArgument}),
    LocalizationKey("trace.error.contact", {integerArgument}),
    LocalizationKey("trace.error.id", {integerArgument}),
    LocalizationKey("trace.error.crowded", {integerArgument}),
    LocalizationKey("trace.error.button", {integerArgument}),
    LocalizationKey("trace.error.source", {integerArgument}),
    LocalizationKey("trace.error.profile", {integerArgument}),
    LocalizationKey("trace.error.process", {integerArgument}),
    LocalizationKey("trace.error.switch", {integerArgument}),
    LocalizationKey("trace.error.extra", {integerArgument}),
    LocalizationKey("trace.error.device", {integerArgument}),
    LocalizationKey("trace.error.undeclared", {integerArgument}),
    // The replay's own failures; the argument is the file's path.
    LocalizationKey("replay.usage"),
    LocalizationKey("replay.unreadable", {stringArgument}),
    LocalizationKey("replay.profiles", {stringArgument}),
    // The score's own failures: the directory, or the label file and the line.
    LocalizationKey("score.usage"),
    LocalizationKey("score.empty", {stringArgument}),
    LocalizationKey("score.labels", {stringArgument, integerArgument}),
    // Key names in shortcut labels.
    LocalizationKey("key.space"),
    LocalizationKey("key.return"),
    LocalizationKey("key.tab"),
    LocalizationKey("key.delete"),
    LocalizationKey("key.escape"),
    LocalizationKey("key.forwarddelete"),
    // Keeping gestures on by themselves: the checkboxes and buttons, what it waits for, the
    // event tap's cool-down in seconds, a stale grant, the permission reset with the tool's exit
    // status, the login item with the system's error code, and secure input.
    LocalizationKey("keep.enable"),
    LocalizationKey("login.open"),
    LocalizationKey("permission.reset"),
    LocalizationKey("login.settings"),
    LocalizationKey("keep.wait.sensor"),
    LocalizationKey("keep.wait.accessibility"),
    LocalizationKey("keep.wait.monitoring"),
    LocalizationKey("keep.wait.tap"),
    LocalizationKey("keep.cooldown", {integerArgument}),
    LocalizationKey("permission.stale"),
    LocalizationKey("reset.failed", {integerArgument}),
    LocalizationKey("reset.done"),
    LocalizationKey("reset.running"),
    LocalizationKey("reset.timeout"),
    LocalizationKey("login.approval"),
    LocalizationKey("login.failed", {integerArgument}),
    LocalizationKey("secure.input"),
    // Choosing what an extra action opens or runs: the panels, the address field and the list
    // of Shortcuts.
    LocalizationKey("extra.choose"),
    LocalizationKey("extra.app.message"),
    LocalizationKey("extra.file.message"),
    LocalizationKey("extra.url.title"),
    LocalizationKey("extra.url.info"),
    LocalizationKey("extra.url.invalid", {stringArgument}),
    LocalizationKey("extra.shortcut.title"),
    LocalizationKey("extra.shortcut.info"),
    LocalizationKey("extra.shortcut.none"),
    // Performing them: a value that no longer names anything (by its name), an open or a
    // Shortcut that failed (with the Shortcut's exit status), a program that did not start (its
    // path); and a gesture row whose value is missing.
    LocalizationKey("extra.missing.app", {stringArgument}),
    LocalizationKey("extra.missing.file", {stringArgument}),
    LocalizationKey("extra.missing.url", {stringArgument}),
    LocalizationKey("extra.missing.shortcut", {stringArgument}),
    LocalizationKey("extra.failed.open", {stringArgument}),
    LocalizationKey("extra.failed.shortcut", {stringArgument, integerArgument}),
    LocalizationKey("extra.timeout.shortcut", {stringArgument}),
    LocalizationKey("extra.failed.start", {stringArgument}),
    LocalizationKey("extra.row.missing", {stringArgument}),
    // Why a touch, or its action, came to nothing: shown for a moment by the live view and in
    // the Advanced sheet's try area.
    LocalizationKey("reason.too_long"),
    LocalizationKey("reason.too_short"),
    LocalizationKey("reason.moved"),
    LocalizationKey("reason.too_many_fingers"),
    LocalizationKey("reason.click_during"),
    LocalizationKey("reason.click_after"),
    LocalizationKey("reason.profile_changed"),
    LocalizationKey("reason.application_changed"),
    LocalizationKey("reason.switch_changed"),
    LocalizationKey("reason.gestures_off"),
    LocalizationKey("reason.large_contact"),
    LocalizationKey("reason.edge_band"),
    LocalizationKey("reason.resting_contact"),
    LocalizationKey("reason.after_activity"),
    LocalizationKey("reason.during_press"),
    LocalizationKey("reason.drumming"),
    // The Advanced sheet: the button and menu item that open it, its options against accidents
    // and their values, the tap's limits, what a refused value should have been, the buttons.
    LocalizationKey("advanced.open"),
    LocalizationKey("advanced.title"),
    LocalizationKey("advanced.info"),
    LocalizationKey("advanced.quiet"),
    LocalizationKey("advanced.quiet.time"),
    LocalizationKey("advanced.large"),
    LocalizationKey("advanced.edges"),
    LocalizationKey("advanced.edge.left"),
    LocalizationKey("advanced.edge.right"),
    LocalizationKey("advanced.edge.front"),
    LocalizationKey("advanced.edge.back"),
    LocalizationKey("advanced.fingertips"),
    LocalizationKey("advanced.forget"),
    LocalizationKey("advanced.drumming"),
    LocalizationKey("advanced.fingertip.size"),
    LocalizationKey("advanced.limits"),
    LocalizationKey("advanced.shortest"),
    LocalizationKey("advanced.longest"),
    LocalizationKey("advanced.tolerance"),
    LocalizationKey("advanced.unit.ms"),
    LocalizationKey("advanced.unit.percent"),
    LocalizationKey("advanced.refused.quiet"),
    LocalizationKey("advanced.refused.edge"),
    LocalizationKey("advanced.refused.size"),
    LocalizationKey("advanced.refused.shortest"),
    LocalizationKey("advanced.refused.longest"),
    LocalizationKey("advanced.refused.tolerance"),
    LocalizationKey("advanced.refused.order"),
    LocalizationKey("advanced.recommended"),
    LocalizationKey("advanced.restore"),
    LocalizationKey("advanced.done"),
    // The try area: its title, what it shows before any touch, and one line per touch: the
    // gesture it became ("gesture.tap" or "gesture.click"), that gesture and why its action did
    // not run, or the fingers ("finger.one" or "finger.many") and why it became no gesture.
    LocalizationKey("advanced.try"),
    LocalizationKey("advanced.try.empty"),
    LocalizationKey("try.accepted", {stringArgument}),
    LocalizationKey("try.not_performed", {stringArgument, stringArgument}),
    LocalizationKey("try.rejected", {stringArgument, stringArgument}),
    LocalizationKey("try.rejected.plain", {stringArgument}),
    // The touch surfaces in the settings window: the label before their list, each surface's
    // kind and state (a failed start shows its error code), its entry (its name, or its kind
    // when it has none, then its state) and its checkbox's tooltip; the control that picks which
    // surface's gestures the table shows, and the hint about a trackpad's own taps and clicks.
    LocalizationKey("devices.title"),
    LocalizationKey("devices.kind.magic_mouse"),
    LocalizationKey("devices.kind.magic_trackpad"),
    LocalizationKey("devices.kind.built_in_trackpad"),
    LocalizationKey("devices.kind.other"),
    LocalizationKey("devices.state.off"),
    LocalizationKey("devices.state.connected"),
    LocalizationKey("devices.state.missing"),
    LocalizationKey("devices.state.blocked", {integerArgument}),
    LocalizationKey("devices.entry", {stringArgument, stringArgument}),
    LocalizationKey("devices.use.help"),
    LocalizationKey("devices.surface.mouse"),
    LocalizationKey("devices.surface.trackpads"),
    LocalizationKey("devices.surface.help"),
    LocalizationKey("devices.trackpad.hint"),
    // The system's own trackpad settings, by the names System Settings gives them; a mapped
    // gesture ("gesture.tap" or "gesture.click") that competes with one of them, and the button
    // that opens the settings pane where it is turned off.
    LocalizationKey("devices.system.tap_to_click"),
    LocalizationKey("devices.system.secondary_click"),
    LocalizationKey("devices.system.three_finger_drag"),
    LocalizationKey("devices.system.look_up"),
    LocalizationKey("devices.system.smart_zoom"),
    LocalizationKey("devices.conflict", {stringArgument, stringArgument}),
    LocalizationKey("devices.conflict.open"),
    // The button that opens the Touch Surfaces sheet, and the sheet's Done.
    LocalizationKey("devices.open"),
    LocalizationKey("devices.done"),
});

// The entry for `key`, or nothing when the program never looks it up.
constexpr std::optional<LocalizationKey> findLocalizationKey(std::string_view key) {
    for (const LocalizationKey& entry : localizationKeys) {
        if (entry.key() == key) {
            return entry;
        }
    }
    return std::nullopt;
}

}  // namespace tactora
