// The applications sheet's keys: Delete and Forward Delete remove the selected application, and
// Escape closes the sheet as Done does.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/platform/ApplicationsSheet.h"
#import "macos/TAApplicationsSheet.h"

@interface TARecordingSheetTarget : NSObject <TAApplicationsSheetTarget>
@property(nonatomic) NSMutableArray<NSString*>* removed;
@property(nonatomic) NSInteger closes;
@end

@implementation TARecordingSheetTarget
- (instancetype)init {
    self = [super init];
    if (self != nil) {
        _removed = [NSMutableArray array];
    }
    return self;
}
- (void)addApplication:(NSString*)bundleID {
}
- (void)removeApplication:(NSString*)bundleID {
    [_removed addObject:bundleID];
}
- (void)closeApplications {
    ++_closes;
}
@end

namespace tactora::testing {
namespace {

NSTableView* findTable(NSView* view) {
    if ([view isKindOfClass:NSTableView.class]) {
        return static_cast<NSTableView*>(view);
    }
    for (NSView* subview in view.subviews) {
        if (NSTableView* table = findTable(subview)) {
            return table;
        }
    }
    return nil;
}

NSEvent* keyDown(NSString* characters, unsigned short keyCode, NSEventModifierFlags flags = 0) {
    return [NSEvent keyEventWithType:NSEventTypeKeyDown
                            location:NSZeroPoint
                       modifierFlags:flags
                           timestamp:0
                        windowNumber:0
                             context:nil
                          characters:characters
         charactersIgnoringModifiers:characters
                           isARepeat:NO
                             keyCode:keyCode];
}

NSString* const deleteKey = @"\x7f";
constexpr unsigned short deleteKeyCode = 51;

class ApplicationsSheetTest : public ::testing::Test {
  protected:
    void SetUp() override {
        window_ = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 600, 500)
                                              styleMask:NSWindowStyleMaskTitled
                                                backing:NSBackingStoreBuffered
                                                  defer:NO];
        window_.releasedWhenClosed = NO;
        [window_ orderFront:nil];
        sheet_.target = target_;
        ApplicationsSheet content;
        content.title = "Applications";
        content.doneButton = "Done";
        content.applications = {{.bundleID = "com.example.one", .name = "One"},
                                {.bundleID = "com.example.two", .name = "Two"}};
        [sheet_ showOnWindow:window_ content:content];
        table_ = findTable(sheet_.sheetWindow.contentView);
    }

    void TearDown() override {
        if (sheet_.sheetWindow.sheetParent != nil) {
            [window_ endSheet:sheet_.sheetWindow];
        }
        [window_ close];
    }

    void select(NSInteger row) {
        [table_ selectRowIndexes:[NSIndexSet indexSetWithIndex:static_cast<NSUInteger>(row)]
            byExtendingSelection:NO];
    }

    NSWindow* window_ = nil;
    TAApplicationsSheet* sheet_ = [[TAApplicationsSheet alloc] init];
    TARecordingSheetTarget* target_ = [[TARecordingSheetTarget alloc] init];
    NSTableView* table_ = nil;
};

TEST_F(ApplicationsSheetTest, DeleteRemovesTheSelectedApplication) {
    ASSERT_NE(table_, nil);
    select(1);
    [table_ keyDown:keyDown(deleteKey, deleteKeyCode)];

    EXPECT_TRUE([target_.removed isEqualToArray:@[ @"com.example.two" ]]);
}

TEST_F(ApplicationsSheetTest, ForwardDeleteRemovesTheSelectedApplication) {
    ASSERT_NE(table_, nil);
    select(0);
    const unichar forwardDelete = NSDeleteFunctionKey;
    [table_ keyDown:keyDown([NSString stringWithCharacters:&forwardDelete length:1], 117)];

    EXPECT_TRUE([target_.removed isEqualToArray:@[ @"com.example.one" ]]);
}

TEST_F(ApplicationsSheetTest, DeleteWithNothingSelectedRemovesNothing) {
    ASSERT_NE(table_, nil);
    [table_ deselectAll:nil];
    [table_ keyDown:keyDown(deleteKey, deleteKeyCode)];

    EXPECT_EQ(target_.removed.count, 0U);
}

TEST_F(ApplicationsSheetTest, CommandDeleteIsNotTheDeleteKey) {
    ASSERT_NE(table_, nil);
    select(0);
    [table_ keyDown:keyDown(deleteKey, deleteKeyCode, NSEventModifierFlagCommand)];

    EXPECT_EQ(target_.removed.count, 0U);
}

TEST_F(ApplicationsSheetTest, EscapeClosesTheSheetAsDoneDoes) {
    NSWindow* sheet = sheet_.sheetWindow;
    ASSERT_NE(sheet, nil);
    ASSERT_EQ(sheet.sheetParent, window_);

    [sheet cancelOperation:nil];
    EXPECT_EQ(sheet.sheetParent, nil);
    EXPECT_EQ(window_.attachedSheet, nil);
}

}  // namespace
}  // namespace tactora::testing
