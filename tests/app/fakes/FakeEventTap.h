#pragma once

#include <cstdint>

#include "app/fakes/CallLog.h"
#include "core/platform/EventTap.h"

namespace tactora::testing {

class FakeEventTap final : public EventTap {
  public:
    explicit FakeEventTap(CallLog& log) : log_(log) {}

    bool create(std::uint64_t mask) override {
        log_.add("tap.create");
        ++creations;
        if (!createSucceeds) {
            return false;
        }
        createdMask = mask;
        created = true;
        return true;
    }
    bool exists() const override { return created; }
    void setEnabled(bool on) override {
        log_.add(on ? "tap.enable" : "tap.disable");
        enabled = on;
    }

    bool createSucceeds = true;
    bool created = false;
    bool enabled = false;
    int creations = 0;
    std::uint64_t createdMask = 0;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
