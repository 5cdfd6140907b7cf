#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/platform/SystemEventPoster.h"

namespace tactora::testing {

// Records the system-defined events and Dock notifications, in order.
class FakeSystemEventPoster final : public SystemEventPoster {
  public:
    void post(const SystemDefinedEvent& event) override { events.push_back(event); }
    std::int32_t sendDockNotification(const std::string& name) override {
        notifications.push_back(name);
        return dockResult;
    }

    std::vector<SystemDefinedEvent> events;
    std::vector<std::string> notifications;
    std::int32_t dockResult = 0;
};

}  // namespace tactora::testing
