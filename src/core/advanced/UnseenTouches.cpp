#include "core/advanced/UnseenTouches.h"

#include "core/misfire/ContactJudge.h"

namespace tactora {

const UnseenTouches::Contact* UnseenTouches::find(std::int64_t id) const {
    for (std::size_t index = 0; index < count_; ++index) {
        if (contacts_.at(index).id == id) {
            return &contacts_.at(index);
        }
    }
    return nullptr;
}

std::optional<DropReason> UnseenTouches::frame(std::span<const Finger> fingers,
                                               std::span<const std::optional<ContactShape>> shapes,
                                               const MisfireOptions& options) {
    if (fingers.empty()) {
        const bool unseen = touching_ && !kept_ && reason_;
        const std::optional<DropReason> reason = unseen ? reason_ : std::nullopt;
        touching_ = false;
        kept_ = false;
        reason_.reset();
        count_ = 0;
        return reason;
    }
    touching_ = true;
    std::array<Contact, capacity> next{};
    std::size_t nextCount = 0;
    for (std::size_t index = 0; index < fingers.size() && nextCount < capacity; ++index) {
        const Finger& finger = fingers[index];
        Contact contact{.id = finger.id, .leftOut = std::nullopt};
        if (const Contact* earlier = find(finger.id)) {
            contact = *earlier;
        } else if (options.edgeBands &&
                   contact::inEdgeBand(finger.x, finger.y, *options.edgeBands)) {
            contact.leftOut = DropReason::edgeBand;
        }
        const bool large = index < shapes.size() && shapes[index].has_value() &&
                           contact::isLarge(shapes[index]->size, options.largestFingertip);
        if (!contact.leftOut && options.fingertipsOnly && large) {
            contact.leftOut = DropReason::largeContact;
        }
        if (contact.leftOut) {
            reason_ = reason_.value_or(*contact.leftOut);
        } else {
            kept_ = true;
        }
        next.at(nextCount++) = contact;
    }
    contacts_ = next;
    count_ = nextCount;
    return std::nullopt;
}

}  // namespace tactora
