#include "macos/ActionMenus.h"

#include "macos/StringConversion.h"

namespace tactora::macos {

NSMenuItem* makeActionItem(const std::string& title, NSInteger action) {
    NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:toNSString(title)
                                                  action:nil
                                           keyEquivalent:@""];
    item.tag = action;
    return item;
}

void addActionGroups(NSMenu* menu, const std::vector<std::vector<ActionMenuEntry>>& groups) {
    for (const std::vector<ActionMenuEntry>& group : groups) {
        [menu addItem:NSMenuItem.separatorItem];
        for (const ActionMenuEntry& entry : group) {
            [menu addItem:makeActionItem(entry.title, static_cast<NSInteger>(entry.action))];
        }
    }
}

}  // namespace tactora::macos
