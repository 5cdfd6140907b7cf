#include "macos/MenuBuilder.h"

#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

SEL selectorFor(MenuCommand command) {
    switch (command) {
        case MenuCommand::show:
            return @selector(show);
        case MenuCommand::pause:
            return @selector(pause);
        case MenuCommand::quit:
            return @selector(quit);
        case MenuCommand::recordTouches:
            return @selector(recordTouches);
        case MenuCommand::separator:
            break;
    }
    return nullptr;
}

}  // namespace

NSMenu* MenuBuilder::menu(const std::vector<MenuEntry>& entries) const {
    NSMenu* built = [[NSMenu alloc] init];
    for (const MenuEntry& entry : entries) {
        [built addItem:item(entry)];
    }
    return built;
}

NSMenuItem* MenuBuilder::item(const MenuEntry& entry) const {
    if (entry.command == MenuCommand::separator) {
        return [NSMenuItem separatorItem];
    }
    NSMenuItem* built = [[NSMenuItem alloc] initWithTitle:toNSString(entry.title)
                                                   action:selectorFor(entry.command)
                                            keyEquivalent:toNSString(entry.keyEquivalent)];
    built.target = target_;
    return built;
}

}  // namespace tactora::macos
