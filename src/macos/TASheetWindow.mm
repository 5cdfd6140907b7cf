#import "macos/TASheetWindow.h"

@implementation TASheetWindow

// The window receives this when Escape (or Command-period) reaches it and no button of the
// sheet answers that key.
- (void)cancelOperation:(id)sender {
    if (self.onCancel != nil) {
        self.onCancel();
    }
}

@end
