#include "core/misfire/MisfireGuard.h"

#include <algorithm>

#include "core/misfire/ContactJudge.h"

namespace tactora {

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

void MisfireGuard::judgeContact(Contact& contact, const std::optional<ContactShape>& shape) {
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

void MisfireGuard::begin(double now) {
    touching_ = true;
    began_ = now;
    activityBeforeBegin_ = lastActivity_;
    beganWhileHeld_ = buttonHeld_;
    largeInTouch_ = false;
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
            begin(now);
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
        touching_ = false;
        return result;
    }
    if (!touching_) {
        begin(now);
    }
    for (Contact& contact : contacts_) {
        if (contact.leftOut) {
            continue;
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

bool MisfireGuard::clickVetoes(double click, double began, double recognisedAt, double wait) const {
    if (click < recognisedAt - wait) {
        return false;
    }
    return !options_.forgetEarlierActivity || click >= began;
}

void MisfireGuard::reset() {
    contacts_.clear();
    kept_.clear();
    touching_ = false;
    largeInTouch_ = false;
    beganWhileHeld_ = false;
}

}  // namespace tactora
