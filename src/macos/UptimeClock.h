#pragma once

#include "core/platform/Clock.h"

namespace tactora::macos {

// Seconds since the system started, as the process information reports them.
class UptimeClock final : public Clock {
  public:
    double uptime() const override;
};

}  // namespace tactora::macos
