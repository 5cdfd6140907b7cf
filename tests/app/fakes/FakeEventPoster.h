#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "core/platform/EventPoster.h"

namespace tactora::testing {

// Records what would have been posted, in order.
class FakeEventPoster final : public EventPoster {
  public:
    using Posted = std::variant<MouseButtonEvent, KeyEvent>;

    FakeEventPoster() { posted.reserve(64); }

    void post(const MouseButtonEvent& event) override { posted.emplace_back(event); }
    void post(const KeyEvent& event) override { posted.emplace_back(event); }
    std::int32_t sendDockNotification(bool showDesktop) override {
        dockRequests.push_back(showDesktop);
        return dockResult;
    }

    std::vector<MouseButtonEvent> mouseEvents() const {
        std::vector<MouseButtonEvent> events;
        for (const Posted& item : posted) {
            if (const auto* mouse = std::get_if<MouseButtonEvent>(&item)) {
                events.push_back(*mouse);
            }
        }
        return events;
    }

    std::vector<KeyEvent> keyEvents() const {
        std::vector<KeyEvent> events;
        for (const Posted& item : posted) {
            if (const auto* key = std::get_if<KeyEvent>(&item)) {
                events.push_back(*key);
            }
        }
        return events;
    }

    std::vector<Posted> posted;
    std::vector<bool> dockRequests;
    std::int32_t dockResult = 0;
};

}  // namespace tactora::testing
