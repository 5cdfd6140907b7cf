#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <vector>

#include "core/platform/AdvancedSheet.h"

NS_ASSUME_NONNULL_BEGIN

// Where the Advanced sheet sends the user's changes. Options and fields are named by the
// core's AdvancedOption and AdvancedField numbers; a field's value is in the units it shows,
// and not a number when what was typed is none.
@protocol TAAdvancedSheetTarget <NSObject>
- (void)setAdvancedOption:(NSInteger)option on:(BOOL)on;
- (void)setAdvancedField:(NSInteger)field value:(double)value;
- (void)recommendAdvanced;
- (void)restoreAdvancedDefaults;
- (void)closeAdvanced;
@end

// The settings window's Advanced sheet: a checkbox per option against accidents with the
// fields of its values, the tap's limits, why the last change was refused, the try area's
// lines, and the Recommended, Restore Defaults and Done buttons. It shows what it is given and
// hands every change to its target; it decides nothing. Main thread only.
@interface TAAdvancedSheet : NSObject <NSTextFieldDelegate>

@property(nonatomic, weak, nullable) id<TAAdvancedSheetTarget> target;

// Shows the sheet on `window` with this content or, while it is shown, replaces its content.
// Escape closes it as Done does.
- (void)showOnWindow:(NSWindow*)window content:(const tactora::AdvancedSheet&)content;
// Replaces the try area's lines, newest first; VoiceOver announces `announcement`.
- (void)showTries:(const std::vector<tactora::TryLine>&)tries
     announcement:(const std::string&)announcement;

@end

NS_ASSUME_NONNULL_END
