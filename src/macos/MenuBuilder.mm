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
        case MenuCommand::toggleMenuBarFeedback:
            return @selector(toggleMenuBarFeedback);
        // Windows and text views answer these through their undo manager; no public header
        // declares them.
        case MenuCommand::undo:
            return NSSelectorFromString(@"undo:");
        case MenuCommand::redo:
            return NSSelectorFromString(@"redo:");
        case MenuCommand::cut:
            return @selector(cut:);
        case MenuCommand::copy:
            return @selector(copy:);
        case MenuCommand::paste:
            return @selector(paste:);
        case MenuCommand::selectAll:
            return @selector(selectAll:);
        case MenuCommand::closeWindow:
            return @selector(performClose:);
        case MenuCommand::recordTouches:
            return @selector(recordTouches);
        case MenuCommand::separator:
            break;
    }
    return nullptr;
}

// The controller's own commands; the others travel the responder chain from the focus.
bool goesToController(MenuCommand command) {
    return command == MenuCommand::show || command == MenuCommand::pause ||
           command == MenuCommand::quit || command == MenuCommand::toggleMenuBarFeedback ||
           command == MenuCommand::recordTouches;
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
    built.target = goesToController(entry.command) ? target_ : nil;
    built.state = entry.checked ? NSControlStateValueOn : NSControlStateValueOff;
    return built;
}

}  // namespace tactora::macos
