#include "core/devices/DeviceChoice.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>

namespace tactora {

namespace {

constexpr std::array<std::pair<TouchDeviceKind, std::string_view>, 4> kindNames = {{
    {TouchDeviceKind::other, "other"},
    {TouchDeviceKind::magicMouse, "magicMouse"},
    {TouchDeviceKind::magicTrackpad, "magicTrackpad"},
    {TouchDeviceKind::builtInTrackpad, "builtInTrackpad"},
}};

// The device an entry of the stored array names, if this version can read it.
std::optional<std::pair<TouchDeviceKind, std::string>> readEntry(const nlohmann::json& entry) {
    if (!entry.is_object()) {
        return std::nullopt;
    }
    const auto kind = entry.find("kind");
    const auto name = entry.find("name");
    if (kind == entry.end() || name == entry.end() || !kind->is_string() || !name->is_string()) {
        return std::nullopt;
    }
    const std::optional<TouchDeviceKind> known = storedKind(kind->get<std::string>());
    if (!known) {
        return std::nullopt;
    }
    return std::pair{*known, name->get<std::string>()};
}

}  // namespace

std::string_view storedKindName(TouchDeviceKind kind) {
    const auto* const found =
        std::ranges::find(kindNames, kind, &decltype(kindNames)::value_type::first);
    return found == kindNames.end() ? "other" : found->second;
}

std::optional<TouchDeviceKind> storedKind(std::string_view name) {
    const auto* const found =
        std::ranges::find(kindNames, name, &decltype(kindNames)::value_type::second);
    if (found == kindNames.end()) {
        return std::nullopt;
    }
    return found->first;
}

DeviceChoice::DeviceChoice(std::shared_ptr<Preferences> defaults) : defaults_(std::move(defaults)) {
    if (!defaults_) {
        return;
    }
    const std::optional<std::string> stored = defaults_->string(std::string(key));
    if (!stored) {
        return;
    }
    const nlohmann::json parsed = nlohmann::json::parse(*stored, nullptr, false);
    if (!parsed.is_array()) {
        return;
    }
    for (const nlohmann::json& entry : parsed) {
        if (auto identity = readEntry(entry)) {
            chosen_.push_back(std::move(*identity));
        } else {
            unread_.push_back(entry.dump());
        }
    }
}

bool DeviceChoice::uses(const TouchDevice& device) const {
    return std::ranges::find(chosen_, Identity{device.kind, device.name}) != chosen_.end();
}

void DeviceChoice::setUses(const TouchDevice& device, bool use) {
    const Identity identity{device.kind, device.name};
    std::erase(chosen_, identity);
    if (use) {
        chosen_.push_back(identity);
    }
    save();
}

void DeviceChoice::save() const {
    if (!defaults_) {
        return;
    }
    nlohmann::json array = nlohmann::json::array();
    for (const auto& [kind, name] : chosen_) {
        array.push_back({{"kind", std::string(storedKindName(kind))}, {"name", name}});
    }
    for (const std::string& entry : unread_) {
        array.push_back(nlohmann::json::parse(entry));
    }
    // A name that is not UTF-8 is stored with replacement characters rather than not at all.
    defaults_->setString(std::string(key),
                         array.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

}  // namespace tactora
