#pragma once

#include <array>
#include <cstdint>

#include "core/platform/EventTypes.h"
#include "core/platform/TapEvent.h"

namespace tactora::testing {

// A mouse event in the tap: a type and the integer fields, all zero unless set.
class FakeTapEvent final : public TapEvent {
  public:
    FakeTapEvent(EventType eventType, std::int64_t button, std::uint64_t sender,
                 std::int64_t userData = 0)
        : type(eventType) {
        fields.at(event::buttonNumber) = button;
        fields.at(event::senderID) = static_cast<std::int64_t>(sender);
        fields.at(event::sourceUserData) = userData;
        fields.at(event::clickState) = 1;
    }

    std::int64_t integerField(EventField field) const override { return fields.at(field); }
    void setIntegerField(EventField field, std::int64_t value) override {
        fields.at(field) = value;
        ++changes;
    }
    void setType(EventType newType) override {
        type = newType;
        ++changes;
    }
    void setFlags(std::uint64_t newFlags) override {
        flags = newFlags;
        ++changes;
    }

    std::int64_t button() const { return fields.at(event::buttonNumber); }

    EventType type;
    std::uint64_t flags = 0;
    std::array<std::int64_t, 128> fields{};
    int changes = 0;
};

}  // namespace tactora::testing
