#include "macos/ControlUpdates.h"

namespace tactora::macos {

bool updateStringValue(NSTextField* field, NSString* value) {
    if ([field.stringValue isEqualToString:value]) {
        return false;
    }
    field.stringValue = value;
    return true;
}

bool updateState(NSButton* button, NSControlStateValue state) {
    if (button.state == state) {
        return false;
    }
    button.state = state;
    return true;
}

bool updateTitle(NSButton* button, NSString* title) {
    if ([button.title isEqualToString:title]) {
        return false;
    }
    button.title = title;
    return true;
}

// A view without a tooltip reports nil; an empty one asks for none either.
bool updateToolTip(NSView* view, NSString* toolTip) {
    NSString* shown = view.toolTip != nil ? view.toolTip : @"";
    if ([shown isEqualToString:toolTip]) {
        return false;
    }
    view.toolTip = toolTip.length > 0 ? toolTip : nil;
    return true;
}

bool updateEnabled(NSControl* control, BOOL enabled) {
    if (control.enabled == enabled) {
        return false;
    }
    control.enabled = enabled;
    return true;
}

bool updateHidden(NSView* view, BOOL hidden) {
    if (view.hidden == hidden) {
        return false;
    }
    view.hidden = hidden;
    return true;
}

}  // namespace tactora::macos
