#pragma once

#import <AppKit/AppKit.h>

namespace tactora::macos {

// Giving a control the value it already shows still makes AppKit measure it again and lay its
// window out anew, and the controller repeats its values five times a second. These assign a
// value only when it differs from the one shown, and say whether they did. Main thread only.
bool updateStringValue(NSTextField* field, NSString* value);
bool updateState(NSButton* button, NSControlStateValue state);
bool updateTitle(NSButton* button, NSString* title);
bool updateToolTip(NSView* view, NSString* toolTip);
bool updateEnabled(NSControl* control, BOOL enabled);
bool updateHidden(NSView* view, BOOL hidden);

}  // namespace tactora::macos
