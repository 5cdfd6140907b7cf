#pragma once

#import <AppKit/AppKit.h>

#include <string>

namespace tactora::macos {

// An item of an action pop-up: its title, and the action it stands for as its tag, so that
// separators and any order of items leave the action readable from the selected item.
NSMenuItem* makeActionItem(const std::string& title, NSInteger action);

}  // namespace tactora::macos
