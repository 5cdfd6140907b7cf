#pragma once

#include <optional>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/app/ExtraActionPerformer.h"
#include "core/platform/RecordButtonState.h"
#include "core/profiles/SlotExtra.h"

namespace tactora {

// The record button of a gesture row beside the Magic Mouse's (the More Gestures sheet's, the
// trackpads'): for a slot holding a further action, the button `extras` gives it; otherwise
// the record button, enabled for the custom action and titled with the slot's shortcut. Text
// from the current string table. Main thread only.
RecordButtonState rowRecordButton(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                                  const std::optional<SlotExtra>& extra,
                                  ExtraActionPerformer* extras);

}  // namespace tactora
