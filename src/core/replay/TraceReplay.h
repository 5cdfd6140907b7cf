#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/app/ControllerObserver.h"
#include "core/devices/DeviceGestureWatcher.h"
#include "core/gestures/TapThresholds.h"
#include "core/misfire/MisfireOptions.h"
#include "core/moregestures/MoreGestureWatcher.h"
#include "core/platform/Clock.h"
#include "core/profiles/WorkProfile.h"
#include "core/trace/TraceLine.h"

namespace tactora {

// The options against accidents and the tap's limits a replay decides with; by default, all off
// and the recogniser's own.
struct ReplayRules {
    MisfireOptions options;
    TapThresholds thresholds;
};

// Replays a trace through the real controller on virtual time and a stand-in platform, and
// writes down what it decides. The Magic Mouse's frames and events go to the controller; those
// of a touch device beside it that the trace declares go, while it is in use, to the gestures of
// those devices (one recogniser each) beside the controller, as in the program. The output, one
// line per decision, then a summary:
//
//   <t> tap <fingers>                          a tap was recognised
//   <t> click <fingers>                        a physical click with resting fingers
//   <t> action <action key>                    an action was performed
//   <t> action <action key> button <number>    a physical press was rewritten into that button
//   <t> gesture <slot name>                    a mapped gesture beyond the eight was recognised
//   <t> hold button <number> down              a tap and hold pressed that button
//   <t> hold button <number> up                ...and released it
//   summary taps=<n> clicks=<n> actions=<n> frames=<n> mouse-events=<n> seconds=<s>
//
// A tap, a click or an action of a device beside the Magic Mouse ends in " @<id>", the id the
// trace gave the device; the summary counts them with the others.
//
// Explained, it also says, in time order among those lines, why every touch that became no
// gesture was dropped, why an action was not carried out, the fate of every mouse event and the
// ups sent for held presses (see DecisionExplainer.h). <t> is the virtual uptime in seconds with
// three decimals. Main thread only; the string table must be installed (the controller's texts are
// looked up, though none is printed).
class TraceReplay final : private ControllerObserver,
                          private MoreGestureWatcher,
                          private DeviceGestureWatcher {
  public:
    // Scheduled work still runs this long after the trace's last line.
    static constexpr double settle = 1.0;

    // How much a replay writes down.
    enum class Detail : std::uint8_t {
        decisions,  // the gestures, the actions and the summary
        explained,  // and why everything else came to nothing
    };

    // `profiles`: the profile list to decide with, its first profile active; without it, the
    // default profile, every action 0. `watchers` are told what the controller decides too, for
    // the whole replay.
    static std::string run(const std::vector<TraceLine>& lines,
                           const std::optional<std::vector<WorkProfile>>& profiles,
                           Detail detail = Detail::decisions,
                           std::span<ControllerObserver* const> watchers = {},
                           const ReplayRules& rules = {});

  private:
    TraceReplay() = default;

    void gestureRecognised(const GestureNote& note) override;
    void actionPerformed(const ActionNote& note) override;
    void recognised(MoreGestureSlot slot) override;
    void pressed(MouseButton button) override;
    void released(MouseButton button) override;
    void recognised(std::uint64_t device, GestureKind kind, std::int64_t fingers) override;
    void rewritten(std::uint64_t device, ActionIndex action, MouseButton button) override;
    void actionBegins(std::uint64_t device) override;
    void actionEnded() override;

    void print(double time, const std::string& what);
    std::string summary(double seconds) const;

    std::string output_;
    const Clock* clock_ = nullptr;  // the replay's virtual time, for what the notes don't time
    // " @<id>" naming a device beside the Magic Mouse as the trace did.
    std::function<std::string(std::uint64_t device)> deviceWord_;
    // The device whose gesture's action the controller is carrying out, if any.
    std::optional<std::uint64_t> acting_;
    std::size_t taps_ = 0;
    std::size_t clicks_ = 0;
    std::size_t actions_ = 0;
    std::size_t frames_ = 0;
    std::size_t mouseEvents_ = 0;
};

}  // namespace tactora
