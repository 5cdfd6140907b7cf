#include "macos/SettingsWindowBuilder.h"

#include <algorithm>

#include "core/advanced/AdvancedSettings.h"
#include "macos/ActionMenus.h"
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
constexpr CGFloat headerSpacing = 12;
constexpr CGFloat fingerWidth = 100;
// A label beside other controls keeps at least this much room, even when they are wide.
constexpr CGFloat narrowestLabel = 80;
// Buttons give way (their titles are cut short) only after the labels have wrapped.
const NSLayoutPriority buttonCompressionResistance = NSLayoutPriorityDefaultLow + 100;
// The live view, beside the lines under the gesture table: a picture of the surface as tall as
// the view, 60 points wide, and the texts beside it, wide enough for the longest action name
// of every language on one line.
constexpr CGFloat surfaceWidth = 270;
constexpr CGFloat surfaceHeight = 104;
constexpr CGFloat surfaceGap = 16;

void fixWidth(NSView* view, CGFloat width) {
    [view.widthAnchor constraintEqualToConstant:width].active = YES;
}

NSStackView* makeRow(NSArray<NSView*>* views, CGFloat spacing) {
    NSStackView* row = [NSStackView stackViewWithViews:views];
    row.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    row.spacing = spacing;
    return row;
}

// The width a label may take in a row of the column beside `others`.
CGFloat widthBeside(NSArray<NSView*>* others, CGFloat spacing) {
    CGFloat taken = 0;
    for (NSView* view in others) {
        taken += view.fittingSize.width + spacing;
    }
    return std::max(columnWidth - taken, narrowestLabel);
}

// A button whose title does not fit loses its end rather than pushing the window wider.
void letGiveWay(NSButton* button) {
    button.cell.lineBreakMode = NSLineBreakByTruncatingTail;
    [button setContentCompressionResistancePriority:buttonCompressionResistance
                                     forOrientation:NSLayoutConstraintOrientationHorizontal];
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
    addWrapping(controls_.status);
    controls_.permission.font = [NSFont systemFontOfSize:12];
    addWrapping(controls_.permission);
    addResetPermissions(texts);
    addPermissionRow(texts);
    addProfileRow(texts);
    addSwitchRow(texts);
    addGestureTable(texts);
    addLiveArea(texts);
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
    // A hidden row (the repair buttons while nothing needs repairing) takes no room.
    column_.detachesHiddenViews = YES;
    column_.translatesAutoresizingMaskIntoConstraints = NO;
    NSView* content = window.contentView;
    [content addSubview:column_];
    // Auto Layout would widen or heighten the window to make room for its contents; these keep
    // it at its size, so that whatever does not fit wraps instead.
    NSLayoutConstraint* staysAbove =
        [column_.bottomAnchor constraintLessThanOrEqualToAnchor:content.bottomAnchor constant:-top];
    staysAbove.priority = NSLayoutPriorityRequired - 1;
    [NSLayoutConstraint activateConstraints:@[
        [content.widthAnchor constraintEqualToConstant:windowWidth],
        [content.heightAnchor constraintEqualToConstant:windowHeight],
        [column_.leadingAnchor constraintEqualToAnchor:content.leadingAnchor constant:margin],
        [column_.trailingAnchor constraintEqualToAnchor:content.trailingAnchor constant:-margin],
        [column_.topAnchor constraintEqualToAnchor:content.topAnchor constant:top],
        staysAbove,
    ]];
}

// Nothing in the column is wider than the column.
void SettingsWindowBuilder::add(NSView* view) {
    [column_ addArrangedSubview:view];
    [view.widthAnchor constraintLessThanOrEqualToAnchor:column_.widthAnchor].active = YES;
}

void SettingsWindowBuilder::addWrapping(NSTextField* label) {
    wrapWithin(label, columnWidth);
    add(label);
}

void SettingsWindowBuilder::addNote(const std::string& text, CGFloat fontSize) {
    add(makeNote(text, fontSize, columnWidth));
}

NSTextField* SettingsWindowBuilder::makeNote(const std::string& text, CGFloat fontSize,
                                             CGFloat width) {
    NSTextField* note = makeWrappingLabel(text, [NSFont systemFontOfSize:fontSize], width);
    note.textColor = NSColor.secondaryLabelColor;
    return note;
}

