#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/profiles/Preferences.h"

namespace tactora {

// The optional feedback in the menu bar: while the user's preference is on, the status item's
// title shows the finger count of a gesture for a moment after Tactora acts on it; otherwise
// the title stays empty. The preference lives in the given domain under `preferenceKey`, as an
// integer: absent, 0 or a value of another type reads as off. Main thread only.
class MenuBarFeedback {
  public:
    static constexpr std::string_view preferenceKey = "showGesturesInMenuBar";
    // How long the finger count stays in the title.
    static constexpr double duration = 1.0;

    // Reads the preference from `defaults`; without a domain it is off and is not kept.
    explicit MenuBarFeedback(std::shared_ptr<Preferences> defaults);

    bool isOn() const { return on_; }
    // Stores the preference; turning it off also ends a count shown now.
    void setOn(bool on);

    // Tactora acted on a gesture of `fingers` fingers at `at`. Does nothing while off.
    void fired(std::int64_t fingers, double at);

    // The status item's title at `now`: the finger count, or empty.
    std::string title(double now) const;

  private:
    std::shared_ptr<Preferences> defaults_;
    bool on_ = false;
    std::int64_t fingers_ = 0;
    std::optional<double> until_;
};

}  // namespace tactora
