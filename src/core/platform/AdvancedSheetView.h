#pragma once

#include <string>
#include <vector>

#include "core/platform/AdvancedSheet.h"

namespace tactora {

// The settings window's Advanced sheet. The shell sends the user's changes, the buttons and the
// closing of the sheet (Done, or Escape) to the core's AdvancedSettings. Main thread only.
class AdvancedSheetView {
  public:
    virtual ~AdvancedSheetView() = default;

    // Shows the sheet on the settings window with this content or, while it is shown, replaces
    // its content; a field being edited shows the new value too.
    virtual void show(const AdvancedSheet& sheet) = 0;
    // Replaces only the try area's lines (newest first), leaving every control as it is.
    // `announcement` is what VoiceOver is to announce: the newest line when it is new.
    virtual void showTries(const std::vector<TryLine>& tries, const std::string& announcement) = 0;
};

}  // namespace tactora
