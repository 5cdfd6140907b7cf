#include "core/profiles/ProfileJson.h"

#include <algorithm>
#include <cstdint>
#include <exception>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

#include "core/actions/ExtraActionInfo.h"

namespace tactora {

namespace {

using Json = nlohmann::json;
using OrderedJson = nlohmann::ordered_json;

OrderedJson encodeShortcut(const std::optional<SavedShortcut>& shortcut) {
    if (!shortcut) {
        return nullptr;
    }
    OrderedJson object = OrderedJson::object();
    object["keyCode"] = shortcut->keyCode;
    object["flags"] = shortcut->flags;
    object["label"] = shortcut->label;
    return object;
}

OrderedJson encodeExtra(const std::optional<SlotExtra>& extra) {
    if (!extra) {
        return nullptr;
    }
    OrderedJson object = OrderedJson::object();
    object["action"] = catalogue::info(extra->action).storedKey;
    if (!extra->value.empty()) {
        object["value"] = extra->value;
    }
    return object;
}

OrderedJson encodeShortcuts(const std::vector<std::optional<SavedShortcut>>& list) {
    OrderedJson shortcuts = OrderedJson::array();
    for (const auto& shortcut : list) {
        shortcuts.push_back(encodeShortcut(shortcut));
    }
    return shortcuts;
}

bool hasExtras(const std::vector<std::optional<SlotExtra>>& extras) {
    return std::ranges::any_of(extras, [](const auto& extra) { return extra.has_value(); });
}

OrderedJson encodeExtras(const std::vector<std::optional<SlotExtra>>& list) {
    OrderedJson extras = OrderedJson::array();
    for (const auto& extra : list) {
        extras.push_back(encodeExtra(extra));
    }
    return extras;
}

// A slot with an extra action is written with the default action in "actions", whatever the
// list holds in memory, so that a reader that knows only "actions" never performs another one.
std::vector<ActionIndex> storedActions(std::vector<ActionIndex> actions,
                                       const std::vector<std::optional<SlotExtra>>& extras) {
    for (std::size_t i = 0; i < actions.size(); ++i) {
        if (extraInSlot(extras, i)) {
            actions[i] = action::defaultAction;
        }
    }
    return actions;
}

// The trackpads' eight, in the members and the form the profile uses for the Magic Mouse's.
OrderedJson encodeTrackpad(const GestureSlots& trackpad) {
    OrderedJson object = OrderedJson::object();
    object["actions"] = storedActions(trackpad.actions, trackpad.extras);
    object["shortcuts"] = encodeShortcuts(trackpad.shortcuts);
    if (hasExtras(trackpad.extras)) {
        object["extraActions"] = encodeExtras(trackpad.extras);
    }
    return object;
}

// Only the slots that hold something are written, by name.
OrderedJson encodeMoreGestures(const MoreGestureMap& more) {
    OrderedJson slots = OrderedJson::object();
    for (std::size_t i = 0; i < moreslot::count; ++i) {
        if (more.actions[i] == action::defaultAction && !more.shortcuts[i] && !more.extras[i]) {
            continue;
        }
        OrderedJson slot = OrderedJson::object();
        // As with the eight, a slot with a further action holds the default where a reader that
        // does not know "extra" looks, so that such a reader leaves the gesture off.
        slot["action"] = more.extras[i] ? action::defaultAction : more.actions[i];
        if (more.shortcuts[i]) {
            slot["shortcut"] = encodeShortcut(more.shortcuts[i]);
        }
        if (more.extras[i]) {
            slot["extra"] = encodeExtra(more.extras[i]);
        }
        slots[std::string(moreslot::names[i])] = std::move(slot);
    }
    OrderedJson object = OrderedJson::object();
    object["slots"] = std::move(slots);
    object["topBand"] = more.topBand;
    return object;
}

OrderedJson encodeProfile(const WorkProfile& profile) {
    OrderedJson object = OrderedJson::object();
    object["id"] = profile.id.text();
    object["name"] = profile.name;
    object["actions"] = storedActions(profile.actions, profile.extras);
    object["shortcuts"] = encodeShortcuts(profile.shortcuts);
    // Written only when there is something to say, so that a profile without applications is
    // stored exactly as before the key existed.
    if (!profile.apps.empty()) {
        object["apps"] = profile.apps;
    }
    // The same for the extra actions.
    if (hasExtras(profile.extras)) {
        object["extraActions"] = encodeExtras(profile.extras);
    }
    // The same for the further gestures: a profile that maps none of them is stored as it was
    // before they existed, and a reader that does not know the key ignores it.
    if (!profile.moreGestures.isDefault()) {
        object["moreGestures"] = encodeMoreGestures(profile.moreGestures);
    }
    // The same for trackpads.
    if (!profile.trackpad.isEmpty()) {
        object["trackpad"] = encodeTrackpad(profile.trackpad);
    }
    return object;
}

// Integers only: a JSON number with a fraction or an exponent is refused even when its value
// is whole, because no writer of this format produces one and accepting it would let a damaged
// value such as 1e300 pass for an index.
std::optional<std::uint64_t> unsignedValue(const Json& value) {
    if (value.is_number_unsigned()) {
        return value.get<std::uint64_t>();
    }
    if (value.is_number_integer() && value.get<std::int64_t>() >= 0) {
        return static_cast<std::uint64_t>(value.get<std::int64_t>());
    }
    return std::nullopt;
}

std::optional<std::int64_t> signedValue(const Json& value) {
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        if (number > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
            return std::nullopt;
        }
        return static_cast<std::int64_t>(number);
    }
    if (value.is_number_integer()) {
        return value.get<std::int64_t>();
    }
    return std::nullopt;
}

const Json* member(const Json& object, const char* key) {
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

const std::string* stringMember(const Json& object, const char* key) {
    const Json* value = member(object, key);
    return value != nullptr && value->is_string() ? value->get_ptr<const std::string*>() : nullptr;
}

const Json* arrayMember(const Json& object, const char* key) {
    const Json* value = member(object, key);
    return value != nullptr && value->is_array() ? value : nullptr;
}

std::optional<SavedShortcut> decodeShortcut(const Json& object) {
    if (!object.is_object()) {
        return std::nullopt;
    }
    const Json* keyCodeValue = member(object, "keyCode");
    const Json* flagsValue = member(object, "flags");
    const std::string* label = stringMember(object, "label");
    if (keyCodeValue == nullptr || flagsValue == nullptr || label == nullptr) {
        return std::nullopt;
    }
    const std::optional<std::uint64_t> keyCode = unsignedValue(*keyCodeValue);
    const std::optional<std::uint64_t> flags = unsignedValue(*flagsValue);
    if (!keyCode || *keyCode > std::numeric_limits<std::uint16_t>::max() || !flags) {
        return std::nullopt;
    }
    return SavedShortcut::decoded(static_cast<std::uint16_t>(*keyCode), *flags, *label);
}

std::optional<std::vector<ActionIndex>> decodeActions(const Json& array) {
    std::vector<ActionIndex> actions;
    actions.reserve(array.size());
    for (const Json& element : array) {
        const std::optional<std::int64_t> value = signedValue(element);
        if (!value) {
            return std::nullopt;
        }
        actions.push_back(*value);
    }
    return actions;
}

// The outer optional is the outcome; the inner one is a slot without a shortcut.
std::optional<std::vector<std::optional<SavedShortcut>>> decodeShortcuts(const Json& array) {
    std::vector<std::optional<SavedShortcut>> shortcuts;
    shortcuts.reserve(array.size());
    for (const Json& element : array) {
        if (element.is_null()) {
            shortcuts.emplace_back(std::nullopt);
            continue;
        }
        std::optional<SavedShortcut> shortcut = decodeShortcut(element);
        if (!shortcut) {
            return std::nullopt;
        }
        shortcuts.emplace_back(std::move(shortcut));
    }
    return shortcuts;
}

// The optional "apps" key. Anything but an array of non-empty strings is dropped for this
// profile alone: the key is newer than the format, and a damaged list of applications must not
// cost the user the whole profile list.
std::vector<std::string> decodeApps(const Json& object) {
    const Json* array = arrayMember(object, "apps");
    if (array == nullptr) {
        return {};
    }
    std::vector<std::string> apps;
    apps.reserve(array->size());
    for (const Json& element : *array) {
        if (!element.is_string() || element.get_ref<const std::string&>().empty()) {
            return {};
        }
        apps.push_back(element.get<std::string>());
    }
    return apps;
}

// One slot of the optional "extraActions" key: an action this version knows, with a string
// value or none. Anything else leaves the slot without an extra, and so with its stored action.
std::optional<SlotExtra> decodeExtra(const Json& element) {
    if (!element.is_object()) {
        return std::nullopt;
    }
    const std::string* key = stringMember(element, "action");
    const std::optional<ExtraAction> action =
        key != nullptr ? catalogue::extraFromStoredKey(*key) : std::nullopt;
    if (!action) {
        return std::nullopt;
    }
    const Json* value = member(element, "value");
    if (value != nullptr && !value->is_string()) {
        return std::nullopt;
    }
    return SlotExtra{*action, value != nullptr ? value->get<std::string>() : std::string()};
}

std::vector<std::optional<SlotExtra>> decodeExtras(const Json& object) {
    const Json* array = arrayMember(object, "extraActions");
    if (array == nullptr) {
        return {};
    }
    std::vector<std::optional<SlotExtra>> extras;
    extras.reserve(array->size());
    for (const Json& element : *array) {
        extras.push_back(decodeExtra(element));
    }
    return extras;
}

// One slot of the optional "moreGestures" key; whatever is malformed in it leaves that part of
// the slot at its default, so a damaged entry turns the gesture off instead of costing the list.
void decodeMoreGestureSlot(const Json& entry, MoreGestureSlot slot, MoreGestureMap& more) {
    if (!entry.is_object()) {
        return;
    }
    const std::size_t i = moreslot::index(slot);
    if (const Json* action = member(entry, "action"); action != nullptr) {
        more.actions[i] = signedValue(*action).value_or(action::defaultAction);
    }
    if (const Json* shortcut = member(entry, "shortcut"); shortcut != nullptr) {
        more.shortcuts[i] = decodeShortcut(*shortcut);
    }
    if (const Json* extra = member(entry, "extra"); extra != nullptr) {
        more.extras[i] = decodeExtra(*extra);
    }
}

// The optional "moreGestures" key. Slot names this copy does not know (a newer copy's) are
// ignored; nothing here can make the list fail.
MoreGestureMap decodeMoreGestures(const Json& profile) {
    MoreGestureMap more;
    const Json* object = member(profile, "moreGestures");
    if (object == nullptr || !object->is_object()) {
        return more;
    }
    if (const Json* slots = member(*object, "slots"); slots != nullptr && slots->is_object()) {
        for (const auto& [name, entry] : slots->items()) {
            if (const std::optional<MoreGestureSlot> slot = moreslot::named(name)) {
                decodeMoreGestureSlot(entry, *slot, more);
            }
        }
    }
    if (const Json* band = member(*object, "topBand"); band != nullptr && band->is_number()) {
        more.topBand = band->get<double>();
    }
    return more;
}

// An element of "extraActions" inside "trackpad": null, or an object with a string "action"
// and, optionally, a string "value". An action this version does not know (a newer copy's)
// leaves its slot without an extra, as it does for the profile's own.
bool isExtraShaped(const Json& element) {
    if (element.is_null()) {
        return true;
    }
    if (!element.is_object() || stringMember(element, "action") == nullptr) {
        return false;
    }
    const Json* value = member(element, "value");
    return value == nullptr || value->is_string();
}

std::optional<std::vector<std::optional<SlotExtra>>> decodeTrackpadExtras(const Json& trackpad) {
    const Json* value = member(trackpad, "extraActions");
    if (value == nullptr) {
        return std::vector<std::optional<SlotExtra>>();
    }
    if (!value->is_array() || value->size() != slot::count) {
        return std::nullopt;
    }
    std::vector<std::optional<SlotExtra>> extras;
    extras.reserve(slot::count);
    for (const Json& element : *value) {
        if (!isExtraShaped(element)) {
            return std::nullopt;
        }
        extras.push_back(decodeExtra(element));
    }
    return extras;
}

// The optional "trackpad" key: an object with the members the profile uses for its own eight,
// each with exactly eight elements. Being newer than the format, a malformed value leaves the
// profile with nothing mapped on trackpads rather than failing it or the list, and costs nothing
// else of the profile. Actions outside the catalogue are kept for sanitize() to repair, as the
// profile's own are.
GestureSlots decodeTrackpad(const Json& profile) {
    const Json* trackpad = member(profile, "trackpad");
    if (trackpad == nullptr || !trackpad->is_object()) {
        return {};
    }
    const Json* actionsArray = arrayMember(*trackpad, "actions");
    const Json* shortcutsArray = arrayMember(*trackpad, "shortcuts");
    if (actionsArray == nullptr || shortcutsArray == nullptr ||
        actionsArray->size() != slot::count || shortcutsArray->size() != slot::count) {
        return {};
    }
    auto actions = decodeActions(*actionsArray);
    auto shortcuts = decodeShortcuts(*shortcutsArray);
    auto extras = decodeTrackpadExtras(*trackpad);
    if (!actions || !shortcuts || !extras) {
        return {};
    }
    GestureSlots slots;
    slots.actions = std::move(*actions);
    slots.shortcuts = std::move(*shortcuts);
    slots.extras = std::move(*extras);
    return slots;
}

std::optional<WorkProfile> decodeProfile(const Json& object) {
    if (!object.is_object()) {
        return std::nullopt;
    }
    const std::string* idText = stringMember(object, "id");
    const std::string* name = stringMember(object, "name");
    const Json* actionsArray = arrayMember(object, "actions");
    const Json* shortcutsArray = arrayMember(object, "shortcuts");
    if (idText == nullptr || name == nullptr || actionsArray == nullptr ||
        shortcutsArray == nullptr) {
        return std::nullopt;
    }
    const std::optional<Uuid> id = Uuid::parse(*idText);
    auto actions = decodeActions(*actionsArray);
    auto shortcuts = decodeShortcuts(*shortcutsArray);
    if (!id || !actions || !shortcuts) {
        return std::nullopt;
    }
    WorkProfile profile(*id, *name, std::move(*actions), std::move(*shortcuts));
    profile.apps = decodeApps(object);
    profile.extras = decodeExtras(object);
    profile.moreGestures = decodeMoreGestures(object);
    profile.trackpad = decodeTrackpad(object);
    return profile;
}

std::optional<std::vector<WorkProfile>> decodeList(const Json& array) {
    if (!array.is_array()) {
        return std::nullopt;
    }
    std::vector<WorkProfile> profiles;
    profiles.reserve(array.size());
    for (const Json& element : array) {
        std::optional<WorkProfile> profile = decodeProfile(element);
        if (!profile) {
            return std::nullopt;
        }
        profiles.push_back(std::move(*profile));
    }
    return profiles;
}

}  // namespace

std::optional<std::string> encodeProfiles(const std::vector<WorkProfile>& profiles) {
    try {
        OrderedJson array = OrderedJson::array();
        for (const WorkProfile& profile : profiles) {
            array.push_back(encodeProfile(profile));
        }
        return array.dump();
    } catch (const nlohmann::json::exception&) {
        // The writer refuses text that is not valid UTF-8.
        return std::nullopt;
    }
}

std::optional<std::vector<WorkProfile>> decodeProfiles(std::string_view json) {
    // The parser takes a NUL byte for the end of the input and would ignore whatever follows;
    // JSON has no place for a raw NUL, so such input is malformed.
    if (json.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    try {
        const Json document = Json::parse(json.begin(), json.end(), nullptr, false);
        if (document.is_discarded()) {
            return std::nullopt;
        }
        return decodeList(document);
    } catch (const std::exception&) {
        // Whatever the input, a failure is an answer, never an exception for the caller.
        return std::nullopt;
    }
}

}  // namespace tactora
