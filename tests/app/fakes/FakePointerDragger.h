#pragma once

#include <optional>
#include <vector>

#include "core/platform/PointerDragger.h"

namespace tactora::testing {

// Keeps every change of what the pointer's moves become.
class FakePointerDragger final : public PointerDragger {
  public:
    void setDragging(std::optional<MouseButton> button) override { changes.push_back(button); }

    std::optional<MouseButton> dragging() const {
        return changes.empty() ? std::nullopt : changes.back();
    }

    std::vector<std::optional<MouseButton>> changes;
};

}  // namespace tactora::testing
