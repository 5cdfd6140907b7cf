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

}  // namespace tactora::macos
