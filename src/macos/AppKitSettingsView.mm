#include "macos/AppKitSettingsView.h"

#include "macos/StringConversion.h"

namespace tactora::macos {

void AppKitSettingsView::setStatusText(const std::string& text) {
    controls_.status.stringValue = toNSString(text);
}

void AppKitSettingsView::setPermissionText(const std::string& text) {
    controls_.permission.stringValue = toNSString(text);
}

void AppKitSettingsView::setLiveText(const std::string& text) {
    controls_.live.stringValue = toNSString(text);
}

bool AppKitSettingsView::isEnabledOn() const {
    return controls_.enabled.state == NSControlStateValueOn;
}

void AppKitSettingsView::setEnabledOn(bool on) {
    controls_.enabled.state = on ? NSControlStateValueOn : NSControlStateValueOff;
}

bool AppKitSettingsView::isKeepOnChecked() const {
    return controls_.keepOn.state == NSControlStateValueOn;
}

void AppKitSettingsView::setKeepOnChecked(bool on) {
    controls_.keepOn.state = on ? NSControlStateValueOn : NSControlStateValueOff;
}

bool AppKitSettingsView::isLoginItemChecked() const {
    return controls_.loginItem.state == NSControlStateValueOn;
}

void AppKitSettingsView::setLoginItemChecked(bool on) {
    controls_.loginItem.state = on ? NSControlStateValueOn : NSControlStateValueOff;
}

void AppKitSettingsView::setResetPermissionsVisible(bool visible) {
    // Compared first: the refresh timer calls this five times a second.
    if (controls_.resetPermissions.hidden == visible) {
        controls_.resetPermissions.hidden = !visible;
    }
}

void AppKitSettingsView::setLoginItemsSettingsVisible(bool visible) {
    if (controls_.openLoginItems.hidden == visible) {
        controls_.openLoginItems.hidden = !visible;
    }
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
    controls_.deleteProfileItem.enabled = enabled;
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
    button.enabled = state.enabled;
    button.title = toNSString(state.title);
    button.toolTip = toNSString(state.toolTip);
}

void AppKitSettingsView::setStatusItem(const StatusItemAppearance& appearance) {
    NSStatusBarButton* button = controls_.statusItem.button;
    if (button == nil) {
        return;
    }
    NSImage* image =
        [NSImage imageWithSystemSymbolName:toNSString(appearance.symbolName)
                  accessibilityDescription:toNSString(appearance.accessibilityDescription)];
    [image setTemplate:YES];
    button.image = image;
    button.title = toNSString(appearance.title);
    if (!appearance.title.empty()) {
        // The feedback's finger count goes beside the symbol, not in its place.
        button.imagePosition = NSImageLeading;
    }
    button.toolTip = toNSString(appearance.toolTip);
}

}  // namespace tactora::macos
