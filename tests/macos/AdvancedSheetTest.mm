// The Advanced sheet as the shell builds it, in every language the bundle ships, with every option
// on and the longest refusal shown: within the settings window's width and height, every control
// inside the sheet and none over another, no text or title cut off, each checkbox, field and
// button telling its target what the user did, Escape closing it as Done does, and the try area
// showing why a touch became nothing.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include "core/advanced/AdvancedSettings.h"
#include "core/advanced/TryArea.h"
#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "core/misfire/MisfireGuard.h"
#include "core/platform/AdvancedSheet.h"
#include "core/platform/AdvancedSheetView.h"
#include "core/reasons/TouchOutcomes.h"
#include "macos/AppBundle.h"
#include "macos/StringConversion.h"
#import "macos/TAAdvancedSheet.h"
#include "macos/ViewTree.h"

@interface TARecordingAdvancedSheetTarget : NSObject <TAAdvancedSheetTarget>
@property(nonatomic) NSInteger option;
@property(nonatomic) BOOL on;
@property(nonatomic) NSInteger options;
@property(nonatomic) NSInteger field;
@property(nonatomic) double value;
@property(nonatomic) NSInteger values;
@property(nonatomic) NSInteger recommends;
@property(nonatomic) NSInteger restores;
@property(nonatomic) NSInteger closes;
@end

@implementation TARecordingAdvancedSheetTarget
- (void)setAdvancedOption:(NSInteger)option on:(BOOL)on {
    _option = option;
    _on = on;
    ++_options;
}
- (void)setAdvancedField:(NSInteger)field value:(double)value {
    _field = field;
    _value = value;
    ++_values;
}
- (void)recommendAdvanced {
    ++_recommends;
}
- (void)restoreAdvancedDefaults {
    ++_restores;
}
- (void)closeAdvanced {
    ++_closes;
}
@end

namespace tactora::testing {
namespace {

// The settings window's content size, which the sheet stays within.
constexpr CGFloat windowWidth = 790;
constexpr CGFloat windowHeight = 820;
// Layout rounds to backing pixels.
constexpr CGFloat slack = 1;

constexpr AdvancedOption allOptions[] = {
    AdvancedOption::quietAfterActivity,
    AdvancedOption::ignoreLargeContacts,
    AdvancedOption::edgeBands,
    AdvancedOption::fingertipsOnly,
    AdvancedOption::forgetEarlierActivity,
    AdvancedOption::ignoreDrumming,
};

constexpr AdvancedField allFields[] = {
    AdvancedField::quietTime,   AdvancedField::edgeLeft,   AdvancedField::edgeRight,
    AdvancedField::edgeFront,   AdvancedField::edgeBack,   AdvancedField::fingertipSize,
    AdvancedField::shortestTap, AdvancedField::longestTap, AdvancedField::tolerance,
};

template <typename View>
std::vector<View*> shownSubviewsOf(NSView* view) {
    std::vector<View*> shown;
    for (View* subview : subviewsOf<View>(view)) {
        if (!subview.hiddenOrHasHiddenAncestor) {
            shown.push_back(subview);
        }
    }
    return shown;
}

// The core's sheet shows everything, leaves nothing to the shell; this view of it is not used.
class UnusedSheetView final : public AdvancedSheetView {
  public:
    void show(const AdvancedSheet&) override {}
    void showTries(const std::vector<TryLine>&, const std::string&) override {}
};

class AdvancedSheetTest : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        installStringTable(GetParam());
        // Every option on, so that every field is enabled, and the longest refusal shown.
        for (const AdvancedOption option : allOptions) {
            settings_.setOption(option, true);
        }
        AdvancedField longestRefused = AdvancedField::quietTime;
        std::size_t longest = 0;
        for (const AdvancedField field : allFields) {
            settings_.setValue(field, -1000);
            if (settings_.sheet().problem.size() > longest) {
                longest = settings_.sheet().problem.size();
                longestRefused = field;
            }
        }
        settings_.setValue(longestRefused, -1000);
        content_ = settings_.sheet();

