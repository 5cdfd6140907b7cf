#pragma once

#include "core/platform/SecureInput.h"

namespace tactora::macos {

// Secure event input, as the Carbon event manager reports it.
class SystemSecureInput final : public SecureInput {
  public:
    bool enabled() const override;
};

}  // namespace tactora::macos
