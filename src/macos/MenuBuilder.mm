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
        case MenuCommand::about:
            return @selector(orderFrontStandardAboutPanel:);
        case MenuCommand::hide:
            return @selector(hide:);
        case MenuCommand::hideOthers:
            return @selector(hideOtherApplications:);
        case MenuCommand::showAll:
            return @selector(unhideAllApplications:);
        case MenuCommand::minimize:
            return @selector(performMiniaturize:);
        case MenuCommand::bringAllToFront:
            return @selector(arrangeInFront:);
        case MenuCommand::separator:
            break;
    }
    return nullptr;
}

// The controller's own commands.
bool goesToController(MenuCommand command) {
    return command == MenuCommand::show || command == MenuCommand::pause ||
           command == MenuCommand::quit || command == MenuCommand::toggleMenuBarFeedback ||
           command == MenuCommand::recordTouches;
}

// The shared application's own commands, which it answers whichever window is in front.
bool goesToApplication(MenuCommand command) {
    return command == MenuCommand::about || command == MenuCommand::hide ||
           command == MenuCommand::hideOthers || command == MenuCommand::showAll ||
           command == MenuCommand::bringAllToFront;
}

// Every other command travels the responder chain from the focus.
id targetFor(MenuCommand command, TAApplicationDelegate* controller) {
    if (goesToController(command)) {
        return controller;
    }
    return goesToApplication(command) ? NSApp : nil;
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
    built.target = targetFor(entry.command, target_);
    built.state = entry.checked ? NSControlStateValueOn : NSControlStateValueOff;
    if (entry.withOption) {
        built.keyEquivalentModifierMask = NSEventModifierFlagCommand | NSEventModifierFlagOption;
    }
    return built;
}

}  // namespace tactora::macos
