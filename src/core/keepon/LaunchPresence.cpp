#include "core/keepon/LaunchPresence.h"

namespace tactora {

bool LaunchPresence::windowOpened() {
    const bool becomesRegular = quiet_;
    quiet_ = false;
    return becomesRegular;
}

}  // namespace tactora
