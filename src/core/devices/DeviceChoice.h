#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/platform/TouchDevices.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// Which touch devices beside the Magic Mouse the user uses for gestures. A device is
// remembered by its kind and name, not its id, so that one that leaves and comes back (with a
// new id) is used again; two devices of the same kind and name share one choice. Every device
// is unused until the user ticks it.
//
// Kept in the user defaults under `key` as a JSON array of {"kind": ..., "name": ...}. A value
// that is not an array reads as nothing chosen and is left as it is until the user next changes
// the choice; entries this version cannot read (a kind it does not know, say) are kept as they
// are. Main thread only.
class DeviceChoice {
  public:
    static constexpr std::string_view key = "TouchDevicesInUse";

    // Without `defaults`, the choice lasts only as long as this object.
    explicit DeviceChoice(std::shared_ptr<Preferences> defaults);

    bool uses(const TouchDevice& device) const;
    // Remembers the choice at once.
    void setUses(const TouchDevice& device, bool use);

  private:
    using Identity = std::pair<TouchDeviceKind, std::string>;

    void save() const;

    std::shared_ptr<Preferences> defaults_;
    std::vector<Identity> chosen_;
    // The entries this version could not read, as stored, written back with every save.
    std::vector<std::string> unread_;
};

// The stored name of a kind of device ("magicTrackpad", ...), and the kind a stored name stands
// for; nothing for a name this version does not know.
std::string_view storedKindName(TouchDeviceKind kind);
std::optional<TouchDeviceKind> storedKind(std::string_view name);

}  // namespace tactora
