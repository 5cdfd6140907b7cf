#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "core/app/ControllerObserver.h"
#include "core/liveview/TouchSurface.h"
#include "core/platform/Clock.h"
#include "core/platform/MainQueue.h"
#include "core/platform/SurfaceView.h"
#include "core/reasons/TouchOutcomes.h"

namespace tactora {

// The settings window's live view of the touch surface: the contacts of the latest frame, the
// last gesture and the action it did, highlighted for a moment, and for a moment after a touch
// or its action came to nothing, why. It learns what happens as an
// observer of the controller and draws only while the window is visible on screen; while it is
// not, frames cost it nothing, and becoming visible brings it up to date at once.
//
// Main thread only. Held by std::shared_ptr: the work it schedules holds it weakly.
class LiveView final : public ControllerObserver, public std::enable_shared_from_this<LiveView> {
    struct Passkey {
        explicit Passkey() = default;
    };

  public:
    static std::shared_ptr<LiveView> create(SurfaceView& view, Clock& clock, MainQueue& queue);
    LiveView(Passkey /*unused*/, SurfaceView& view, Clock& clock, MainQueue& queue);

    // The window became visible on screen, or stopped being visible.
    void visibilityChanged(bool visible);
    bool visible() const { return visible_; }
    // Watches the window's visibility once the window is built.
    void launched(double time) override;
    // Draws what is to be seen now, while visible, so that contacts vanish once frames stop.
    void refreshed(double time) override;
    void frameReceived(const FrameNote& note) override;
    void gestureRecognised(const GestureNote& note) override;
    void touchDropped(const TouchDropNote& note) override;
    void actionPerformed(const ActionNote& note) override;
    void actionDropped(const ActionDropNote& note) override;

  private:
    void highlightChanged();
    void scheduleHighlightEnd();
    void scheduleShowAt(std::optional<double> end);
    void rejected(const std::optional<TouchOutcome>& outcome);
    void show();

    SurfaceView& view_;
    Clock& clock_;
    MainQueue& queue_;
    TouchSurface surface_;
    TouchOutcomes outcomes_;
    bool visible_ = false;
};

}  // namespace tactora