        window_ = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, windowWidth, windowHeight)
                                              styleMask:NSWindowStyleMaskTitled
                                                backing:NSBackingStoreBuffered
                                                  defer:NO];
        window_.releasedWhenClosed = NO;
        [window_ orderFront:nil];
        sheet_.target = target_;
        [sheet_ showOnWindow:window_ content:content_];
        [content() layoutSubtreeIfNeeded];
    }

    void TearDown() override {
        if (window_.attachedSheet != nil) {
            [window_ endSheet:window_.attachedSheet];
        }
        [window_ close];
        setStringTable(nullptr);
    }

    NSWindow* sheetWindow() const { return window_.attachedSheet; }
    NSView* content() const { return sheetWindow().contentView; }

    NSRect inContent(NSView* view) const {
        return [view.superview convertRect:view.frame toView:content()];
    }
    // Where the control's drawing is aligned, without the room its frame keeps for effects.
    NSRect alignedInContent(NSView* view) const {
        return [view.superview convertRect:[view alignmentRectForFrame:view.frame]
                                    toView:content()];
    }

    // The checkboxes: the buttons titled as the content's options are.
    std::vector<NSButton*> checkboxes() const {
        std::vector<NSButton*> found;
        for (NSButton* button : subviewsOf<NSButton>(content())) {
            for (const AdvancedGroup& group : content_.groups) {
                if (group.option && button.tag == static_cast<NSInteger>(*group.option) &&
                    [button.title isEqualToString:macos::toNSString(group.title)]) {
                    found.push_back(button);
                }
            }
        }
        return found;
    }

    NSButton* checkboxOf(AdvancedOption option) const {
        for (NSButton* checkbox : checkboxes()) {
            if (checkbox.tag == static_cast<NSInteger>(option)) {
                return checkbox;
            }
        }
        return nil;
    }

    NSButton* buttonTitled(const std::string& title) const {
        NSString* wanted = macos::toNSString(title);
        for (NSButton* button : subviewsOf<NSButton>(content())) {
            if ([button.title isEqualToString:wanted]) {
                return button;
            }
        }
        return nil;
    }

    // The editable fields.
    std::vector<NSTextField*> fields() const {
        std::vector<NSTextField*> found;
        for (NSTextField* field : subviewsOf<NSTextField>(content())) {
            if (field.editable) {
                found.push_back(field);
            }
        }
        return found;
    }

    NSTextField* fieldOf(AdvancedField which) const {
        for (NSTextField* field : fields()) {
            if (field.tag == static_cast<NSInteger>(which)) {
                return field;
            }
        }
        return nil;
    }

    // The label showing exactly `text`, if one is shown.
    NSTextField* labelShowing(const std::string& text) const {
        NSString* wanted = macos::toNSString(text);
        for (NSTextField* label : shownSubviewsOf<NSTextField>(content())) {
            if (!label.editable && [label.stringValue isEqualToString:wanted]) {
                return label;
            }
        }
        return nil;
    }

    const AdvancedValue* valueOf(AdvancedField field) const {
        for (const AdvancedGroup& group : content_.groups) {
            for (const AdvancedValue& value : group.values) {
                if (value.field == field) {
                    return &value;
                }
            }
        }
        return nullptr;
    }

    // The user types `text` into `field` and presses Return.
    void type(NSTextField* field, NSString* text) const {
        field.stringValue = text;
        [field sendAction:field.action to:field.target];
    }

    // Lets the sheet's ending tell its target, as the run loop would.
    void waitForClose() const {
        NSDate* limit = [NSDate dateWithTimeIntervalSinceNow:2];
        while (target_.closes == 0 && [limit timeIntervalSinceNow] > 0) {
            [NSRunLoop.currentRunLoop runMode:NSDefaultRunLoopMode
                                   beforeDate:[NSDate dateWithTimeIntervalSinceNow:0.05]];
        }
    }

    // A text fits its label when the cell needs no more than the frame at the frame's width.
    void expectFits(NSTextField* label) const {
        const NSSize needed =
            [label.cell cellSizeForBounds:NSMakeRect(0, 0, label.frame.size.width, CGFLOAT_MAX)];
        EXPECT_LE(needed.height, label.frame.size.height + slack) << label.stringValue.UTF8String;
        EXPECT_LE(needed.width, label.frame.size.width + slack) << label.stringValue.UTF8String;
    }

    MisfireGuard guard_;
    UnusedSheetView view_;
    AdvancedSettings settings_{guard_, nullptr, view_};
    AdvancedSheet content_;
    NSWindow* window_ = nil;
    TAAdvancedSheet* sheet_ = [[TAAdvancedSheet alloc] init];
    TARecordingAdvancedSheetTarget* target_ = [[TARecordingAdvancedSheetTarget alloc] init];
};

