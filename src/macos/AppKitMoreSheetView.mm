#include "macos/AppKitMoreSheetView.h"

namespace tactora::macos {

AppKitMoreSheetView::AppKitMoreSheetView(TASettingsControls* controls, id<TAMoreSheetTarget> target)
    : controls_(controls), sheet_([[TAMoreSheet alloc] init]) {
    sheet_.target = target;
}

void AppKitMoreSheetView::showMoreSheet(const MoreSheetContent& content) {
    if (controls_.window != nil) {
        [sheet_ showOnWindow:controls_.window content:content];
    }
}

}  // namespace tactora::macos
