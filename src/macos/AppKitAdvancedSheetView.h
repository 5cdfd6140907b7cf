#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

#include "core/platform/AdvancedSheetView.h"
#import "macos/TAAdvancedSheet.h"
#import "macos/TASettingsControls.h"

namespace tactora::macos {

// The Advanced sheet on the settings window, once the window exists.
class AppKitAdvancedSheetView final : public AdvancedSheetView {
  public:
    AppKitAdvancedSheetView(TASettingsControls* controls, id<TAAdvancedSheetTarget> target);

    void show(const AdvancedSheet& sheet) override;
    void showTries(const std::vector<TryLine>& tries, const std::string& announcement) override;

  private:
    TASettingsControls* __strong controls_;
    TAAdvancedSheet* __strong sheet_;
};

}  // namespace tactora::macos
