#include "core/recording/TouchRecorder.h"

#include <utility>

#include "core/localization/Localizer.h"
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
    this->note(note.time, TraceMouseEvent{note.type, note.button, note.fromMouse});
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

void TouchRecorder::noteGestures(bool on, double time) {
    if (!trace_.isRecording() || gestures_ == on) {
        return;
    }
    gestures_ = on;
    note(time, TraceGestures{on});
}

}  // namespace tactora
