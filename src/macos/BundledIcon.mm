#include "macos/BundledIcon.h"

namespace tactora::macos {

NSImage* _Nullable loadBundledIcon() {
    NSString* path = [NSBundle.mainBundle pathForResource:@"Tactora" ofType:@"icns"];
    if (path == nil) {
        return nil;
    }
    return [[NSImage alloc] initWithContentsOfFile:path];
}

}  // namespace tactora::macos
