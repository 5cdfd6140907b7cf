#include "core/replay/TraceReplay.h"

#include <algorithm>
#include <map>
#include <memory>
#include <type_traits>

#include "core/app/Controller.h"
#include "core/devices/ControllerGestureRunner.h"
#include "core/devices/DeviceGestures.h"
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
#include "core/trace/TraceDevices.h"
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

// The stand-in platform and the controller running on it, with the gestures of the touch
// devices beside the Magic Mouse as the program has them.
struct Stage {
    Stage(double start, const std::shared_ptr<MemoryPreferences>& defaults,
          const ReplayRules& rules)
        : queue(start),
          guard(std::make_shared<MisfireGuard>(rules.options, rules.thresholds)),
          more(std::make_shared<MoreGesturesExtension>(
              MoreGestureServices{.poster = poster, .dragger = dragger})),
          deviceGestures(std::make_shared<DeviceGestures>(DeviceGestureServices{
              .devices = touchDevices, .queue = queue, .clock = queue, .defaults = defaults})),
          controller(
              Controller::create({queue, queue, workspace, permissions, poster, tap, sensor, shell,
                                  view, dialogs, traceSink, defaults, surface, files, devices,
                                  loginItem, activity, secureInput, resetTool, dragger,
                                  // The replay carries out no further action: it names it.
                                  nullptr, guard, more, deviceGestures})),
          runner(*controller),
          frontmost(FrontmostProfiles::create(*controller, workspace, view, queue, queue)) {
        controller->addObserver(*frontmost);
        more->follow(*controller);
        controller->addObserver(*more);
        controller->setProfileTitleSource(frontmost.get());
        deviceGestures->runThrough(runner);
        controller->addObserver(*deviceGestures);
    }
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    Stage(Stage&&) = delete;
    Stage& operator=(Stage&&) = delete;
    ~Stage() {
        controller->removeObserver(*deviceGestures);
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

    void apply(const TraceFrame& frame) {
        if (const std::optional<std::uint64_t> device = besideMouse(frame.device)) {
            receive(*device, frame);
            return;
        }
        controller->receive(frame.fingers, frame.shapes);
    }

    void apply(const TraceMouseEvent& mouse) {
        replay::TapEvent event(mouse.button, mouse.fromMouse);
        if (const std::optional<std::uint64_t> device = besideMouse(mouse.device)) {
            event.setIntegerField(event::senderID, static_cast<std::int64_t>(
                                                       replay::TouchDevices::senderOf(*device)));
        }
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

    // A Magic Mouse's frames and events go to the controller, whatever its id; any other
    // device is one the user uses, until the trace says otherwise. Declared again, a device
    // keeps its use.
    void apply(const TraceDevice& device) {
        kinds[device.id] = device.kind;
        if (device.kind == TraceDeviceKind::magicMouse) {
            return;
        }
        auto [entry, added] = ids.try_emplace(device.id, ids.size() + 1);
        if (added) {
            traceIDs[entry->second] = device.id;
        }
        const TouchDevice declared{.id = entry->second,
                                   .kind = trace::touchKind(device.kind),
                                   .state = TouchDeviceState::off,
                                   .error = 0,
                                   .name = device.name};
        const bool use = added || touchDevices.inUse(declared.id);
        touchDevices.declare(declared);
        deviceGestures->setUses(declared, use);
    }

    void apply(const TraceDeviceUse& use) {
        const std::optional<std::uint64_t> device = besideMouse(use.device);
        if (!device) {
            return;  // the Magic Mouse is always used
        }
        if (const std::optional<TouchDevice> listed = touchDevices.find(*device)) {
            deviceGestures->setUses(*listed, use.on);
        }
    }

    void apply(const TraceActive& active) {
        workspace.active = active.active;
        if (active.active) {
            controller->applicationDidBecomeActive();
        } else {
            controller->applicationDidResignActive();
        }
    }

    // The stand-in's id for the trace's device `id` when it is a device beside the Magic Mouse
    // (counted from 1, so that none is 0, the Magic Mouse's own), or nothing.
    std::optional<std::uint64_t> besideMouse(std::optional<std::uint64_t> id) const {
        const auto kind = id ? kinds.find(*id) : kinds.end();
        if (kind == kinds.end() || kind->second == TraceDeviceKind::magicMouse) {
            return std::nullopt;
        }
        return ids.at(*id);
    }

    // A frame of a device in use reaches its gestures on this thread, as the main queue hands
    // it over in the program; the frames of a device not in use never come.
    void receive(std::uint64_t device, const TraceFrame& frame) {
        if (!touchDevices.inUse(device)) {
            return;
        }
        ContactFrame contacts;
        contacts.device = device;
        contacts.count = std::min(frame.fingers.size(), ContactFrame::capacity);
        for (std::size_t i = 0; i < contacts.count; ++i) {
            const Finger& finger = frame.fingers[i];
            contacts.ids.at(i) = static_cast<std::int32_t>(finger.id);
            contacts.xs.at(i) = static_cast<float>(finger.x);
            contacts.ys.at(i) = static_cast<float>(finger.y);
        }
        deviceGestures->receive(contacts);
    }

    // "@<id>" with the trace's id of the device that sends as `sender`; "" for none.
    std::string senderWord(std::uint64_t sender) const {
        const auto found = traceIDs.find(sender - replay::firstDeviceSender);
        return sender > replay::firstDeviceSender && found != traceIDs.end()
                   ? '@' + std::to_string(found->second)
                   : std::string();
    }

    // " @<id>" with the trace's id of the stand-in's device `device`.
    std::string deviceWord(std::uint64_t device) const {
        const auto found = traceIDs.find(device);
        return " @" + std::to_string(found != traceIDs.end() ? found->second : device);
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
    replay::TouchDevices touchDevices;
    // What the trace's device lines said so far: each id's kind, and the stand-in's id of each
    // device beside the Magic Mouse, both ways.
    std::map<std::uint64_t, TraceDeviceKind> kinds;
    std::map<std::uint64_t, std::uint64_t> ids;
    std::map<std::uint64_t, std::uint64_t> traceIDs;
    // Judges touches as the program's does.
    std::shared_ptr<MisfireGuard> guard;
    // The gestures beyond the eight, as the program's.
    std::shared_ptr<MoreGesturesExtension> more;
    // The taps and clicks of the devices beside the Magic Mouse, as the program's.
    std::shared_ptr<DeviceGestures> deviceGestures;
    std::shared_ptr<Controller> controller;
    ControllerGestureRunner runner;
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
    replay.deviceWord_ = [&stage](std::uint64_t device) { return stage.deviceWord(device); };
    stage.more->watch(&replay);
    stage.deviceGestures->watch(&replay);
    const bool explained = detail == Detail::explained;
    explainer.nameSenders([&stage](std::uint64_t sender) { return stage.senderWord(sender); });
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
    stage.deviceGestures->watch(nullptr);
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
    if (acting_) {
        what += deviceWord_(*acting_);
    }
    print(note.time, what);
}

void TraceReplay::recognised(std::uint64_t device, GestureKind kind, std::int64_t fingers) {
    const bool tap = kind == GestureKind::tap;
    ++(tap ? taps_ : clicks_);
    print(clock_->uptime(),
          (tap ? "tap " : "click ") + std::to_string(fingers) + deviceWord_(device));
}

void TraceReplay::rewritten(std::uint64_t device, ActionIndex action, MouseButton button) {
    ++actions_;
    print(clock_->uptime(), "action " + explain::actionWord(action) + " button " +
                                std::to_string(static_cast<std::uint32_t>(button)) +
                                deviceWord_(device));
}

void TraceReplay::actionBegins(std::uint64_t device) {
    acting_ = device;
}

void TraceReplay::actionEnded() {
    acting_.reset();
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
