#include "macos/SettingsWindowBuilder.h"

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "macos/Labels.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

constexpr CGFloat windowWidth = 790;
constexpr CGFloat windowHeight = 820;
constexpr CGFloat margin = 28;
constexpr CGFloat top = 24;
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

NSWindow* SettingsWindowBuilder::build() {
    NSWindow* window = makeWindow();
    makeColumn(window);
    addHeader();
    addNote("intro", NSFont.systemFontSize);
    controls_.status.font = [NSFont systemFontOfSize:13 weight:NSFontWeightSemibold];
    add(controls_.status);
    controls_.permission.font = [NSFont systemFontOfSize:12];
    add(controls_.permission);
    addButtonRow({{"permission.access", @selector(access)},
                  {"permission.monitor", @selector(monitor)},
                  {"reconnect", @selector(reconnect)}});
    addProfileRow();
    addEnableSwitch();
    for (const GestureRow& row : gestureRows()) {
        addGestureRow(row);
    }
    addNote("record.hint", 11);
    controls_.live.font = [NSFont monospacedSystemFontOfSize:12 weight:NSFontWeightRegular];
    add(controls_.live);
    add(makeButton("test.desktop", @selector(testDesktop)));
    addNote("footer", 11);
    return window;
}

NSWindow* SettingsWindowBuilder::makeWindow() {
    NSWindow* window =
        [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, windowWidth, windowHeight)
                                    styleMask:NSWindowStyleMaskTitled | NSWindowStyleMaskClosable |
                                              NSWindowStyleMaskMiniaturizable
                                      backing:NSBackingStoreBuffered
                                        defer:NO];
    window.title = @"Tactora 0.2.1 · Magic Mouse";
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

void SettingsWindowBuilder::addNote(std::string_view key, CGFloat fontSize) {
    NSTextField* note = makeWrappingLabel(L(key), [NSFont systemFontOfSize:fontSize]);
    note.textColor = NSColor.secondaryLabelColor;
    add(note);
}

void SettingsWindowBuilder::addHeader() {
    NSImageView* icon = [NSImageView imageViewWithImage:NSApp.applicationIconImage];
    icon.imageScaling = NSImageScaleProportionallyUpOrDown;
    fixWidth(icon, iconSide);
    [icon.heightAnchor constraintEqualToConstant:iconSide].active = YES;
    NSTextField* hero = makeLabel(L("hero"), [NSFont boldSystemFontOfSize:26]);
    NSStackView* header = makeRow(@[ icon, hero ], 12);
    header.alignment = NSLayoutAttributeCenterY;
    add(header);
}

void SettingsWindowBuilder::addButtonRow(std::initializer_list<ButtonSpec> buttons) {
    NSMutableArray<NSView*>* views = [NSMutableArray array];
    for (const ButtonSpec& spec : buttons) {
        [views addObject:makeButton(spec.key, spec.action)];
    }
    add(makeRow(views, 8));
}

void SettingsWindowBuilder::addProfileRow() {
    NSPopUpButton* menu = controls_.profileMenu;
    menu.target = target_;
    menu.action = @selector(selectProfile);
    fixWidth(menu, 220);
    add(makeRow(
        @[
            makeLabel(L("profile.label"), [NSFont systemFontOfSize:NSFont.systemFontSize]), menu,
            makeButton("profile.new", @selector(newProfile)),
            makeButton("profile.rename", @selector(renameProfile)),
            makeButton("profile.duplicate", @selector(duplicateProfile))
        ],
        8));
}

void SettingsWindowBuilder::addEnableSwitch() {
    controls_.enabled.target = target_;
    controls_.enabled.action = @selector(toggle);
    add(controls_.enabled);
}

void SettingsWindowBuilder::addGestureRow(const GestureRow& row) {
    if (row.heading) {
        NSTextField* heading = makeLabel(*row.heading, [NSFont boldSystemFontOfSize:12]);
        heading.textColor = NSColor.secondaryLabelColor;
        add(heading);
    }
    NSTextField* fingers =
        makeLabel(row.fingerLabel, [NSFont systemFontOfSize:NSFont.systemFontSize]);
    fixWidth(fingers, 100);
    const auto slot = static_cast<NSInteger>(row.slot);
    add(makeRow(@[ fingers, makeActionMenu(slot), makeRecordButton(slot) ], 18));
}

NSPopUpButton* SettingsWindowBuilder::makeActionMenu(NSInteger slot) {
    NSPopUpButton* menu = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
    // Items go straight into the menu so that an item's index is always its action's index.
    for (const std::string& choice : choices()) {
        [menu.menu addItem:[[NSMenuItem alloc] initWithTitle:toNSString(choice)
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

NSButton* SettingsWindowBuilder::makeRecordButton(NSInteger slot) {
    NSButton* button = makeButton("record.button", @selector(recordShortcut:));
    button.tag = slot;
    fixWidth(button, 215);
    [controls_.recordButtons addObject:button];
    return button;
}

NSButton* SettingsWindowBuilder::makeButton(std::string_view key, SEL action) {
    NSButton* button = [NSButton buttonWithTitle:toNSString(L(key)) target:target_ action:action];
    button.bezelStyle = NSBezelStylePush;
    return button;
}

}  // namespace tactora::macos
