#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "core/platform/SurfaceView.h"

namespace tactora::testing {

// The live view as the controller left it. The test plays the window server by calling
// setVisible().
class FakeSurfaceView final : public SurfaceView {
  public:
    void observeVisibility(std::function<void(bool visible)> handler) override {
        visibility_ = std::move(handler);
    }

    // Assigned into one kept snapshot, whose texts reuse their storage once they are long
    // enough, so that showing a steady stream of frames allocates nothing here either.
    void show(const SurfaceSnapshot& snapshot) override {
        shown = snapshot;
        ++shows;
        if (!snapshot.announcement.empty()) {
            announcements.push_back(snapshot.announcement);
        }
    }

    void setVisible(bool visible) const { visibility_(visible); }
    bool observed() const { return static_cast<bool>(visibility_); }

    SurfaceSnapshot shown;
    std::size_t shows = 0;
    // What VoiceOver was asked to announce, in order.
    std::vector<std::string> announcements;

  private:
    std::function<void(bool)> visibility_;
};

}  // namespace tactora::testing
