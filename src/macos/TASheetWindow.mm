#import "macos/TASheetWindow.h"

@implementation TASheetWindow

// The window receives this when Escape (or Command-period) reaches it and no button of the
// sheet answers that key.
- (void)cancelOperation:(id)sender {
    if (self.onCancel != nil) {
        self.onCancel();
    }
}

- (void)beginOn:(NSWindow*)parent ended:(void (^)(void))ended {
    if (self.sheetParent != nil) {
        return;
    }
    [parent beginSheet:self
        completionHandler:^(NSModalResponse) {
            ended();
        }];
}

@end
