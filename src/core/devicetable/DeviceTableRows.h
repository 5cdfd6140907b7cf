#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/app/ExtraActionPerformer.h"
#include "core/devices/SystemGestureConflicts.h"
#include "core/devices/TrackpadSettings.h"
#include "core/platform/DeviceTableContent.h"
#include "core/platform/TouchDevices.h"
#include "core/profiles/GestureSlots.h"

// What the settings window shows of the touch devices and of the trackpads' gestures. Texts
// localised, from the current string table; the action names are choices(), so
// initializeGlobals() must have run. Main thread only.
namespace tactora::devicetable {

// A device as its checkbox names it: its name (its kind when it has none), then its state.
std::string deviceTitle(const TouchDevice& device);

// One line per device, in the order given: the Magic Mouse always ticked and its box not to be
// changed, every other device ticked exactly when `uses` says so.
std::vector<DeviceLine> deviceLines(const std::vector<TouchDevice>& devices,
                                    const std::function<bool(const TouchDevice&)>& uses);

// The trackpads' eight rows, in the order and with the headings and finger labels of the Magic
// Mouse's, each pop-up offering the fifteen and then the further actions, and showing its
// slot's action and shortcut as the mouse's rows do; a slot with a further action shows the
// record button `extras` gives it (a disabled one without `extras`).
std::vector<TrackpadRow> trackpadRows(const GestureSlots& slots, ExtraActionPerformer* extras);

// The name System Settings gives a gesture of its own.
std::string systemGestureName(SystemTrackpadGesture gesture);

// One line per conflict of the mapped slots with the system gestures switched on, in the order
// of systemGestureConflicts(), each with the button that opens that gesture's settings (tagged
// with the gesture).
std::vector<ConflictLine> conflictLines(const GestureSlots& slots,
                                        const TrackpadSettings& settings);

// Gives each row the texts of its slot's conflicts, one per line, and the others none.
void markConflicts(std::vector<TrackpadRow>& rows, const std::vector<ConflictLine>& conflicts);

}  // namespace tactora::devicetable
