#include <utility>

#include "core/app/AppMenus.h"
#include "core/app/Controller.h"
#include "core/localization/Localizer.h"

namespace tactora {

void Controller::recordTouches() {
    if (trace_.isRecording()) {
        stopTrace();
    } else {
        startTrace();
    }
}

void Controller::startTrace() {
    const std::optional<std::string> path = services_.traceSink.begin();
    if (!path) {
        services_.view.setStatusText(L("trace.failed"));
        return;
    }
    tracePath_ = *path;
    const double now = services_.clock.uptime();
    trace_.start(services_.traceSink, now);
    // The state a replay must start from, so that it decides as this program does.
    tracedFront_.reset();
    tracedGestures_.reset();
    noteGestures();
    noteTrace(now, TraceActive{services_.workspace.isActive()});
    noteTrace(now, TraceProfileSelected{profiles().activeID().text()});
    noteFrontApplication(now);
    services_.view.setStatusText(L("trace.started", tracePath_));
    showStatusMenu();
    refresh();
}

void Controller::stopTrace() {
    if (!trace_.isRecording()) {
        return;
    }
    trace_.stop();
    services_.view.setStatusText(L("trace.saved", tracePath_));
    showStatusMenu();
    refresh();
}

void Controller::noteTrace(double now, TraceEvent event) {
    if (!trace_.isRecording()) {
        return;
    }
    if (!trace_.note({now, std::move(event)})) {
        stopTrace();
    }
}

// The workspace tells nobody when another application comes to the front, so the trace notes
// it when it sees it, before the event that it may matter to.
void Controller::noteFrontApplication(double now) {
    TraceFrontApplication front{services_.workspace.frontmostProcessID(),
                                services_.workspace.frontmostBundleID()};
    if (!front.processID) {
        front.bundleID.clear();
    }
    if (tracedFront_ == front) {
        return;
    }
    tracedFront_ = front;
    noteTrace(now, std::move(front));
}

void Controller::noteGestures() {
    const bool on = services_.view.isEnabledOn();
    if (!trace_.isRecording() || tracedGestures_ == on) {
        return;
    }
    tracedGestures_ = on;
    noteTrace(services_.clock.uptime(), TraceGestures{on});
}

void Controller::showStatusMenu() {
    if (statusItemCreated_) {
        services_.shell.buildStatusMenu(
            statusMenuItems(statusExtras_.menuEntries, trace_.isRecording()));
    }
}

}  // namespace tactora