void SettingsWindowBuilder::addHeader(const std::string& hero) {
    NSImageView* icon = [NSImageView imageViewWithImage:NSApp.applicationIconImage];
    icon.imageScaling = NSImageScaleProportionallyUpOrDown;
    fixWidth(icon, iconSide);
    [icon.heightAnchor constraintEqualToConstant:iconSide].active = YES;
    NSTextField* title = makeWrappingLabel(hero, [NSFont boldSystemFontOfSize:26],
                                           columnWidth - iconSide - headerSpacing);
    NSStackView* header = makeRow(@[ icon, title ], headerSpacing);
    header.alignment = NSLayoutAttributeCenterY;
    add(header);
}

// Right under the permission line it explains, hidden (and so taking no room in the column)
// until the controller shows it.
void SettingsWindowBuilder::addResetPermissions(const SettingsWindowTexts& texts) {
    wire(controls_.resetPermissions, texts.resetPermissions, @selector(resetPermissions));
    controls_.resetPermissions.bezelStyle = NSBezelStylePush;
    letGiveWay(controls_.resetPermissions);
    add(controls_.resetPermissions);
}

void SettingsWindowBuilder::addPermissionRow(const SettingsWindowTexts& texts) {
    NSMutableArray<NSView*>* views = [NSMutableArray array];
    for (const TitledAction& button : {TitledAction{texts.allowAccessibility, @selector(access)},
                                       TitledAction{texts.allowInputMonitoring, @selector(monitor)},
                                       TitledAction{texts.reconnect, @selector(reconnect)}}) {
        [views addObject:makeButton(button.title, button.action)];
    }
    add(makeRow(views, 8));
}

void SettingsWindowBuilder::addProfileRow(const SettingsWindowTexts& texts) {
    NSPopUpButton* menu = controls_.profileMenu;
    menu.target = target_;
    menu.action = @selector(selectProfile);
    fixWidth(menu, 220);
    NSArray<NSView*>* controls = @[
        menu, makeButton(texts.newProfile, @selector(newProfile)),
        makeButton(texts.renameProfile, @selector(renameProfile)),
        makeButton(texts.duplicateProfile, @selector(duplicateProfile)), makeProfileActions(texts)
    ];
    NSTextField* label =
        makeWrappingLabel(texts.profileLabel, [NSFont systemFontOfSize:NSFont.systemFontSize],
                          widthBeside(controls, 8));
    add(makeRow([@[ label ] arrayByAddingObjectsFromArray:controls], 8));
}

// Beside the specified buttons, the rarer profile operations share one compact pull-down, as
// the action (gear) menus of the system's own settings do, so the row keeps its width.
NSPopUpButton* SettingsWindowBuilder::makeProfileActions(const SettingsWindowTexts& texts) {
    NSPopUpButton* actions = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:YES];
    actions.bezelStyle = NSBezelStylePush;
    // The items' enabled states are the controller's, not the menu's guess.
    actions.menu.autoenablesItems = NO;
    NSMenuItem* face = [[NSMenuItem alloc] initWithTitle:@"" action:nil keyEquivalent:@""];
    face.image = [NSImage imageNamed:NSImageNameActionTemplate];
    [actions.menu addItem:face];
    actions.accessibilityLabel = toNSString(texts.profileActions);
    actions.toolTip = toNSString(texts.profileActions);
    [actions.menu addItem:makeMenuItem(texts.profileApplications, @selector(editApplications))];
    NSMenuItem* remove = controls_.deleteProfileItem;
    remove.title = toNSString(texts.deleteProfile);
    remove.target = target_;
    remove.action = @selector(deleteProfile);
    [actions.menu addItem:remove];
    [actions.menu addItem:NSMenuItem.separatorItem];
    [actions.menu addItem:makeMenuItem(texts.importProfiles, @selector(importProfiles))];
    [actions.menu addItem:makeMenuItem(texts.exportProfiles, @selector(exportProfiles))];
    controls_.applicationsSheet.target = target_;
    return actions;
}

NSMenuItem* SettingsWindowBuilder::makeMenuItem(std::string_view title, SEL action) {
    NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:toNSString(title)
                                                  action:action
                                           keyEquivalent:@""];
    item.target = target_;
    return item;
}

