#include "macos/AppKitSettingsView.h"

#include "macos/ControlUpdates.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

NSControlStateValue stateFor(bool on) {
    return on ? NSControlStateValueOn : NSControlStateValueOff;
}

}  // namespace

// Every setter compares before it assigns (ControlUpdates.h): the refresh timer repeats the
// controller's values five times a second while the window is shown.

void AppKitSettingsView::setStatusText(const std::string& text) {
    updateStringValue(controls_.status, toNSString(text));
}

void AppKitSettingsView::setPermissionText(const std::string& text) {
    updateStringValue(controls_.permission, toNSString(text));
}

void AppKitSettingsView::setLiveText(const std::string& text) {
    updateStringValue(controls_.live, toNSString(text));
}

bool AppKitSettingsView::isEnabledOn() const {
    return controls_.enabled.state == NSControlStateValueOn;
}

void AppKitSettingsView::setEnabledOn(bool on) {
    updateState(controls_.enabled, stateFor(on));
}

bool AppKitSettingsView::isKeepOnChecked() const {
    return controls_.keepOn.state == NSControlStateValueOn;
}

void AppKitSettingsView::setKeepOnChecked(bool on) {
    updateState(controls_.keepOn, stateFor(on));
}

bool AppKitSettingsView::isLoginItemChecked() const {
    return controls_.loginItem.state == NSControlStateValueOn;
}

void AppKitSettingsView::setLoginItemChecked(bool on) {
    updateState(controls_.loginItem, stateFor(on));
}

void AppKitSettingsView::setResetPermissionsVisible(bool visible) {
    updateHidden(controls_.resetPermissions, visible ? NO : YES);
}

void AppKitSettingsView::setLoginItemsSettingsVisible(bool visible) {
    updateHidden(controls_.openLoginItems, visible ? NO : YES);
}

void AppKitSettingsView::setProfileItems(const std::vector<ProfileMenuItem>& items) {
    NSPopUpButton* menu = controls_.profileMenu;
    [menu removeAllItems];
    // Items go straight into the menu: the pop-up's own adding drops an earlier item of the same
    // title, and profile names need not be unique.
    for (const ProfileMenuItem& item : items) {
        NSMenuItem* entry = [[NSMenuItem alloc] initWithTitle:toNSString(item.title)
                                                       action:nil
                                                keyEquivalent:@""];
        entry.representedObject = toNSString(item.representedID);
        [menu.menu addItem:entry];
    }
}

void AppKitSettingsView::selectProfileItem(std::size_t index) {
    [controls_.profileMenu selectItemAtIndex:static_cast<NSInteger>(index)];
}

std::optional<std::string> AppKitSettingsView::selectedProfileID() const {
    id represented = controls_.profileMenu.selectedItem.representedObject;
    if (![represented isKindOfClass:NSString.class]) {
        return std::nullopt;
    }
    return toStdString(represented);
}

void AppKitSettingsView::setDeleteProfileEnabled(bool enabled) {
    const BOOL wanted = enabled ? YES : NO;
    if (controls_.deleteProfileItem.enabled != wanted) {
        controls_.deleteProfileItem.enabled = wanted;
    }
}

void AppKitSettingsView::showApplications(const ApplicationsSheet& sheet) {
    if (controls_.window != nil) {
        [controls_.applicationsSheet showOnWindow:controls_.window content:sheet];
    }
}

void AppKitSettingsView::selectAction(std::size_t slot, std::int64_t action) {
    if (slot < controls_.actionMenus.count) {
        // Items carry their action as their tag; separators make indices differ from it.
        [controls_.actionMenus[slot] selectItemWithTag:static_cast<NSInteger>(action)];
    }
}

std::int64_t AppKitSettingsView::selectedAction(std::size_t slot) const {
    if (slot >= controls_.actionMenus.count) {
        return -1;
    }
    NSMenuItem* selected = controls_.actionMenus[slot].selectedItem;
    return selected != nil ? selected.tag : -1;
}

void AppKitSettingsView::setRecordButton(std::size_t slot, const RecordButtonState& state) {
    if (slot >= controls_.recordButtons.count) {
        return;
    }
    NSButton* button = controls_.recordButtons[slot];
    updateEnabled(button, state.enabled ? YES : NO);
    updateTitle(button, toNSString(state.title));
    updateToolTip(button, toNSString(state.toolTip));
}

void AppKitSettingsView::setStatusItem(const StatusItemAppearance& appearance) {
    NSStatusBarButton* button = controls_.statusItem.button;
    if (button == nil || appearance == statusItemShown_) {
        return;
    }
    NSImage* image =
        [NSImage imageWithSystemSymbolName:toNSString(appearance.symbolName)
                  accessibilityDescription:toNSString(appearance.accessibilityDescription)];
    [image setTemplate:YES];
    button.image = image;
    button.title = toNSString(appearance.title);
    // The feedback's finger count goes beside the symbol, not in its place; without it the
    // button is the symbol alone again, with no room kept for a title.
    button.imagePosition = appearance.title.empty() ? NSImageOnly : NSImageLeading;
    updateToolTip(button, toNSString(appearance.toolTip));
    statusItemShown_ = appearance;
}

}  // namespace tactora::macos
