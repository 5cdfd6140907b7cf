#pragma once

#include "core/platform/MoreSheetView.h"
#import "macos/TAMoreSheet.h"
#import "macos/TASettingsControls.h"

namespace tactora::macos {

// The More Gestures sheet, shown on the settings window; what the user does in it goes to
// `target`.
class AppKitMoreSheetView final : public MoreSheetView {
  public:
    AppKitMoreSheetView(TASettingsControls* controls, id<TAMoreSheetTarget> target);

    void showMoreSheet(const MoreSheetContent& content) override;

  private:
    TASettingsControls* __strong controls_;
    TAMoreSheet* __strong sheet_;
};

}  // namespace tactora::macos
