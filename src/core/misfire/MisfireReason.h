#pragma once

namespace tactora {

// Why an option against accidents left a contact out or dropped a touch.
enum class MisfireReason {
    edgeBand,        // the contact landed in an edge band
    largeContact,    // a contact was a palm's or a thumb's size
    restingContact,  // a contact had rested since well before the others landed
    afterActivity,   // the touch began too soon after a scroll or a click
    duringPress,     // the touch began while the button was held: a fragment of the click
};

}  // namespace tactora
