#pragma once

#include "core/platform/MoreSheetContent.h"

namespace tactora {

// The More Gestures sheet on the settings window. What the user does in it reaches the
// moresheet part: a pop-up its changed(slot, action), a record button its recordShortcut(slot),
// the depth slider its setTopBand(depth), and closing it (Done, Escape) its closed().
// Main thread only.
class MoreSheetView {
  public:
    virtual ~MoreSheetView() = default;

    // Shows the sheet with this content or, while it is shown, replaces its content.
    virtual void showMoreSheet(const MoreSheetContent& content) = 0;
};

}  // namespace tactora