TEST_P(AdvancedSheetTest, ShowsAsASheetOfTheSettingsWindow) {
    ASSERT_NE(sheetWindow(), nil);
    EXPECT_EQ(sheetWindow().sheetParent, window_);
}

TEST_P(AdvancedSheetTest, StaysWithinTheSettingsWindow) {
    const NSSize size = content().frame.size;
    EXPECT_LE(size.width, windowWidth);
    EXPECT_LE(size.height, windowHeight);
}

TEST_P(AdvancedSheetTest, NoControlLeavesTheSheet) {
    const NSRect bounds = content().bounds;
    const std::vector<NSControl*> controls = shownSubviewsOf<NSControl>(content());
    EXPECT_FALSE(controls.empty());
    for (NSControl* control : controls) {
        const NSRect frame = inContent(control);
        EXPECT_GE(NSMinX(frame), NSMinX(bounds) - slack) << control.description.UTF8String;
        EXPECT_LE(NSMaxX(frame), NSMaxX(bounds) + slack) << control.description.UTF8String;
        EXPECT_GE(NSMinY(frame), NSMinY(bounds) - slack) << control.description.UTF8String;
        EXPECT_LE(NSMaxY(frame), NSMaxY(bounds) + slack) << control.description.UTF8String;
    }
}

TEST_P(AdvancedSheetTest, NoTwoControlsOverlap) {
    const std::vector<NSControl*> controls = shownSubviewsOf<NSControl>(content());
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const NSRect first = NSInsetRect(alignedInContent(controls[i]), slack, slack);
        for (std::size_t j = i + 1; j < controls.size(); ++j) {
            if ([controls[i] isDescendantOf:controls[j]] ||
                [controls[j] isDescendantOf:controls[i]]) {
                continue;
            }
            const NSRect second = NSInsetRect(alignedInContent(controls[j]), slack, slack);
            EXPECT_FALSE(NSIntersectsRect(first, second))
                << controls[i].description.UTF8String << " over "
                << controls[j].description.UTF8String;
        }
    }
}

TEST_P(AdvancedSheetTest, EveryTextShowsAllOfIt) {
    std::size_t checked = 0;
    for (NSTextField* label : shownSubviewsOf<NSTextField>(content())) {
        expectFits(label);
        ++checked;
    }
    // At least the title, the explanation, nine labels, fields and units, the refusal, the try
    // area's title and its empty line.
    EXPECT_GE(checked, 2U + 3 * std::size(allFields) + 3);
}

TEST_P(AdvancedSheetTest, NoCheckboxOrButtonIsCutOff) {
    std::size_t checked = 0;
    for (NSButton* button : shownSubviewsOf<NSButton>(content())) {
        // What the title needs, against the room the layout gave it.
        const NSSize needed = button.intrinsicContentSize;
        const NSRect given = [button alignmentRectForFrame:button.frame];
        EXPECT_LE(needed.width, given.size.width + slack) << button.title.UTF8String;
        EXPECT_LE(needed.height, given.size.height + slack) << button.title.UTF8String;
        ++checked;
    }
    // Six checkboxes, Recommended, Restore Defaults and Done.
    EXPECT_EQ(checked, std::size(allOptions) + 3);
}

TEST_P(AdvancedSheetTest, EveryOptionHasACheckboxShowingItsTitleAndState) {
    EXPECT_EQ(checkboxes().size(), std::size(allOptions));
    for (const AdvancedGroup& group : content_.groups) {
        if (!group.option) {
            continue;
        }
        NSButton* checkbox = checkboxOf(*group.option);
        ASSERT_NE(checkbox, nil) << static_cast<int>(*group.option);
        EXPECT_TRUE([checkbox.title isEqualToString:macos::toNSString(group.title)]);
        EXPECT_EQ(checkbox.state, NSControlStateValueOn) << static_cast<int>(*group.option);
    }

    settings_.setOption(AdvancedOption::edgeBands, false);
    [sheet_ showOnWindow:window_ content:settings_.sheet()];

    EXPECT_EQ(checkboxOf(AdvancedOption::edgeBands).state, NSControlStateValueOff);
    EXPECT_EQ(checkboxOf(AdvancedOption::ignoreDrumming).state, NSControlStateValueOn);
    EXPECT_FALSE(fieldOf(AdvancedField::edgeLeft).enabled);
    EXPECT_TRUE(fieldOf(AdvancedField::quietTime).enabled);
}

