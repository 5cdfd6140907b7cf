#include "macos/PanelActionValuePicker.h"

#import <AppKit/AppKit.h>

#include "macos/StringConversion.h"
#import "macos/TAExtensionFilter.h"

namespace tactora::macos {

namespace {

NSOpenPanel* makePanel(const PickPanelTexts& texts) {
    NSOpenPanel* panel = [NSOpenPanel openPanel];
    panel.message = toNSString(texts.message);
    panel.prompt = toNSString(texts.chooseButton);
    panel.allowsMultipleSelection = NO;
    return panel;
}

}  // namespace

std::optional<std::string> PanelActionValuePicker::chooseApplication(const PickPanelTexts& texts) {
    NSOpenPanel* panel = makePanel(texts);
    panel.canChooseFiles = YES;
    panel.canChooseDirectories = NO;
    // The panel keeps its delegate weakly; this one lives until the panel has closed.
    TAExtensionFilter* applications = [[TAExtensionFilter alloc] initWithExtension:@"app"];
    panel.delegate = applications;
    panel.directoryURL = [NSURL fileURLWithPath:@"/Applications" isDirectory:YES];
    const NSModalResponse response = [panel runModal];
    panel.delegate = nil;
    if (response != NSModalResponseOK || panel.URL == nil) {
        return std::nullopt;
    }
    NSString* bundleID = [NSBundle bundleWithURL:panel.URL].bundleIdentifier;
    if (bundleID == nil) {
        return std::nullopt;
    }
    return toStdString(bundleID);
}

std::optional<std::string> PanelActionValuePicker::chooseFile(const PickPanelTexts& texts) {
    NSOpenPanel* panel = makePanel(texts);
    panel.canChooseFiles = YES;
    panel.canChooseDirectories = YES;
    if ([panel runModal] != NSModalResponseOK || panel.URL == nil) {
        return std::nullopt;
    }
    return toStdString(panel.URL.path);
}

std::optional<std::string> PanelActionValuePicker::chooseFromList(
    const PickListTexts& texts, const std::vector<std::string>& entries,
    const std::string& current) {
    NSAlert* alert = [[NSAlert alloc] init];
    alert.messageText = toNSString(texts.message);
    alert.informativeText = toNSString(texts.informative);
    [alert addButtonWithTitle:toNSString(texts.chooseButton)];
    // An alert gives Escape to a button only when its title is the English "Cancel".
    NSButton* cancel = [alert addButtonWithTitle:toNSString(texts.cancelButton)];
    cancel.keyEquivalent = @"\033";
    NSPopUpButton* list = [[NSPopUpButton alloc] initWithFrame:NSMakeRect(0, 0, 320, 26)
                                                     pullsDown:NO];
    for (const std::string& entry : entries) {
        // Items are added one by one: a menu keeps same-titled items that addItemsWithTitles:
        // would merge, and titles are never read as separators.
        NSMenuItem* item = [[NSMenuItem alloc] initWithTitle:toNSString(entry)
                                                      action:nil
                                               keyEquivalent:@""];
        [list.menu addItem:item];
        if (entry == current) {
            [list selectItem:item];
        }
    }
    alert.accessoryView = list;
    if ([alert runModal] != NSAlertFirstButtonReturn || list.selectedItem == nil) {
        return std::nullopt;
    }
    return toStdString(list.selectedItem.title);
}

}  // namespace tactora::macos
