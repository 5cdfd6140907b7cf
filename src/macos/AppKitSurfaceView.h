#pragma once

#import <Foundation/Foundation.h>

#include <functional>

#include "core/platform/SurfaceView.h"
#import "macos/TASettingsControls.h"

namespace tactora::macos {

// The live view in the settings window, and the window's visibility as the window server
// reports it (its occlusion state).
class AppKitSurfaceView final : public SurfaceView {
  public:
    explicit AppKitSurfaceView(TASettingsControls* controls) : controls_(controls) {}
    ~AppKitSurfaceView() override;

    AppKitSurfaceView(const AppKitSurfaceView&) = delete;
    AppKitSurfaceView& operator=(const AppKitSurfaceView&) = delete;

    void observeVisibility(std::function<void(bool visible)> handler) override;
    void show(const SurfaceSnapshot& snapshot) override;

  private:
    TASettingsControls* __strong controls_;
    // The occlusion registration; the notification centre keeps it until it is removed.
    id __strong occlusionObserver_;
};

}  // namespace tactora::macos
