#pragma once

#include "bridge/BridgeTesting.h"
#include "bridge/FakeFramework.h"
#include "bridge/TouchDevices.h"

namespace tactora::testing {

// Makes the stand-in framework the bridge's device registry too, for the length of a test, so
// that devices have kinds, names and senders; the mouse test then reads the same properties.
// Takes back any choice of devices beside the mouse afterwards, so that no later test sees it.
class FakeRegistry {
  public:
    explicit FakeRegistry(const FakeFramework& fake) {
        TASetPortableMouseTest(nullptr);
        TASetPortableRegistry(fake.controls().registry);
    }
    ~FakeRegistry() {
        TAStop();
        TAUseOtherDevices(nullptr, nullptr, nullptr);
        TASetPortableRegistry(nullptr);
    }
    FakeRegistry(const FakeRegistry&) = delete;
    FakeRegistry& operator=(const FakeRegistry&) = delete;
};

}  // namespace tactora::testing
