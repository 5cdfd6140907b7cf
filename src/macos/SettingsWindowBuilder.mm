#include "macos/SettingsWindowBuilder.h"

#include "macos/Labels.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

constexpr CGFloat windowWidth = 790;
constexpr CGFloat windowHeight = 820;
constexpr CGFloat margin = 28;
constexpr CGFloat top = 24;
// Wrapping labels wrap to the column: the content less its margins.
constexpr CGFloat columnWidth = windowWidth - 2 * margin;
constexpr CGFloat iconSide = 44;

void fixWidth(NSView* view, CGFloat width) {
    [view.widthAnchor constraintEqualToConstant:width].active = YES;
}

NSStackView* makeRow(NSArray<NSView*>* views, CGFloat spacing) {
    NSStackView* row = [NSStackView stackViewWithViews:views];
    row.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    row.spacing = spacing;
    return row;
}

}  // namespace

SettingsWindowBuilder::SettingsWindowBuilder(TASettingsControls* controls,
                                             TAApplicationDelegate* target)
    : controls_(controls), target_(target) {}

NSWindow* SettingsWindowBuilder::build(const SettingsWindowTexts& texts) {
    NSWindow* window = makeWindow(texts.title);
    makeColumn(window);
    addHeader(texts.hero);
    addNote(texts.intro, NSFont.systemFontSize);
    controls_.status.font = [NSFont systemFontOfSize:13 weight:NSFontWeightSemibold];
    add(controls_.status);
    controls_.permission.font = [NSFont systemFontOfSize:12];
    add(controls_.permission);
    addPermissionRow(texts);
    addProfileRow(texts);
    addSwitchRow(texts);
    for (const GestureRow& row : texts.gestureRows) {
        addGestureRow(row, texts);
    }
    addNote(texts.recordHint, 11);
    controls_.live.font = [NSFont monospacedSystemFontOfSize:12 weight:NSFontWeightRegular];
    add(controls_.live);
    add(makeButton(texts.testDesktop, @selector(testDesktop)));
    addNote(texts.footer, 11);
    return window;
}

NSWindow* SettingsWindowBuilder::makeWindow(const std::string& title) {
    NSWindow* window =
        [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, windowWidth, windowHeight)
                                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                              NSWindowStyleMaskMiniaturizable
                                      backing:NSBackingStoreBuffered
                                        defer:NO];
    window.title = toNSString(title);
    // Closing only hides the window, so that the menus can bring the same one back.
    window.releasedWhenClosed = NO;
    [window center];
    return window;
}

void SettingsWindowBuilder::makeColumn(NSWindow* window) {
    column_ = [NSStackView stackViewWithViews:@[]];
    column_.orientation = NSUserInterfaceLayoutOrientationVertical;
    column_.alignment = NSLayoutAttributeLeading;
    column_.spacing = 10;
    column_.translatesAutoresizingMaskIntoConstraints = NO;
    NSView* content = window.contentView;
    [content addSubview:column_];
    [NSLayoutConstraint activateConstraints:@[
        [column_.leadingAnchor constraintEqualToAnchor:content.leadingAnchor constant:margin],
        [column_.trailingAnchor constraintEqualToAnchor:content.trailingAnchor constant:-margin],
        [column_.topAnchor constraintEqualToAnchor:content.topAnchor constant:top],
    ]];
}

void SettingsWindowBuilder::add(NSView* view) {
    [column_ addArrangedSubview:view];
}

void SettingsWindowBuilder::addNote(const std::string& text, CGFloat fontSize) {
    NSTextField* note = makeWrappingLabel(text, [NSFont systemFontOfSize:fontSize], columnWidth);
    note.textColor = NSColor.secondaryLabelColor;
    add(note);
}

void SettingsWindowBuilder::addHeader(const std::string& hero) {
    NSImageView* icon = [NSImageView imageViewWithImage:NSApp.applicationIconImage];
    icon.imageScaling = NSImageScaleProportionallyUpOrDown;
    fixWidth(icon, iconSide);
    [icon.heightAnchor constraintEqualToConstant:iconSide].active = YES;
    NSTextField* title = makeLabel(hero, [NSFont boldSystemFontOfSize:26]);
    NSStackView* header = makeRow(@[ icon, title ], 12);
    header.alignment = NSLayoutAttributeCenterY;
    add(header);
}

