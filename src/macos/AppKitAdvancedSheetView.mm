#include "macos/AppKitAdvancedSheetView.h"

namespace tactora::macos {

AppKitAdvancedSheetView::AppKitAdvancedSheetView(TASettingsControls* controls,
                                                 id<TAAdvancedSheetTarget> target)
    : controls_(controls), sheet_([[TAAdvancedSheet alloc] init]) {
    sheet_.target = target;
}

void AppKitAdvancedSheetView::show(const AdvancedSheet& sheet) {
    if (controls_.window != nil) {
        [sheet_ showOnWindow:controls_.window content:sheet];
    }
}

void AppKitAdvancedSheetView::showTries(const std::vector<TryLine>& tries,
                                        const std::string& announcement) {
    [sheet_ showTries:tries announcement:announcement];
}

}  // namespace tactora::macos
