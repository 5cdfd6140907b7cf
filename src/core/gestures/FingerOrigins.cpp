#include "core/gestures/FingerOrigins.h"

#include <algorithm>

namespace tactora {

const FingerOrigins::Origin* FingerOrigins::findBeyondTheList(std::int64_t id) const {
    const auto found = overflow_.find(id);
    return found == overflow_.end() ? nullptr : &found->second;
}

bool FingerOrigins::operator==(const FingerOrigins& other) const {
    if (size() != other.size()) {
        return false;
    }
    // Ids are unique within one set, so equal sizes and every id matching means equal sets.
    const auto matches = [&other](std::int64_t id, const Origin& origin) {
        const Origin* theirs = other.find(id);
        return theirs != nullptr && *theirs == origin;
    };
    return std::all_of(entries_.begin(), entries_.end(),
                       [&matches](const Entry& e) { return matches(e.id, e.origin); }) &&
           std::all_of(overflow_.begin(), overflow_.end(), [&matches](const auto& entry) {
               return matches(entry.first, entry.second);
           });
}

}  // namespace tactora
