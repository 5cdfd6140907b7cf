#pragma once

#import <AppKit/AppKit.h>

#include <string>
#include <string_view>
#include <vector>

#include "core/app/GestureRow.h"
#include "core/app/SettingsWindowTexts.h"
#import "macos/TAApplicationDelegate.h"
#import "macos/TASettingsControls.h"

namespace tactora::macos {

// Lays the settings window out in code as one column, places the controls that already exist
// and adds the gesture rows to `controls`. Every control reaches `target`.
class SettingsWindowBuilder {
  public:
    SettingsWindowBuilder(TASettingsControls* controls, TAApplicationDelegate* target);

    NSWindow* build(const SettingsWindowTexts& texts);

  private:
    struct TitledAction {
        std::string_view title;
        SEL action;
    };

    static NSWindow* makeWindow(const std::string& title);
    void makeColumn(NSWindow* window);
    void add(NSView* view);
    // Places one of the controller's lines, wrapping to the column.
    void addWrapping(NSTextField* label);
    // A wrapping label in the secondary colour, as wide as the column or `width`.
    void addNote(const std::string& text, CGFloat fontSize);
    static NSTextField* makeNote(const std::string& text, CGFloat fontSize, CGFloat width);
    void addHeader(const std::string& hero);
    void addResetPermissions(const SettingsWindowTexts& texts);
    void addPermissionRow(const SettingsWindowTexts& texts);
    void addProfileRow(const SettingsWindowTexts& texts);
    NSPopUpButton* makeProfileActions(const SettingsWindowTexts& texts);
    NSMenuItem* makeMenuItem(std::string_view title, SEL action);
    void addSwitchRow(const SettingsWindowTexts& texts);
    // Gives a control made with the controls its title and its action.
    void wire(NSButton* button, const std::string& title, SEL action);
    // Where a gesture row's pop-up and record button report, and the lists that keep them.
    struct RowWiring {
        id target = nil;
        SEL menuAction = nullptr;
        SEL recordAction = nullptr;
        NSMutableArray<NSPopUpButton*>* menus = nil;
        NSMutableArray<NSButton*>* recordButtons = nil;
    };
    RowWiring mouseWiring() const;
    RowWiring trackpadWiring() const;
    void addGestureTable(const SettingsWindowTexts& texts);
    void addHeading(const std::string& text, bool withDevices);
    NSStackView* makeGestureRow(const GestureRow& row, const SettingsWindowTexts& texts,
                                const RowWiring& wiring);
    void addLiveArea(const SettingsWindowTexts& texts);
    NSStackView* makeSheetButtons(const SettingsWindowTexts& texts);
    NSPopUpButton* makeActionMenu(NSInteger slot, const SettingsWindowTexts& texts,
                                  const RowWiring& wiring);
    NSButton* makeRecordButton(NSInteger slot, const std::string& title, const RowWiring& wiring);
    NSButton* makeButton(std::string_view title, SEL action);

    TASettingsControls* __strong controls_;
    TAApplicationDelegate* __strong target_;
    NSStackView* __strong column_;
};

}  // namespace tactora::macos
