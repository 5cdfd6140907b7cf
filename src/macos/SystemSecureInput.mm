#include "macos/SystemSecureInput.h"

#include <Carbon/Carbon.h>

namespace tactora::macos {

bool SystemSecureInput::enabled() const {
    return IsSecureEventInputEnabled() != 0;
}

}  // namespace tactora::macos
