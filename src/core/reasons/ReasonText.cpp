#include "core/reasons/ReasonText.h"

#include "core/localization/Localizer.h"

namespace tactora::reasons {

std::string_view reasonKey(DropReason reason) {
    switch (reason) {
        case DropReason::tooLong:
            return "reason.too_long";
        case DropReason::tooShort:
            return "reason.too_short";
        case DropReason::moved:
            return "reason.moved";
        case DropReason::tooManyFingers:
            return "reason.too_many_fingers";
        case DropReason::clickDuring:
            return "reason.click_during";
        case DropReason::clickAfter:
            return "reason.click_after";
        case DropReason::profileChanged:
            return "reason.profile_changed";
        case DropReason::applicationChanged:
            return "reason.application_changed";
        case DropReason::switchChanged:
            return "reason.switch_changed";
        case DropReason::gesturesOff:
            return "reason.gestures_off";
        case DropReason::largeContact:
            return "reason.large_contact";
        case DropReason::edgeBand:
            return "reason.edge_band";
        case DropReason::restingContact:
            return "reason.resting_contact";
        case DropReason::afterActivity:
            return "reason.after_activity";
        case DropReason::duringPress:
            return "reason.during_press";
        case DropReason::drumming:
            return "reason.drumming";
    }
    return "reason.switch_changed";
}

std::string reasonText(DropReason reason) {
    return L(reasonKey(reason));
}

}  // namespace tactora::reasons
