#pragma once

#include "core/platform/SecureInput.h"

namespace tactora::testing {

class FakeSecureInput final : public SecureInput {
  public:
    bool enabled() const override { return on; }

    bool on = false;
};

}  // namespace tactora::testing
