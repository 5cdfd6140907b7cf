#pragma once

#import <AppKit/AppKit.h>

namespace tactora::macos {

// The application icon shipped in the main bundle (resource "Tactora" of type "icns"), or nil
// when it is missing or does not decode.
NSImage* _Nullable loadBundledIcon();

}  // namespace tactora::macos
