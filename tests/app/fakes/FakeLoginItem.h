#pragma once

#include <cstdint>

#include "core/platform/LoginItem.h"

namespace tactora::testing {

// A login item whose registration succeeds (or fails with `errorCode`) and whose status the
// test sets.
class FakeLoginItem final : public LoginItem {
  public:
    LoginItemStatus status() const override {
        ++statusReads;
        return current;
    }
    std::int64_t registerItem() override {
        ++registrations;
        if (errorCode == 0) {
            current = statusAfterRegister;
        }
        return errorCode;
    }
    std::int64_t unregisterItem() override {
        ++unregistrations;
        if (errorCode == 0) {
            current = LoginItemStatus::notRegistered;
        }
        return errorCode;
    }
    void openLoginItemsSettings() override { ++settingsOpened; }

    LoginItemStatus current = LoginItemStatus::notRegistered;
    LoginItemStatus statusAfterRegister = LoginItemStatus::enabled;
    std::int64_t errorCode = 0;
    mutable int statusReads = 0;
    int registrations = 0;
    int unregistrations = 0;
    int settingsOpened = 0;
};

}  // namespace tactora::testing
