#include "core/replay/TraceReplay.h"

#include <memory>
#include <type_traits>

#include "core/app/Controller.h"
#include "core/explain/DecisionExplainer.h"
#include "core/explain/DecisionWords.h"
#include "core/frontmost/FrontmostProfiles.h"
#include "core/misfire/MisfireGuard.h"
#include "core/moregestures/MoreGesturesExtension.h"
#include "core/profiles/MemoryPreferences.h"
#include "core/profiles/ProfileJson.h"
#include "core/profiles/ProfileStore.h"
#include "core/replay/ReplayPlatform.h"
#include "core/replay/VirtualMainQueue.h"
#include "core/trace/TraceNumbers.h"

namespace tactora {

namespace {

std::string seconds(double time) {
    return trace::formatFixed(time, 3);
}

std::shared_ptr<MemoryPreferences> defaultsWith(
    const std::optional<std::vector<WorkProfile>>& profiles) {
    auto defaults = std::make_shared<MemoryPreferences>();
    if (profiles && !profiles->empty()) {
        if (const std::optional<std::string> json = encodeProfiles(*profiles)) {
            defaults->setData(ProfileStore::profilesKey, Bytes(json->begin(), json->end()));
            defaults->setString(ProfileStore::activeKey, profiles->front().id.text());
        }
    }
    return defaults;
}

// The stand-in platform and the controller running on it.
struct Stage {
    Stage(double start, std::shared_ptr<MemoryPreferences> defaults, const ReplayRules& rules)
        : queue(start),
          guard(std::make_shared<MisfireGuard>(rules.options, rules.thresholds)),
          more(std::make_shared<MoreGesturesExtension>(
              MoreGestureServices{.poster = poster, .dragger = dragger})),
          controller(
              Controller::create({queue, queue, workspace, permissions, poster, tap, sensor, shell,
                                  view, dialogs, traceSink, std::move(defaults), surface, files,
                                  devices, loginItem, activity, secureInput, resetTool, dragger,
                                  // The replay carries out no further action: it names it.
                                  nullptr, guard, more, nullptr})),
          frontmost(FrontmostProfiles::create(*controller, workspace, view, queue, queue)) {
        controller->addObserver(*frontmost);
        more->follow(*controller);
        controller->addObserver(*more);
        controller->setProfileTitleSource(frontmost.get());
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    Stage(Stage&&) = delete;
    Stage& operator=(Stage&&) = delete;
    ~Stage() {
        controller->removeObserver(*more);
        controller->setProfileTitleSource(nullptr);
        controller->removeObserver(*frontmost);
    }

    // Launched, with gestures switched on as the user would.
    void launch() {
        controller->applicationDidFinishLaunching();
        view.enabled = true;
        controller->toggle();
    }

    // The one place where another application coming to the front reaches the program.
    void frontApplication(const TraceFrontApplication& front) {
        workspace.frontmost = front.processID;
        workspace.bundleID = front.bundleID;
        frontmost->frontmostApplicationChanged(front.processID, front.bundleID);
    }

    void apply(const TraceFrame& frame) { controller->receive(frame.fingers, frame.shapes); }

    void apply(const TraceMouseEvent& mouse) {
        replay::TapEvent event(mouse.button, mouse.fromMouse);
        controller->handle(mouse.type, event);
    }

    void apply(const TraceProfileSelected& profile) {
        view.profileChoice = profile.id;
        controller->selectProfile();
    }

    void apply(const TraceFrontApplication& front) { frontApplication(front); }

    void apply(const TraceGestures& gestures) {
        view.enabled = gestures.on;
        controller->toggle();
    }

    // Which device a frame came from is not told apart here: every frame reaches the one
    // recogniser, as the Magic Mouse's do.
    void apply(const TraceDevice& /*device*/) {}

    void apply(const TraceActive& active) {
        workspace.active = active.active;
        if (active.active) {
            controller->applicationDidBecomeActive();
        } else {
            controller->applicationDidResignActive();
        }
    }

    VirtualMainQueue queue;
    replay::Workspace workspace;
    replay::Permissions permissions;
    replay::EventPoster poster;
    replay::EventTap tap;
    replay::Sensor sensor;
    replay::AppShell shell;
    replay::SettingsView view;
    replay::Dialogs dialogs;
    replay::TraceSink traceSink;
    replay::SurfaceView surface;
    replay::ProfileFiles files;
    replay::DeviceWatcher devices;
    replay::LoginItem loginItem;
    replay::ProcessActivity activity;
    replay::SecureInput secureInput;
    replay::PermissionResetTool resetTool;
    replay::PointerDragger dragger;
    // Judges touches as the program's does.
    std::shared_ptr<MisfireGuard> guard;
    // The gestures beyond the eight, as the program's.
    std::shared_ptr<MoreGesturesExtension> more;
    std::shared_ptr<Controller> controller;
    // Profiles that follow the application in front, beside the controller as in the program.
    std::shared_ptr<FrontmostProfiles> frontmost;
};

}  // namespace

std::string TraceReplay::run(const std::vector<TraceLine>& lines,
                             const std::optional<std::vector<WorkProfile>>& profiles, Detail detail,
                             std::span<ControllerObserver* const> watchers,
                             const ReplayRules& rules) {
    const double start = lines.empty() ? 0 : lines.front().time;
    TraceReplay replay;
    DecisionExplainer explainer(
        [&replay](double time, const std::string& what) { replay.print(time, what); });
    Stage stage(start, defaultsWith(profiles), rules);
    stage.launch();
    stage.controller->addObserver(replay);
    replay.clock_ = &stage.queue;
    stage.more->watch(&replay);
    const bool explained = detail == Detail::explained;
    if (explained) {
        stage.controller->addObserver(explainer);
    }
    for (ControllerObserver* watcher : watchers) {
        stage.controller->addObserver(*watcher);
    }
    for (const TraceLine& line : lines) {
        // A line comes before work due at its very moment: a recording notes a change of the
        // application in front when the waiting work looks at it, just before that work runs.
        stage.queue.advanceUpTo(line.time);
        std::visit(
            [&](const auto& event) {
                using Event = std::decay_t<decltype(event)>;
                if constexpr (std::is_same_v<Event, TraceFrame>) {
                    ++replay.frames_;
                } else if constexpr (std::is_same_v<Event, TraceMouseEvent>) {
                    ++replay.mouseEvents_;
                }
                stage.apply(event);
            },
            line.event);
        stage.queue.advanceTo(line.time);  // what the line queued to run at once
    }
    const double end = lines.empty() ? start : lines.back().time;
    stage.queue.advanceTo(end + settle);
    for (ControllerObserver* watcher : watchers) {
        stage.controller->removeObserver(*watcher);
    }
    if (explained) {
        stage.controller->removeObserver(explainer);
    }
    stage.more->watch(nullptr);
    stage.controller->removeObserver(replay);
    replay.output_ += replay.summary(end - start);
    return replay.output_;
}

void TraceReplay::gestureRecognised(const GestureNote& note) {
    const bool tap = note.kind == GestureKind::tap;
    ++(tap ? taps_ : clicks_);
    print(note.time, (tap ? "tap " : "click ") + std::to_string(note.fingers));
}

void TraceReplay::actionPerformed(const ActionNote& note) {
    ++actions_;
    std::string what = "action " + explain::actionWord(note.action);
    if (note.asButton) {
        what += " button " + std::to_string(static_cast<std::uint32_t>(*note.asButton));
    }
    print(note.time, what);
}

void TraceReplay::recognised(MoreGestureSlot slot) {
    print(clock_->uptime(), "gesture " + std::string(moreslot::name(slot)));
}

void TraceReplay::pressed(MouseButton button) {
    print(clock_->uptime(),
          "hold button " + std::to_string(static_cast<std::uint32_t>(button)) + " down");
}

void TraceReplay::released(MouseButton button) {
    print(clock_->uptime(),
          "hold button " + std::to_string(static_cast<std::uint32_t>(button)) + " up");
}

void TraceReplay::print(double time, const std::string& what) {
    output_ += seconds(time) + ' ' + what + '\n';
}

std::string TraceReplay::summary(double seconds) const {
    return "summary taps=" + std::to_string(taps_) + " clicks=" + std::to_string(clicks_) +
           " actions=" + std::to_string(actions_) + " frames=" + std::to_string(frames_) +
           " mouse-events=" + std::to_string(mouseEvents_) +
           " seconds=" + tactora::seconds(seconds) + '\n';
}

}  // namespace tactora
