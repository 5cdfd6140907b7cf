#pragma once

#import <AppKit/AppKit.h>

#include "core/platform/KeyPress.h"

namespace tactora::macos {

// What the core needs to know of a key-down event seen while `dialogWindow` is open.
KeyPress keyPressFrom(NSEvent* _Nonnull event, NSWindow* _Nullable dialogWindow);

}  // namespace tactora::macos
