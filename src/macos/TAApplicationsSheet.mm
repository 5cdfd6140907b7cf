#import "macos/TAApplicationsSheet.h"

#include <vector>

#include "macos/Labels.h"
#include "macos/StringConversion.h"
#import "macos/TAExtensionFilter.h"
#import "macos/TASheetWindow.h"

namespace {

constexpr CGFloat sheetWidth = 520;
constexpr CGFloat sheetMargin = 20;
constexpr CGFloat tableHeight = 200;

NSString* const nameColumn = @"name";
NSString* const bundleColumn = @"bundle";

// Whether `event` is a press of Delete or Forward Delete, without Command, Option or Control.
bool isDeleteKey(NSEvent* event) {
    const NSEventModifierFlags others =
        NSEventModifierFlagCommand | NSEventModifierFlagOption | NSEventModifierFlagControl;
    NSString* characters = event.charactersIgnoringModifiers;
    if ((event.modifierFlags & others) != 0 || characters.length != 1) {
        return false;
    }
    const unichar key = [characters characterAtIndex:0];
    return key == NSDeleteCharacter || key == NSBackspaceCharacter || key == NSDeleteFunctionKey;
}

}  // namespace

// The list of applications: Delete and Forward Delete remove the selected one, as in the
// system's own lists.
@interface TAApplicationsTable : NSTableView
@property(nonatomic, copy, nullable) void (^onDelete)(void);
@end

@implementation TAApplicationsTable

- (void)keyDown:(NSEvent*)event {
    if (isDeleteKey(event) && self.selectedRow >= 0 && self.onDelete != nil) {
        self.onDelete();
        return;
    }
    [super keyDown:event];
}

@end

@implementation TAApplicationsSheet {
    std::vector<tactora::ApplicationRow> _rows;
    TASheetWindow* _sheet;
    NSTextField* _title;
    NSTextField* _explanation;
    TAApplicationsTable* _table;
    NSPopUpButton* _add;
    NSButton* _remove;
    NSButton* _done;
    NSString* _chooseMessage;
    TAExtensionFilter* _applicationFilter;
}

- (void)showOnWindow:(NSWindow*)window content:(const tactora::ApplicationsSheet&)content {
    if (_sheet == nil) {
        [self build];
    }
    [self fill:content];
    [_sheet beginOn:window
              ended:^{
                  [self.target closeApplications];
              }];
}

- (nullable NSWindow*)sheetWindow {
    return _sheet;
}

- (void)build {
    _sheet = [[TASheetWindow alloc] initWithContentRect:NSMakeRect(0, 0, sheetWidth, 400)
                                              styleMask:NSWindowStyleMaskTitled
                                                backing:NSBackingStoreBuffered
                                                  defer:YES];
    _sheet.releasedWhenClosed = NO;
    __weak TAApplicationsSheet* weakSelf = self;
    _sheet.onCancel = ^{
        [weakSelf done:nil];
    };
    const CGFloat column = sheetWidth - 2 * sheetMargin;
    _title = tactora::macos::makeLabel("", [NSFont boldSystemFontOfSize:NSFont.systemFontSize]);
    _explanation = tactora::macos::makeWrappingLabel("", [NSFont systemFontOfSize:11], column);
    _explanation.textColor = NSColor.secondaryLabelColor;

    NSStackView* stack = [NSStackView stackViewWithViews:@[
        _title, _explanation, [self makeTable:column], [self makeButtonRow:column]
    ]];
    stack.orientation = NSUserInterfaceLayoutOrientationVertical;
    stack.alignment = NSLayoutAttributeLeading;
    stack.spacing = 10;
    stack.translatesAutoresizingMaskIntoConstraints = NO;
    NSView* view = _sheet.contentView;
    [view addSubview:stack];
    [NSLayoutConstraint activateConstraints:@[
        [stack.leadingAnchor constraintEqualToAnchor:view.leadingAnchor constant:sheetMargin],
        [stack.trailingAnchor constraintEqualToAnchor:view.trailingAnchor constant:-sheetMargin],
        [stack.topAnchor constraintEqualToAnchor:view.topAnchor constant:sheetMargin],
        [stack.bottomAnchor constraintEqualToAnchor:view.bottomAnchor constant:-sheetMargin],
    ]];
    _applicationFilter = [[TAExtensionFilter alloc] initWithExtension:@"app"];
}

- (NSView*)makeTable:(CGFloat)width {
    _table = [[TAApplicationsTable alloc] initWithFrame:NSZeroRect];
    __weak TAApplicationsSheet* weakSelf = self;
    _table.onDelete = ^{
        [weakSelf removeSelected:nil];
    };
    for (NSString* identifier in @[ nameColumn, bundleColumn ]) {
        NSTableColumn* column = [[NSTableColumn alloc] initWithIdentifier:identifier];
        column.width = (width - 24) / 2;
        [_table addTableColumn:column];
    }
    _table.dataSource = self;
    _table.delegate = self;
    _table.allowsMultipleSelection = NO;
    NSScrollView* scroll = [[NSScrollView alloc] initWithFrame:NSZeroRect];
    scroll.documentView = _table;
    scroll.hasVerticalScroller = YES;
    scroll.borderType = NSBezelBorder;
    [scroll.widthAnchor constraintEqualToConstant:width].active = YES;
    [scroll.heightAnchor constraintEqualToConstant:tableHeight].active = YES;
    return scroll;
}