// The master switch keeps its place in the column; the two choices that keep gestures going
// sit on its line, and the button that opens the system's login items beside the one it serves,
// hidden until the controller shows it.
void SettingsWindowBuilder::addSwitchRow(const SettingsWindowTexts& texts) {
    controls_.enabled.target = target_;
    controls_.enabled.action = @selector(toggle);
    wire(controls_.keepOn, texts.keepGesturesOn, @selector(toggleKeepOn));
    wire(controls_.loginItem, texts.openAtLogin, @selector(toggleLoginItem));
    wire(controls_.openLoginItems, texts.openLoginItems, @selector(openLoginItems));
    controls_.openLoginItems.bezelStyle = NSBezelStylePush;
    NSArray<NSButton*>* views =
        @[ controls_.enabled, controls_.keepOn, controls_.loginItem, controls_.openLoginItems ];
    for (NSButton* view in views) {
        letGiveWay(view);
    }
    NSStackView* row = makeRow(views, 18);
    [row setCustomSpacing:8 afterView:controls_.loginItem];
    row.alignment = NSLayoutAttributeCenterY;
    row.detachesHiddenViews = YES;
    add(row);
}

void SettingsWindowBuilder::wire(NSButton* button, const std::string& title, SEL action) {
    button.title = toNSString(title);
    button.target = target_;
    button.action = action;
}

// Under each of the Magic Mouse's rows, the trackpads' row for the same gesture, hidden until the
// devices' part shows it in the mouse's row's place, so that the table keeps its height.
void SettingsWindowBuilder::addGestureTable(const SettingsWindowTexts& texts) {
    TADeviceTable* devices = controls_.deviceTable;
    devices.target = target_;
    const RowWiring mouse = mouseWiring();
    const RowWiring trackpad = trackpadWiring();
    NSMutableArray<NSView*>* mouseRows = [NSMutableArray array];
    NSMutableArray<NSView*>* trackpadRows = [NSMutableArray array];
    bool first = true;
    for (const GestureRow& row : texts.gestureRows) {
        if (row.heading) {
            addHeading(*row.heading, first);
            first = false;
        }
        NSStackView* mouseRow = makeGestureRow(row, texts, mouse);
        add(mouseRow);
        [mouseRows addObject:mouseRow];
        NSStackView* trackpadRow = makeGestureRow(row, texts, trackpad);
        const auto slot = static_cast<NSInteger>(row.slot);
        [trackpadRow addArrangedSubview:[devices makeConflictMarkerForSlot:slot]];
        trackpadRow.detachesHiddenViews = YES;
        add(trackpadRow);
        [trackpadRows addObject:trackpadRow];
    }
    [devices placeMouseRows:mouseRows trackpadRows:trackpadRows];
}

// The Magic Mouse's rows report to the delegate, the trackpads' to the devices' part.
SettingsWindowBuilder::RowWiring SettingsWindowBuilder::mouseWiring() const {
    RowWiring wiring;
    wiring.target = target_;
    wiring.menuAction = @selector(changed:);
    wiring.recordAction = @selector(recordShortcut:);
    wiring.menus = controls_.actionMenus;
    wiring.recordButtons = controls_.recordButtons;
    return wiring;
}

SettingsWindowBuilder::RowWiring SettingsWindowBuilder::trackpadWiring() const {
    TADeviceTable* devices = controls_.deviceTable;
    RowWiring wiring;
    wiring.target = devices;
    wiring.menuAction = @selector(trackpadChanged:);
    wiring.recordAction = @selector(recordTrackpad:);
    wiring.menus = devices.trackpadMenus;
    wiring.recordButtons = devices.trackpadRecordButtons;
    return wiring;
}

// The first heading shares its line with the devices' controls, at its trailing end; hidden,
// they take no room, and the line is the heading's.
void SettingsWindowBuilder::addHeading(const std::string& text, bool withDevices) {
    NSTextField* heading = makeWrappingLabel(text, [NSFont boldSystemFontOfSize:12],
                                             withDevices ? columnWidth / 2 : columnWidth);
    heading.textColor = NSColor.secondaryLabelColor;
    if (!withDevices) {
        add(heading);
        return;
    }
    TADeviceTable* devices = controls_.deviceTable;
    NSStackView* line = makeRow(@[], 8);
    [line addView:heading inGravity:NSStackViewGravityLeading];
    [line addView:devices.openButton inGravity:NSStackViewGravityTrailing];
    [line addView:devices.surfaceControl inGravity:NSStackViewGravityTrailing];
    line.alignment = NSLayoutAttributeCenterY;
    line.detachesHiddenViews = YES;
    fixWidth(line, columnWidth);
    add(line);
}