TEST_P(AdvancedSheetTest, ACheckboxTellsItsOptionAndWhetherItIsOn) {
    NSButton* quiet = checkboxOf(AdvancedOption::quietAfterActivity);
    ASSERT_NE(quiet, nil);

    [quiet performClick:nil];

    EXPECT_EQ(target_.options, 1);
    EXPECT_EQ(target_.option, static_cast<NSInteger>(AdvancedOption::quietAfterActivity));
    EXPECT_FALSE(target_.on);

    NSButton* drumming = checkboxOf(AdvancedOption::ignoreDrumming);
    ASSERT_NE(drumming, nil);
    drumming.state = NSControlStateValueOff;
    [drumming performClick:nil];

    EXPECT_EQ(target_.options, 2);
    EXPECT_EQ(target_.option, static_cast<NSInteger>(AdvancedOption::ignoreDrumming));
    EXPECT_TRUE(target_.on);
}

TEST_P(AdvancedSheetTest, EveryFieldShowsItsValue) {
    EXPECT_EQ(fields().size(), std::size(allFields));
    for (const AdvancedField which : allFields) {
        NSTextField* field = fieldOf(which);
        ASSERT_NE(field, nil) << static_cast<int>(which);
        ASSERT_NE(valueOf(which), nullptr) << static_cast<int>(which);
        const AdvancedValue& row = *valueOf(which);
        ASSERT_TRUE([field.objectValue isKindOfClass:NSNumber.class]) << static_cast<int>(which);
        const double shown = [field.objectValue doubleValue];
        EXPECT_NEAR(shown, row.value, std::pow(10.0, -row.fractionDigits) / 2)
            << static_cast<int>(which);
        EXPECT_TRUE(field.enabled) << static_cast<int>(which);
        EXPECT_TRUE([field.accessibilityLabel isEqualToString:macos::toNSString(row.label)]);
        EXPECT_NE(labelShowing(row.label), nil) << row.label;
    }
}

TEST_P(AdvancedSheetTest, AFieldTellsItsThresholdInTheUnitsItShows) {
    NSTextField* shortest = fieldOf(AdvancedField::shortestTap);
    ASSERT_NE(shortest, nil);
    type(shortest, [shortest.formatter stringForObjectValue:@45]);

    EXPECT_EQ(target_.values, 1);
    EXPECT_EQ(target_.field, static_cast<NSInteger>(AdvancedField::shortestTap));
    EXPECT_DOUBLE_EQ(target_.value, 45);

    // A field with a fraction, written as the formatter writes it.
    NSTextField* tolerance = fieldOf(AdvancedField::tolerance);
    ASSERT_NE(tolerance, nil);
    type(tolerance, [tolerance.formatter stringForObjectValue:@2.5]);

    EXPECT_EQ(target_.values, 2);
    EXPECT_EQ(target_.field, static_cast<NSInteger>(AdvancedField::tolerance));
    EXPECT_DOUBLE_EQ(target_.value, 2.5);
}

TEST_P(AdvancedSheetTest, TextThatIsNoNumberGoesToTheTargetAsNoNumber) {
    NSTextField* quiet = fieldOf(AdvancedField::quietTime);
    ASSERT_NE(quiet, nil);

    type(quiet, @"abc");

    EXPECT_EQ(target_.values, 1);
    EXPECT_EQ(target_.field, static_cast<NSInteger>(AdvancedField::quietTime));
    EXPECT_TRUE(std::isnan(target_.value));
}