// The three permission buttons, then the two that repair things, hidden (and so taking no room
// in the row) until the controller shows them.
void SettingsWindowBuilder::addPermissionRow(const SettingsWindowTexts& texts) {
    NSMutableArray<NSView*>* views = [NSMutableArray array];
    for (const TitledAction& button : {TitledAction{texts.allowAccessibility, @selector(access)},
                                       TitledAction{texts.allowInputMonitoring, @selector(monitor)},
                                       TitledAction{texts.reconnect, @selector(reconnect)}}) {
        [views addObject:makeButton(button.title, button.action)];
    }
    wire(controls_.resetPermissions, texts.resetPermissions, @selector(resetPermissions));
    controls_.resetPermissions.bezelStyle = NSBezelStylePush;
    [views addObject:controls_.resetPermissions];
    wire(controls_.openLoginItems, texts.openLoginItems, @selector(openLoginItems));
    controls_.openLoginItems.bezelStyle = NSBezelStylePush;
    [views addObject:controls_.openLoginItems];
    NSStackView* row = makeRow(views, 8);
    row.detachesHiddenViews = YES;
    add(row);
}

void SettingsWindowBuilder::addProfileRow(const SettingsWindowTexts& texts) {
    NSPopUpButton* menu = controls_.profileMenu;
    menu.target = target_;
    menu.action = @selector(selectProfile);
    fixWidth(menu, 220);
    add(makeRow(
        @[
            makeLabel(texts.profileLabel, [NSFont systemFontOfSize:NSFont.systemFontSize]), menu,
            makeButton(texts.newProfile, @selector(newProfile)),
            makeButton(texts.renameProfile, @selector(renameProfile)),
            makeButton(texts.duplicateProfile, @selector(duplicateProfile))
        ],
        8));
}

// The master switch keeps its place in the column; the two choices that keep gestures going
// sit on its line.
void SettingsWindowBuilder::addSwitchRow(const SettingsWindowTexts& texts) {
    controls_.enabled.target = target_;
    controls_.enabled.action = @selector(toggle);
    wire(controls_.keepOn, texts.keepGesturesOn, @selector(toggleKeepOn));
    wire(controls_.loginItem, texts.openAtLogin, @selector(toggleLoginItem));
    add(makeRow(@[ controls_.enabled, controls_.keepOn, controls_.loginItem ], 18));
}

void SettingsWindowBuilder::wire(NSButton* button, const std::string& title, SEL action) {
    button.title = toNSString(title);
    button.target = target_;
    button.action = action;
}

void SettingsWindowBuilder::addGestureRow(const GestureRow& row, const SettingsWindowTexts& texts) {
    if (row.heading) {
        NSTextField* heading = makeLabel(*row.heading, [NSFont boldSystemFontOfSize:12]);
        heading.textColor = NSColor.secondaryLabelColor;
        add(heading);
    }
    NSTextField* fingers =
        makeLabel(row.fingerLabel, [NSFont systemFontOfSize:NSFont.systemFontSize]);
    fixWidth(fingers, 100);
    const auto slot = static_cast<NSInteger>(row.slot);
    add(makeRow(
        @[
            fingers, makeActionMenu(slot, texts.actionNames),
            makeRecordButton(slot, texts.recordButton)
        ],
        18));
}

NSPopUpButton* SettingsWindowBuilder::makeActionMenu(NSInteger slot,
                                                     const std::vector<std::string>& names) {
    NSPopUpButton* menu = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
    // Items go straight into the menu so that an item's index is always its action's index.
    for (const std::string& name : names) {
        [menu.menu addItem:[[NSMenuItem alloc] initWithTitle:toNSString(name)
                                                      action:nil
                                               keyEquivalent:@""]];
    }
    menu.tag = slot;
    menu.target = target_;
    menu.action = @selector(changed:);
    fixWidth(menu, 320);
    [controls_.actionMenus addObject:menu];
    return menu;
}

NSButton* SettingsWindowBuilder::makeRecordButton(NSInteger slot, const std::string& title) {
    NSButton* button = makeButton(title, @selector(recordShortcut:));
    button.tag = slot;
    fixWidth(button, 215);
    [controls_.recordButtons addObject:button];
    return button;
}

NSButton* SettingsWindowBuilder::makeButton(std::string_view title, SEL action) {
    NSButton* button = [NSButton buttonWithTitle:toNSString(title) target:target_ action:action];
    button.bezelStyle = NSBezelStylePush;
    return button;
}

}  // namespace tactora::macos
