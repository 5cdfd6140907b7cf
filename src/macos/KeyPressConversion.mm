#include "macos/KeyPressConversion.h"

#include "macos/StringConversion.h"

namespace tactora::macos {

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
