#pragma once

#include <optional>

namespace tactora {

// Tells fingers drumming on the surface from taps: fingers of one touch that land one after
// another, and touches that follow each other quickly at different places, a different finger
// each time. A deliberate tap lands its fingers together, and taps repeated quickly land where
// the last one did. A small state machine fed with the touches the recogniser follows. Main
// thread only.
class DrumWatch {
  public:
    // Fingers of one tap land closer together than this, in seconds.
    static constexpr double landingSpread = 0.04;
    // A touch that begins this soon after the last one ended, in seconds, continues its run.
    static constexpr double runGap = 0.05;
    // Touches whose centres lie farther apart than this, in surface units, were made by
    // different fingers.
    static constexpr double fingerStep = 0.1;

    // A touch began at `now`, centred at (x, y).
    void began(double now, double x, double y);
    // Another finger joined the touch in progress; it landed at `landed`.
    void joined(double landed);
    // The touch in progress ended.
    void ended(double now);

    // Whether the touch that ended last was drumming.
    bool drumming() const;
    // Whether a touch that began after `recognisedAt` shows that the tap recognised then, the
    // touch before it, was drumming.
    bool laterTouchShowsDrumming(double recognisedAt) const;

    // Forgets every touch.
    void reset();

  private:
    struct Touch {
        double began = 0;
        double lastLanding = 0;
        std::optional<double> ended;
        double x = 0;
        double y = 0;
    };

    // Whether `later` continues a run that `earlier` belongs to, at another place.
    static bool followsElsewhere(const Touch& earlier, const Touch& later);

    std::optional<Touch> current_;
    std::optional<Touch> previous_;
};

}  // namespace tactora
