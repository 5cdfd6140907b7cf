#include "core/recording/TouchRecorder.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "core/localization/Localizer.h"
#include "core/trace/TraceDevices.h"
#include "core/trace/TraceFiles.h"
#include "core/trace/TraceFormat.h"

namespace tactora {

TouchRecorder::TouchRecorder(TraceSink& sink, Clock& clock, Workspace& workspace,
                             SettingsView& view, StatusDisplay& display, ProfileSwitcher& profiles)
    : sink_(sink),
      clock_(clock),
      workspace_(workspace),
      view_(view),
      display_(display),
      profiles_(profiles) {
    showMenuEntry();
}

void TouchRecorder::followDevices(DeviceGestures* devices) {
    if (devices_ != nullptr) {
        devices_->watch(nullptr);
    }
    devices_ = devices;
    if (devices_ != nullptr) {
        devices_->watch(this);
    }
}

void TouchRecorder::recordTouches() {
    if (trace_.isRecording()) {
        stop();
    } else {
        start();
    }
}

void TouchRecorder::start() {
    const TraceSinkStart started = sink_.begin();
    if (!started.path) {
        view_.setStatusText(describeTraceSinkFailure(started.failure));
        return;
    }
    path_ = *started.path;
    const double now = clock_.uptime();
    trace_.start(sink_, now);
    setWantsMouseEvents(true);
    // The state a replay must start from, so that it decides as this program does.
    front_.reset();
    gestures_.reset();
    declared_.clear();
    noteGestures(view_.isEnabledOn(), now);
    note(now, TraceActive{workspace_.isActive()});
    note(now, TraceProfileSelected{profiles_.profiles().activeID().text()});
    if (!announcedFront_) {
        // Asked once, should nothing have been announced yet.
        announcedFront_ = {workspace_.frontmostProcessID(), workspace_.frontmostBundleID()};
    }
    noteFrontApplication(*announcedFront_, now);
    view_.setStatusText(L("trace.started", path_));
    showMenuEntry();
    display_.setLiveNote(L("trace.live"));
    display_.refresh();
}

void TouchRecorder::stop() {
    setWantsMouseEvents(false);
    if (!trace_.isRecording()) {
        return;
    }
    trace_.stop();
    view_.setStatusText(L("trace.saved", path_));
    showMenuEntry();
    display_.setLiveNote({});
    display_.refresh();
}

void TouchRecorder::showMenuEntry() {
    display_.setStatusMenuEntry({L(trace_.isRecording() ? "menu.trace.stop" : "menu.trace.start"),
                                 MenuCommand::recordTouches, ""});
}

void TouchRecorder::frameReceived(const FrameNote& frame) {
    if (!trace_.isRecording()) {
        return;
    }
    note(frame.time, TraceFrame{{frame.fingers.begin(), frame.fingers.end()},
                                {frame.shapes.begin(), frame.shapes.end()}});
}

void TouchRecorder::mouseEventDecided(const MouseEventNote& note) {
    if (!trace_.isRecording() || trace::mouseEventWord(note.type).empty()) {
        return;
    }
    // A trackpad in use is named; any other sender beside the Magic Mouse stays "other".
    const std::uint64_t device =
        note.fromMouse || devices_ == nullptr ? 0 : devices_->deviceOfSender(note.sender);
    if (device == 0) {
        this->note(note.time, TraceMouseEvent{note.type, note.button, note.fromMouse});
        return;
    }
    declare(device, note.time);
    this->note(note.time, TraceMouseEvent{note.type, note.button, true, device});
}

void TouchRecorder::frameReceived(const ContactFrame& frame, double time) {
    if (!trace_.isRecording()) {
        return;
    }
    declare(frame.device, time);
    const std::size_t count = std::min(frame.count, ContactFrame::capacity);
    std::vector<Finger> fingers;
    fingers.reserve(count);
    std::vector<std::optional<ContactShape>> shapes;
    for (std::size_t i = 0; i < count; ++i) {
        fingers.emplace_back(frame.ids.at(i), frame.xs.at(i), frame.ys.at(i));
        if (frame.hasShapes) {
            shapes.emplace_back(frame.shapes.at(i));
        }
    }
    note(time, TraceFrame{std::move(fingers), std::move(shapes), frame.device});
}

void TouchRecorder::useChosen(const TouchDevice& device, bool use, double time) {
    if (!trace_.isRecording()) {
        return;
    }
    declare(device, time);
    note(time, TraceDeviceUse{device.id, use});
}

void TouchRecorder::switchChanged(const SwitchNote& note) {
    noteGestures(note.on, note.time);
}

void TouchRecorder::profileSelected(const ProfileNote& note) {
    // A profile the application in front chose is replayed from the application's line.
    if (note.chosen) {
        this->note(note.time, TraceProfileSelected{note.id});
    }
}

void TouchRecorder::activeChanged(const ActiveNote& note) {
    this->note(note.time, TraceActive{note.active});
}

void TouchRecorder::frontApplicationChanged(const FrontApplicationNote& note) {
    announcedFront_ = TraceFrontApplication{note.processID, note.bundleID};
    if (trace_.isRecording()) {
        noteFrontApplication(*announcedFront_, note.time);
    }
}

void TouchRecorder::refreshed(double time) {
    if (trace_.expired(time)) {
        stop();
    }
}

void TouchRecorder::terminating(double /*time*/) {
    stop();
}

void TouchRecorder::note(double time, TraceEvent event) {
    if (!trace_.isRecording()) {
        return;
    }
    if (!trace_.note({time, std::move(event)})) {
        stop();
    }
}

void TouchRecorder::noteFrontApplication(TraceFrontApplication front, double time) {
    if (!front.processID) {
        front.bundleID.clear();
    }
    if (front_ == front) {
        return;
    }
    front_ = front;
    note(time, std::move(front));
}

void TouchRecorder::declare(std::uint64_t device, double time) {
    if (declared_.contains(device)) {
        return;
    }
    const std::vector<TouchDevice> devices =
        devices_ != nullptr ? devices_->devices() : std::vector<TouchDevice>();
    const auto found = std::ranges::find(devices, device, &TouchDevice::id);
    // A device no longer listed is still told apart from the others, by its id alone.
    declare(found != devices.end() ? *found
                                   : TouchDevice{.id = device,
                                                 .kind = TouchDeviceKind::other,
                                                 .state = TouchDeviceState::missing,
                                                 .error = 0,
                                                 .name = {}},
            time);
}

void TouchRecorder::declare(const TouchDevice& device, double time) {
    if (!declared_.insert(device.id).second) {
        return;
    }
    note(time, TraceDevice{device.id, trace::traceKind(device.kind), device.name});
}

void TouchRecorder::noteGestures(bool on, double time) {
    if (!trace_.isRecording() || gestures_ == on) {
        return;
    }
    gestures_ = on;
    note(time, TraceGestures{on});
}

}  // namespace tactora
