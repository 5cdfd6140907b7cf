#include "core/gestures/FingerOrigins.h"

#include <algorithm>

namespace tactora {

bool FingerOrigins::operator==(const FingerOrigins& other) const {
    if (size() != other.size()) {
        return false;
    }
    // Ids are unique within one list, so equal sizes and every id matching means equal sets.
    return std::all_of(entries_.begin(), entries_.end(), [&other](const Entry& e) {
        const Origin* theirs = other.find(e.id);
        return theirs != nullptr && *theirs == e.origin;
    });
}

}  // namespace tactora
