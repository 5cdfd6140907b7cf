#pragma once

#import <AppKit/AppKit.h>

#include <vector>

#include "core/platform/MenuEntry.h"
#import "macos/TAApplicationDelegate.h"

namespace tactora::macos {

// Builds menus from the controller's descriptions; every item sends its command to `target`.
class MenuBuilder {
  public:
    explicit MenuBuilder(TAApplicationDelegate* target) : target_(target) {}

    NSMenu* menu(const std::vector<MenuEntry>& entries) const;

  private:
    NSMenuItem* item(const MenuEntry& entry) const;

    TAApplicationDelegate* __weak target_;
};

}  // namespace tactora::macos
