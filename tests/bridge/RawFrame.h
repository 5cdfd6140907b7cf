#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

#include "bridge/FrameFilter.h"

namespace tactora::testing {

struct RawContact {
    std::int32_t id;
    std::int32_t state;
    float x;
    float y;
    // The contact's shape: size, angle of its long axis, its major and minor axes.
    float size = 0;
    float angle = 0;
    float majorAxis = 0;
    float minorAxis = 0;
};

inline constexpr std::int32_t kTouching = 3;
inline constexpr std::int32_t kPressing = 4;
inline constexpr std::int32_t kHovering = 1;
inline constexpr std::int32_t kLifting = 5;

// Contact records laid out as the multitouch framework delivers them, optionally starting at
// an odd address. Every byte that is not a field read by the bridge is filled with noise.
class RawFrame {
  public:
    explicit RawFrame(const std::vector<RawContact>& contacts, std::size_t misalignment = 0)
        : misalignment_(misalignment),
          bytes_(misalignment + contacts.size() * TA_CONTACT_RECORD_SIZE, 0xA5) {
        for (std::size_t index = 0; index < contacts.size(); ++index) {
            std::uint8_t* record = bytes_.data() + misalignment + index * TA_CONTACT_RECORD_SIZE;
            std::memcpy(record + 16, &contacts[index].id, 4);
            std::memcpy(record + 20, &contacts[index].state, 4);
            std::memcpy(record + 32, &contacts[index].x, 4);
            std::memcpy(record + 36, &contacts[index].y, 4);
            std::memcpy(record + 48, &contacts[index].size, 4);
            std::memcpy(record + 56, &contacts[index].angle, 4);
            std::memcpy(record + 60, &contacts[index].majorAxis, 4);
            std::memcpy(record + 64, &contacts[index].minorAxis, 4);
        }
        count_ = static_cast<std::int32_t>(contacts.size());
    }

    const void* data() const { return bytes_.data() + misalignment_; }
    std::int32_t count() const { return count_; }

  private:
    std::size_t misalignment_;
    std::vector<std::uint8_t> bytes_;
    std::int32_t count_ = 0;
};

// `count` touching contacts with ids 0, 1, 2, ... and distinct positions.
inline std::vector<RawContact> touchingContacts(int count, std::int32_t state = kTouching) {
    std::vector<RawContact> contacts;
    for (int index = 0; index < count; ++index) {
        contacts.push_back({index, state, 0.01f * static_cast<float>(index),
                            1.0f - 0.01f * static_cast<float>(index)});
    }
    return contacts;
}

}  // namespace tactora::testing
