#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <span>
#include <vector>

#include "core/app/ControllerEvents.h"
#include "core/app/TouchJudge.h"
#include "core/gestures/Finger.h"
#include "core/gestures/TapThresholds.h"
#include "core/misfire/DrumWatch.h"
#include "core/misfire/MisfireOptions.h"
#include "core/platform/ContactShape.h"

namespace tactora {

// The options against accidents and the tap's limits, applied between the sensor and the tap
// recogniser and beside the event tap's decisions. A small state machine fed with every frame
// and every mouse event of the device, in order, on one clock. With every option off and the
// default limits it changes nothing: frames pass as they are, scrolls mark the touch as without
// it, nothing is dropped.
//
// Not thread-safe; the main thread feeds it.
class MisfireGuard final : public TouchJudge {
  public:
    explicit MisfireGuard(MisfireOptions options = MisfireOptions::none(),
                          TapThresholds thresholds = {});

    const MisfireOptions& options() const { return options_; }
    // Takes effect from the next frame; a touch in progress is judged by the new options.
    void setOptions(const MisfireOptions& options) { options_ = options; }
    // Take effect from the next touch; an invalid set is ignored.
    void setThresholds(const TapThresholds& thresholds);
    TapThresholds thresholds() const override { return thresholds_; }

    // One frame of the sensor: its contacts and, when the sensor reports them, their shapes
    // (empty, or one per contact). The span handed back is valid until the next call.
    JudgedFrame frame(std::span<const Finger> fingers,
                      std::span<const std::optional<ContactShape>> shapes, double now) override;

    // A scroll event of the device. Whether it marks the touch in progress as moved: always,
    // as without options; when earlier activity is forgotten, only while a touch is in progress.
    bool scroll(double now) override;
    // The device's button went down or up.
    void button(bool down, double now) override;

    // Whether the tap that the last frame completed is to be dropped, and why.
    std::optional<DropReason> judgeTap() const override;
    // Whether a click going down now is to stay an ordinary click, and why.
    std::optional<DropReason> judgeClick() const override;
    // Vetoes the tap of a touch that began at `began` and was recognised at `recognisedAt` when
    // its action comes due, `wait` seconds later: a click from `wait` before the recognition on
    // (when earlier activity is forgotten, only one that also came after the touch began), or,
    // when drumming is ignored, a touch begun since at another place.
    std::optional<DropReason> vetoAtDue(double click, double began, double recognisedAt,
                                        double wait) const override;

    // When the touch in progress, or the last one, began.
    double began() const { return began_; }

    // Forgets every contact and touch, as when the recogniser is reset; keeps the options and
    // the time of the last scroll or click.
    void reset() override;

  private:
    struct Contact {
        std::int64_t id = 0;
        double landed = 0;
        float largest = 0;
        bool seen = false;
        bool delivered = false;  // part of the touch sequence the recogniser is following
        std::optional<DropReason> leftOut = std::nullopt;
    };

    Contact& contactFor(const Finger& finger, double now, bool& landed);
    void judgeContact(Contact& contact, const std::optional<ContactShape>& shape) const;
    void leaveOutRestingContacts(const Contact& newcomer, double now);
    // A touch sequence begins, centred at `centre`.
    void begin(double now, const Finger& centre);

    static constexpr double never = -std::numeric_limits<double>::infinity();

    MisfireOptions options_;
    TapThresholds thresholds_;
    std::vector<Contact> contacts_;
    std::vector<Finger> kept_;
    bool touching_ = false;  // the recogniser is following a touch sequence
    double began_ = 0;
    double lastActivity_ = never;
    double activityBeforeBegin_ = never;
    bool buttonHeld_ = false;
    bool beganWhileHeld_ = false;
    bool largeInTouch_ = false;
    DrumWatch drums_;
};

}  // namespace tactora
