#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/app/ControllerObserver.h"
#include "core/app/StatusDisplay.h"
#include "core/platform/Clock.h"
#include "core/platform/MainQueue.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// The optional feedback in the menu bar: while the user's preference is on, the status item's
// title shows the finger count of a gesture for a moment after Tactora acts on it (a tap's
// action performed, a click taken for its action); otherwise the title stays empty. It learns
// of gestures as an observer of the controller and draws through the status display. The
// preference lives in the given domain under `preferenceKey`, as an integer: absent, 0 or a
// value of another type reads as off.
//
// Main thread only. Held by std::shared_ptr: the work it schedules holds it weakly.
class MenuBarFeedback final : public ControllerObserver,
                              public std::enable_shared_from_this<MenuBarFeedback> {
    struct Passkey {
        explicit Passkey() = default;
    };

  public:
    static constexpr std::string_view preferenceKey = "showGesturesInMenuBar";
    // How long the finger count stays in the title.
    static constexpr double duration = 1.0;

    // Reads the preference from `defaults` (without a domain it is off and is not kept) and
    // puts its item in the status menu.
    static std::shared_ptr<MenuBarFeedback> create(std::shared_ptr<Preferences> defaults,
                                                   StatusDisplay& display, Clock& clock,
                                                   MainQueue& queue);
    MenuBarFeedback(Passkey /*unused*/, std::shared_ptr<Preferences> defaults,
                    StatusDisplay& display, Clock& clock, MainQueue& queue);

    bool isOn() const { return on_; }
    // The status menu's item: turns the preference over and stores it; turning it off also
    // ends a count shown now.
    void toggle();

    // The status item's title at `now`: the finger count, or empty.
    std::string title(double now) const;

    void gestureRecognised(const GestureNote& note) override;
    void actionPerformed(const ActionNote& note) override;

  private:
    void showMenuEntry();
    void fired(std::int64_t fingers, double at);
    void showTitle();

    std::shared_ptr<Preferences> defaults_;
    StatusDisplay& display_;
    Clock& clock_;
    MainQueue& queue_;
    bool on_ = false;
    std::int64_t fingers_ = 0;
    std::optional<double> until_;
};

}  // namespace tactora
