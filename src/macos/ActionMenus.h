#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

#include "core/platform/ActionMenuEntry.h"

namespace tactora::macos {

// An item of an action pop-up: its title, and the action it stands for as its tag, so that
// separators and any order of items leave the action readable from the selected item.
NSMenuItem* makeActionItem(const std::string& title, NSInteger action);

// Adds the further actions to an action pop-up's menu after the items it has: each group after
// a separator, each item tagged with its action.
void addActionGroups(NSMenu* menu, const std::vector<std::vector<ActionMenuEntry>>& groups);

}  // namespace tactora::macos
