#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include <cstdint>

#include "core/platform/TapEvent.h"

namespace tactora::macos {

// The event in the tap callback's hands; the system owns it.
class CGTapEvent final : public TapEvent {
  public:
    explicit CGTapEvent(CGEventRef event) : event_(event) {}

    std::int64_t integerField(EventField field) const override;
    void setIntegerField(EventField field, std::int64_t value) override;
    void setType(EventType type) override;
    void setFlags(std::uint64_t flags) override;

  private:
    CGEventRef event_;
};

}  // namespace tactora::macos
