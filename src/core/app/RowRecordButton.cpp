#include "core/app/RowRecordButton.h"

#include "core/localization/Localizer.h"

namespace tactora {

RecordButtonState rowRecordButton(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                                  const std::optional<SlotExtra>& extra,
                                  ExtraActionPerformer* extras) {
    if (extra && extras != nullptr) {
        return extras->rowButton(extra->action, extra->value);
    }
    return {
        .enabled = action == action::custom,
        .title = shortcut ? shortcut->label : L("record.button"),
        .toolTip = L("record.button"),
    };
}

}  // namespace tactora
