#pragma once

#import <AppKit/AppKit.h>

#include <initializer_list>
#include <string_view>

#include "core/app/GestureRow.h"
#import "macos/TAApplicationDelegate.h"
#import "macos/TASettingsControls.h"

namespace tactora::macos {

// Lays the settings window out in code as one column, places the controls that already exist
// and adds the gesture rows to `controls`. Every control reaches `target`.
class SettingsWindowBuilder {
  public:
    SettingsWindowBuilder(TASettingsControls* controls, TAApplicationDelegate* target);

    NSWindow* build();

  private:
    struct ButtonSpec {
        std::string_view key;
        SEL action;
    };

    NSWindow* makeWindow();
    void makeColumn(NSWindow* window);
    void add(NSView* view);
    // A wrapping label in the secondary colour.
    void addNote(std::string_view key, CGFloat fontSize);
    void addHeader();
    void addButtonRow(std::initializer_list<ButtonSpec> buttons);
    void addProfileRow();
    void addEnableSwitch();
    void addGestureRow(const GestureRow& row);
    NSPopUpButton* makeActionMenu(NSInteger slot);
    NSButton* makeRecordButton(NSInteger slot);
    NSButton* makeButton(std::string_view key, SEL action);

    TASettingsControls* __strong controls_;
    TAApplicationDelegate* __strong target_;
    NSStackView* __strong column_;
};

}  // namespace tactora::macos