TEST_P(AdvancedSheetTest, RecommendedAndRestoreDefaultsTellTheirTarget) {
    NSButton* recommended = buttonTitled(content_.recommendedButton);
    NSButton* restore = buttonTitled(content_.restoreButton);
    ASSERT_NE(recommended, nil);
    ASSERT_NE(restore, nil);

    [recommended performClick:nil];
    EXPECT_EQ(target_.recommends, 1);
    EXPECT_EQ(target_.restores, 0);

    [restore performClick:nil];
    EXPECT_EQ(target_.recommends, 1);
    EXPECT_EQ(target_.restores, 1);
    EXPECT_EQ(target_.closes, 0);
    EXPECT_EQ(sheetWindow().sheetParent, window_);
}

TEST_P(AdvancedSheetTest, DoneClosesTheSheetAndTellsItsTarget) {
    NSWindow* sheet = sheetWindow();
    NSButton* done = buttonTitled(content_.doneButton);
    ASSERT_NE(done, nil);

    [done performClick:nil];
    waitForClose();

    EXPECT_EQ(sheet.sheetParent, nil);
    EXPECT_EQ(window_.attachedSheet, nil);
    EXPECT_EQ(target_.closes, 1);
}

TEST_P(AdvancedSheetTest, EscapeClosesTheSheetAsDoneDoes) {
    NSWindow* sheet = sheetWindow();
    ASSERT_NE(sheet, nil);

    [sheet cancelOperation:nil];
    waitForClose();

    EXPECT_EQ(sheet.sheetParent, nil);
    EXPECT_EQ(window_.attachedSheet, nil);
    EXPECT_EQ(target_.closes, 1);
    EXPECT_EQ(target_.recommends, 0);
    EXPECT_EQ(target_.restores, 0);
}

TEST_P(AdvancedSheetTest, ARefusedValueSaysWhyAndAnAcceptedOneClearsIt) {
    ASSERT_FALSE(content_.problem.empty());
    NSTextField* problem = labelShowing(content_.problem);
    ASSERT_NE(problem, nil) << content_.problem;
    expectFits(problem);

    settings_.setValue(AdvancedField::quietTime, valueOf(AdvancedField::quietTime)->value);
    const AdvancedSheet accepted = settings_.sheet();
    ASSERT_TRUE(accepted.problem.empty());
    [sheet_ showOnWindow:window_ content:accepted];
    [content() layoutSubtreeIfNeeded];

    EXPECT_EQ(labelShowing(content_.problem), nil);
}

TEST_P(AdvancedSheetTest, TheTryAreaShowsAReasonWhenToldOne) {
    EXPECT_NE(labelShowing(content_.tryTitle), nil) << content_.tryTitle;
    EXPECT_NE(labelShowing(content_.tryEmpty), nil) << content_.tryEmpty;

    // The longest of the lines that say why a touch of two fingers became nothing.
    TryLine longest;
    for (int reason = 0; reason <= static_cast<int>(DropReason::drumming); ++reason) {
        const TryLine line = TryArea::line({.id = 1,
                                            .gesture = {},
                                            .fingers = 2,
                                            .reason = static_cast<DropReason>(reason),
                                            .time = 0});
        if (line.text.size() > longest.text.size()) {
            longest = line;
        }
    }
    ASSERT_FALSE(longest.accepted);
    [sheet_ showTries:std::vector<TryLine>{longest} announcement:longest.text];
    [content() layoutSubtreeIfNeeded];

    NSTextField* shown = labelShowing(longest.text);
    ASSERT_NE(shown, nil) << longest.text;
    expectFits(shown);
    const NSRect frame = inContent(shown);
    EXPECT_TRUE(NSContainsRect(NSInsetRect(content().bounds, -slack, -slack), frame))
        << longest.text;
    EXPECT_EQ(labelShowing(content_.tryEmpty), nil) << content_.tryEmpty;

    // Told of no lines again, it says so.
    [sheet_ showTries:std::vector<TryLine>() announcement:std::string()];
    [content() layoutSubtreeIfNeeded];
    EXPECT_NE(labelShowing(content_.tryEmpty), nil) << content_.tryEmpty;
    EXPECT_EQ(labelShowing(longest.text), nil) << longest.text;
}

INSTANTIATE_TEST_SUITE_P(ShippedLanguages, AdvancedSheetTest,
                         ::testing::ValuesIn(shippedLanguages()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

}  // namespace
}  // namespace tactora::testing