NSStackView* SettingsWindowBuilder::makeGestureRow(const GestureRow& row,
                                                   const SettingsWindowTexts& texts,
                                                   const RowWiring& wiring) {
    NSTextField* fingers = makeWrappingLabel(
        row.fingerLabel, [NSFont systemFontOfSize:NSFont.systemFontSize], fingerWidth);
    fixWidth(fingers, fingerWidth);
    const auto slot = static_cast<NSInteger>(row.slot);
    return makeRow(
        @[
            fingers, makeActionMenu(slot, texts, wiring),
            makeRecordButton(slot, texts.recordButton, wiring)
        ],
        18);
}

// Under the gesture table, the hint, the live line, the test button and the buttons that open
// the window's sheets, in that order, and the live view beside them at the column's trailing
// edge, where the column has room to spare. The Advanced sheet's button stays beside the live
// view: the limits and options it sets are what the live view explains.
void SettingsWindowBuilder::addLiveArea(const SettingsWindowTexts& texts) {
    constexpr CGFloat linesWidth = columnWidth - surfaceWidth - surfaceGap;
    controls_.live.font = [NSFont monospacedSystemFontOfSize:12 weight:NSFontWeightRegular];
    wrapWithin(controls_.live, linesWidth);
    NSStackView* lines = [NSStackView stackViewWithViews:@[
        makeNote(texts.recordHint, 11, linesWidth), controls_.live,
        makeButton(texts.testDesktop, @selector(testDesktop)), makeSheetButtons(texts)
    ]];
    lines.orientation = NSUserInterfaceLayoutOrientationVertical;
    lines.alignment = NSLayoutAttributeLeading;
    lines.spacing = column_.spacing;
    fixWidth(lines, linesWidth);
    TASurfaceView* surface = controls_.surface;
    fixWidth(surface, surfaceWidth);
    [surface.heightAnchor constraintEqualToConstant:surfaceHeight].active = YES;
    NSStackView* row = makeRow(@[ lines, surface ], surfaceGap);
    row.alignment = NSLayoutAttributeTop;
    add(row);
}

// The buttons that open the window's sheets, side by side on a line of their own: with the test
// button as well, the longest titles of some languages would not fit the line.
NSStackView* SettingsWindowBuilder::makeSheetButtons(const SettingsWindowTexts& texts) {
    NSStackView* row = makeRow(
        @[
            makeButton(AdvancedSettings::openTitle(), @selector(openAdvanced)),
            makeButton(texts.moreGestures, @selector(openMoreGestures))
        ],
        8);
    row.alignment = NSLayoutAttributeCenterY;
    return row;
}

NSPopUpButton* SettingsWindowBuilder::makeActionMenu(NSInteger slot,
                                                     const SettingsWindowTexts& texts,
                                                     const RowWiring& wiring) {
    NSPopUpButton* menu = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
    // Items go straight into the menu, each tagged with its action: the fifteen first, in
    // catalogue order, then each group of extra actions after a separator.
    NSInteger action = 0;
    for (const std::string& name : texts.actionNames) {
        [menu.menu addItem:makeActionItem(name, action++)];
    }
    addActionGroups(menu.menu, texts.extraActionGroups);
    menu.tag = slot;
    menu.target = wiring.target;
    menu.action = wiring.menuAction;
    fixWidth(menu, 320);
    [wiring.menus addObject:menu];
    return menu;
}

NSButton* SettingsWindowBuilder::makeRecordButton(NSInteger slot, const std::string& title,
                                                  const RowWiring& wiring) {
    NSButton* button = makeButton(title, wiring.recordAction);
    button.target = wiring.target;
    button.tag = slot;
    fixWidth(button, 215);
    [wiring.recordButtons addObject:button];
    return button;
}

NSButton* SettingsWindowBuilder::makeButton(std::string_view title, SEL action) {
    NSButton* button = [NSButton buttonWithTitle:toNSString(title) target:target_ action:action];
    button.bezelStyle = NSBezelStylePush;
    letGiveWay(button);
    return button;
}

}  // namespace tactora::macos