- (NSView*)makeButtonRow:(CGFloat)width {
    _add = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:YES];
    _add.bezelStyle = NSBezelStyleSmallSquare;
    _remove = [NSButton buttonWithImage:[NSImage imageNamed:NSImageNameRemoveTemplate]
                                 target:self
                                 action:@selector(removeSelected:)];
    _remove.bezelStyle = NSBezelStyleSmallSquare;
    _remove.enabled = NO;
    _done = [NSButton buttonWithTitle:@"" target:self action:@selector(done:)];
    _done.keyEquivalent = @"\r";
    NSView* spacer = [[NSView alloc] initWithFrame:NSZeroRect];
    [spacer setContentHuggingPriority:NSLayoutPriorityDefaultLow
                       forOrientation:NSLayoutConstraintOrientationHorizontal];
    NSStackView* row = [NSStackView stackViewWithViews:@[ _add, _remove, spacer, _done ]];
    row.orientation = NSUserInterfaceLayoutOrientationHorizontal;
    row.spacing = 4;
    [row.widthAnchor constraintEqualToConstant:width].active = YES;
    return row;
}

- (void)fill:(const tactora::ApplicationsSheet&)content {
    using tactora::macos::toNSString;
    _rows = content.applications;
    _title.stringValue = toNSString(content.title);
    _explanation.stringValue = toNSString(content.explanation);
    _table.tableColumns[0].title = toNSString(content.nameColumn);
    _table.tableColumns[1].title = toNSString(content.bundleColumn);
    _remove.accessibilityLabel = toNSString(content.removeButton);
    _remove.toolTip = toNSString(content.removeButton);
    _done.title = toNSString(content.doneButton);
    _chooseMessage = toNSString(content.chooseMessage);
    [self fillAddMenu:content];
    [_table reloadData];
    _remove.enabled = _table.selectedRow >= 0;
}

- (void)fillAddMenu:(const tactora::ApplicationsSheet&)content {
    using tactora::macos::toNSString;
    NSMenu* menu = _add.menu;
    [menu removeAllItems];
    // A pull-down shows its first item as the button itself.
    NSMenuItem* face = [[NSMenuItem alloc] initWithTitle:@"" action:nil keyEquivalent:@""];
    face.image = [NSImage imageNamed:NSImageNameAddTemplate];
    [menu addItem:face];
    _add.accessibilityLabel = toNSString(content.addButton);
    _add.toolTip = toNSString(content.addButton);
    for (const tactora::ApplicationRow& application : content.running) {
        NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:toNSString(application.name)
                                                      action:@selector(addRunning:)
                                               keyEquivalent:@""];
        item.target = self;
        item.representedObject = toNSString(application.bundleID);
        [menu addItem:item];
    }
    if (!content.running.empty()) {
        [menu addItem:NSMenuItem.separatorItem];
    }
    NSMenuItem* choose = [[NSMenuItem alloc] initWithTitle:toNSString(content.chooseItem)
                                                    action:@selector(chooseApplication:)
                                             keyEquivalent:@""];
    choose.target = self;
    [menu addItem:choose];
}

- (void)addRunning:(NSMenuItem*)sender {
    id bundleID = sender.representedObject;
    if ([bundleID isKindOfClass:NSString.class]) {
        [self.target addApplication:bundleID];
    }
}

- (void)chooseApplication:(id)sender {
    NSOpenPanel* panel = [NSOpenPanel openPanel];
    panel.message = _chooseMessage;
    panel.canChooseFiles = YES;
    panel.canChooseDirectories = NO;
    panel.allowsMultipleSelection = NO;
    panel.delegate = _applicationFilter;
    panel.directoryURL = [NSURL fileURLWithPath:@"/Applications" isDirectory:YES];
    [panel beginSheetModalForWindow:_sheet
                  completionHandler:^(NSModalResponse response) {
                      if (response != NSModalResponseOK || panel.URL == nil) {
                          return;
                      }
                      NSString* bundleID = [NSBundle bundleWithURL:panel.URL].bundleIdentifier;
                      if (bundleID != nil) {
                          [self.target addApplication:bundleID];
                      }
                  }];
}

- (void)removeSelected:(id)sender {
    const NSInteger row = _table.selectedRow;
    if (row >= 0 && static_cast<std::size_t>(row) < _rows.size()) {
        [self.target removeApplication:tactora::macos::toNSString(_rows[row].bundleID)];
    }
}

- (void)done:(id)sender {
    [_sheet.sheetParent endSheet:_sheet];
}

- (NSInteger)numberOfRowsInTableView:(NSTableView*)tableView {
    return static_cast<NSInteger>(_rows.size());
}

- (nullable NSView*)tableView:(NSTableView*)tableView
           viewForTableColumn:(nullable NSTableColumn*)tableColumn
                          row:(NSInteger)row {
    if (row < 0 || static_cast<std::size_t>(row) >= _rows.size() || tableColumn == nil) {
        return nil;
    }
    const tactora::ApplicationRow& application = _rows[static_cast<std::size_t>(row)];
    const bool name = [tableColumn.identifier isEqualToString:nameColumn];
    NSTextField* cell = [NSTextField
        labelWithString:tactora::macos::toNSString(name ? application.name : application.bundleID)];
    cell.lineBreakMode = NSLineBreakByTruncatingTail;
    return cell;
}

- (void)tableViewSelectionDidChange:(NSNotification*)notification {
    _remove.enabled = _table.selectedRow >= 0;
}

@end
