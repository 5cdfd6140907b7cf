#include "macos/AppKitDialogs.h"

#import <AppKit/AppKit.h>

#include "macos/AlertRecordingDialog.h"
#include "macos/KeyPressConversion.h"
#include "macos/ScopedEventMonitor.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

namespace {

NSAlert* makeAlert(const std::string& message, const std::string& informative) {
    NSAlert* alert = [[NSAlert alloc] init];
    alert.messageText = toNSString(message);
    alert.informativeText = toNSString(informative);
    return alert;
}

// Neither button answers Return or Escape, so that those keys reach the monitor and can be
// recorded like any other.
NSButton* addPlainButton(NSAlert* alert, const std::string& title) {
    NSButton* button = [alert addButtonWithTitle:toNSString(title)];
    button.keyEquivalent = @"";
    return button;
}

NSTextField* makeRecordingLabel(const std::string& text) {
    NSTextField* label = [NSTextField labelWithString:toNSString(text)];
    label.font = [NSFont monospacedSystemFontOfSize:22 weight:NSFontWeightMedium];
    label.frame = NSMakeRect(0, 0, 380, 36);
    return label;
}

// An alert gives Escape to a button only when its title is the English "Cancel"; in every
// other language the button has to be given it.
void cancelWithEscape(NSButton* cancel) {
    cancel.keyEquivalent = @"\033";
}

}  // namespace

NSAlert* makeNamingAlert(const NamingDialogTexts& texts) {
    NSAlert* alert = makeAlert(texts.message, texts.informative);
    [alert addButtonWithTitle:toNSString(texts.saveButton)];
    cancelWithEscape([alert addButtonWithTitle:toNSString(texts.cancelButton)]);
    NSTextField* field = [[NSTextField alloc] initWithFrame:NSMakeRect(0, 0, 320, 24)];
    field.stringValue = toNSString(texts.initialText);
    alert.accessoryView = field;
    alert.window.initialFirstResponder = field;
    return alert;
}

NSAlert* makeConfirmationAlert(const ConfirmationTexts& texts) {
    NSAlert* alert = makeAlert(texts.message, texts.informative);
    alert.alertStyle = NSAlertStyleWarning;
    NSButton* confirm = [alert addButtonWithTitle:toNSString(texts.confirmButton)];
    confirm.hasDestructiveAction = YES;
    // Neither Return nor Enter confirms: a destructive step takes a deliberate click.
    confirm.keyEquivalent = @"";
    cancelWithEscape([alert addButtonWithTitle:toNSString(texts.cancelButton)]);
    return alert;
}

bool AppKitDialogs::runRecordingDialog(const RecordingDialogTexts& texts,
                                       const RecordingKeyHandler& onKey) {
    NSAlert* alert = makeAlert(texts.message, texts.informative);
    NSButton* save = addPlainButton(alert, texts.saveButton);
    save.enabled = NO;
    addPlainButton(alert, texts.cancelButton);
    NSTextField* label = makeRecordingLabel(texts.waiting);
    alert.accessoryView = label;

    AlertRecordingDialog dialog(label, save);
    AlertRecordingDialog* open = &dialog;  // outlives the monitor, which goes first
    const RecordingKeyHandler* handler = &onKey;
    const ScopedEventMonitor monitor(NSEventMaskKeyDown, ^NSEvent*(NSEvent* event) {
        const EventDisposition disposition = (*handler)(keyPressFrom(event, alert.window), *open);
        return disposition == EventDisposition::swallow ? nil : event;
    });
    return [alert runModal] == NSAlertFirstButtonReturn;
}

std::optional<std::string> AppKitDialogs::runNamingDialog(const NamingDialogTexts& texts) {
    NSAlert* alert = makeNamingAlert(texts);
    if ([alert runModal] != NSAlertFirstButtonReturn) {
        return std::nullopt;
    }
    return toStdString(static_cast<NSTextField*>(alert.accessoryView).stringValue);
}

bool AppKitDialogs::runConfirmation(const ConfirmationTexts& texts) {
    return [makeConfirmationAlert(texts) runModal] == NSAlertFirstButtonReturn;
}

void AppKitDialogs::showMessage(const MessageTexts& texts) {
    NSAlert* alert = makeAlert(texts.message, texts.informative);
    alert.alertStyle = NSAlertStyleWarning;
    // With no button added, the alert has the system's own OK button.
    [alert runModal];
}

}  // namespace tactora::macos
