#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/profiles/WorkProfile.h"

namespace tactora {

// The stored form of a profile list: one compact JSON array of profile objects. Both functions
// are pure and may be called from any thread.

// The optional "apps" key is written only for a profile with applications, and the optional
// "extraActions" key (one element per slot: null, or the action's stored name and its "value")
// only for a profile with extra actions; their slots hold 0 in "actions". The optional
// "moreGestures" key is written only for a profile that maps one of the further gestures or
// changes the top band's depth; a slot of it with a further action holds 0 in its "action" and
// the further action, as in "extraActions", in its "extra". The optional "trackpad" key is
// written only for a profile with something mapped (or a shortcut kept) on trackpads: an object
// with the "actions", "shortcuts" and, when there are extras, "extraActions" of the trackpads'
// eight, in the same form as the profile's own.
// Nothing when a profile cannot be written (a name or label that is not valid UTF-8).
std::optional<std::string> encodeProfiles(const std::vector<WorkProfile>& profiles);

// The whole list, or nothing at all when any element is malformed: a missing key, a value of
// the wrong type or out of its field's range, or an id that is not a UUID. Unknown keys are
// ignored and nothing is repaired; run sanitize() on each profile afterwards. The exceptions
// are the optional "apps" key: a value that is not an array of non-empty strings leaves that
// profile without applications instead of failing the list; the optional "extraActions" key,
// whose elements that are not an extra action this version knows leave their slot without one;
// and "moreGestures": a malformed slot stays off (a malformed "extra" leaves the slot on its
// "action"), an unknown slot name is ignored, and a value that is not an object leaves all of
// them off. A malformed "trackpad" (not an object; "actions" or "shortcuts" missing, not lists
// of eight or with a bad element; "extraActions" present but not a list of eight nulls and
// objects of the form above) leaves that profile with nothing mapped on trackpads and the rest
// of it as written; an extra action this version does not know leaves its slot without one.
//
// Strict about the text: it must be one JSON array in valid UTF-8 (a leading byte order mark
// is skipped), without comments or trailing data. Integer fields take integers only: a number
// written with a fraction or an exponent, such as 1.0 or 1e2, is the wrong type. Never throws.
std::optional<std::vector<WorkProfile>> decodeProfiles(std::string_view json);

}  // namespace tactora
