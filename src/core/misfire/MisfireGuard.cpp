#include "core/misfire/MisfireGuard.h"

#include <algorithm>

#include "core/misfire/ContactJudge.h"

namespace tactora {

namespace {

// The centre of `fingers`, none of them lifted.
Finger centreOf(std::span<const Finger> fingers) {
    double x = 0;
    double y = 0;
    for (const Finger& finger : fingers) {
        x += finger.x;
        y += finger.y;
    }
    const auto count = static_cast<double>(std::max<std::size_t>(fingers.size(), 1));
    return {0, x / count, y / count};
}

}  // namespace

MisfireGuard::MisfireGuard(MisfireOptions options, TapThresholds thresholds)
    : options_(options), thresholds_(thresholds.isValid() ? thresholds : TapThresholds{}) {}

void MisfireGuard::setThresholds(const TapThresholds& thresholds) {
    if (thresholds.isValid()) {
        thresholds_ = thresholds;
    }
}

MisfireGuard::Contact& MisfireGuard::contactFor(const Finger& finger, double now, bool& landed) {
    const auto found =
        std::find_if(contacts_.begin(), contacts_.end(),
                     [&](const Contact& contact) { return contact.id == finger.id; });
    if (found != contacts_.end()) {
        landed = false;
        return *found;
    }
    landed = true;
    contacts_.push_back(Contact{.id = finger.id, .landed = now});
    return contacts_.back();
}

void MisfireGuard::judgeContact(Contact& contact, const std::optional<ContactShape>& shape) const {
    if (shape) {
        contact.largest = std::max(contact.largest, shape->size);
    }
    if (contact.leftOut) {
        return;
    }
    if (options_.fingertipsOnly && contact::isLarge(contact.largest, options_.largestFingertip)) {
        contact.leftOut = DropReason::largeContact;
    }
}

// Without sizes, a contact that was down well before a newcomer landed is taken for a resting
// palm or thumb.
void MisfireGuard::leaveOutRestingContacts(const Contact& newcomer, double now) {
    for (Contact& contact : contacts_) {
        if (contact.id != newcomer.id && !contact.leftOut &&
            now - contact.landed >= MisfireOptions::restingLead) {
            contact.leftOut = DropReason::restingContact;
        }
    }
}

void MisfireGuard::begin(double now, const Finger& centre) {
    touching_ = true;
    began_ = now;
    activityBeforeBegin_ = lastActivity_;
    beganWhileHeld_ = buttonHeld_;
    largeInTouch_ = false;
    drums_.began(now, centre.x, centre.y);
    for (Contact& contact : contacts_) {
        contact.delivered = false;
    }
}

JudgedFrame MisfireGuard::frame(std::span<const Finger> fingers,
                                std::span<const std::optional<ContactShape>> shapes, double now) {
    JudgedFrame result;
    if (!options_.anyOn()) {
        // Followed all the same, so that options switched on mid-touch find it.
        if (!fingers.empty() && !touching_) {
            begin(now, centreOf(fingers));
        }
        if (fingers.empty() && touching_) {
            drums_.ended(now);
        }
        touching_ = !fingers.empty();
        result.fingers = fingers;
        return result;
    }
    for (Contact& contact : contacts_) {
        contact.seen = false;
    }
    for (std::size_t index = 0; index < fingers.size(); ++index) {
        const Finger& finger = fingers[index];
        const std::optional<ContactShape> shape =
            index < shapes.size() ? shapes[index] : std::nullopt;
        bool landed = false;
        Contact& contact = contactFor(finger, now, landed);
        contact.seen = true;
        if (landed && options_.edgeBands &&
            contact::inEdgeBand(finger.x, finger.y, *options_.edgeBands)) {
            contact.leftOut = DropReason::edgeBand;
        }
        if (landed && options_.fingertipsOnly && !shape) {
            leaveOutRestingContacts(contact, now);
        }
        judgeContact(contact, shape);
    }
    std::erase_if(contacts_, [](const Contact& contact) { return !contact.seen; });

    for (const Contact& contact : contacts_) {
        if (contact.leftOut && contact.delivered && touching_) {
            result.restart = true;
            result.restartReason = *contact.leftOut;
        }
    }
    if (result.restart) {
        drums_.ended(now);
        touching_ = false;
    }
    kept_.clear();
    for (const Finger& finger : fingers) {
        const auto contact = std::find_if(contacts_.begin(), contacts_.end(),
                                          [&](const Contact& c) { return c.id == finger.id; });
        if (!contact->leftOut) {
            kept_.push_back(finger);
        }
    }
    result.fingers = kept_;
    if (kept_.empty()) {
        // Nothing left to tell when every contact was left out and no touch is followed.
        result.deliver = fingers.empty() || touching_;
        if (touching_) {
            drums_.ended(now);
        }
        touching_ = false;
        return result;
    }
    if (!touching_) {
        begin(now, centreOf(kept_));
    }
    for (Contact& contact : contacts_) {
        if (contact.leftOut) {
            continue;
        }
        if (!contact.delivered) {
            drums_.joined(contact.landed);
        }
        contact.delivered = true;
        if (options_.ignoreLargeContacts &&
            contact::isLarge(contact.largest, options_.largestFingertip)) {
            largeInTouch_ = true;
        }
    }
    return result;
}

bool MisfireGuard::scroll(double now) {
    lastActivity_ = now;
    return !options_.forgetEarlierActivity || touching_;
}

void MisfireGuard::button(bool down, double now) {
    lastActivity_ = now;
    buttonHeld_ = down;
}

std::optional<DropReason> MisfireGuard::judgeTap() const {
    if (options_.ignoreLargeContacts && largeInTouch_) {
        return DropReason::largeContact;
    }
    if (options_.forgetEarlierActivity && beganWhileHeld_) {
        return DropReason::duringPress;
    }
    if (options_.ignoreDrumming && drums_.drumming()) {
        return DropReason::drumming;
    }
    if (options_.quietAfterActivity &&
        began_ - activityBeforeBegin_ < *options_.quietAfterActivity) {
        return DropReason::afterActivity;
    }
    return std::nullopt;
}

std::optional<DropReason> MisfireGuard::judgeClick() const {
    if (options_.ignoreLargeContacts && touching_ && largeInTouch_) {
        return DropReason::largeContact;
    }
    return std::nullopt;
}

std::optional<DropReason> MisfireGuard::vetoAtDue(double click, double began, double recognisedAt,
                                                  double wait) const {
    if (click >= recognisedAt - wait && (!options_.forgetEarlierActivity || click >= began)) {
        return DropReason::clickAfter;
    }
    if (options_.ignoreDrumming && drums_.laterTouchShowsDrumming(recognisedAt)) {
        return DropReason::drumming;
    }
    return std::nullopt;
}

void MisfireGuard::reset() {
    contacts_.clear();
    kept_.clear();
    touching_ = false;
    largeInTouch_ = false;
    beganWhileHeld_ = false;
    drums_.reset();
}

}  // namespace tactora
