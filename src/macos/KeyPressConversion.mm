#include "macos/KeyPressConversion.h"

#include "core/actions/ModifierFlags.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

// Shortcuts keep AppKit's modifier flags as they are.
static_assert(ModifierFlags::capsLock == NSEventModifierFlagCapsLock);
static_assert(ModifierFlags::shift == NSEventModifierFlagShift);
static_assert(ModifierFlags::control == NSEventModifierFlagControl);
static_assert(ModifierFlags::option == NSEventModifierFlagOption);
static_assert(ModifierFlags::command == NSEventModifierFlagCommand);
static_assert(ModifierFlags::numericPad == NSEventModifierFlagNumericPad);
static_assert(ModifierFlags::help == NSEventModifierFlagHelp);
static_assert(ModifierFlags::function == NSEventModifierFlagFunction);

KeyPress keyPressFrom(NSEvent* _Nonnull event, NSWindow* _Nullable dialogWindow) {
    KeyPress press;
    press.keyCode = event.keyCode;
    press.modifierFlags = event.modifierFlags;
    press.isRepeat = event.isARepeat;
    NSString* characters = event.charactersIgnoringModifiers;
    if (characters != nil) {
        press.charactersIgnoringModifiers = toStdString(characters);
    }
    press.inDialogWindow = event.window == dialogWindow;
    return press;
}

}  // namespace tactora::macos
