#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>

#include "core/app/ControllerObserver.h"
#include "core/app/ProfileSwitcher.h"
#include "core/app/StatusDisplay.h"
#include "core/devices/DeviceGestureWatcher.h"
#include "core/devices/DeviceGestures.h"
#include "core/platform/Clock.h"
#include "core/platform/SettingsView.h"
#include "core/platform/TraceSink.h"
#include "core/platform/Workspace.h"
#include "core/trace/TraceLine.h"
#include "core/trace/TraceRecorder.h"

namespace tactora {

// The recording of touch traces: off until the user chooses "Record Touches…" in the status
// menu, then every frame, mouse event and change of state the controller tells of, and the
// frames, events and choices of the trackpads in use that their gestures tell of, each with its
// device, as the lines of a trace that a replay decides from exactly as the program did. A
// recording stops when the user chooses the item again, when the program quits, or by itself at
// the recorder's limits. The live line says a recording is under way.
//
// Main thread only; an observer of the controller, and the watcher of the trackpads' gestures.
class TouchRecorder final : public ControllerObserver, private DeviceGestureWatcher {
  public:
    TouchRecorder(TraceSink& sink, Clock& clock, Workspace& workspace, SettingsView& view,
                  StatusDisplay& display, ProfileSwitcher& profiles);

    // The status menu's item: starts a recording, or stops the one under way.
    void recordTouches();
    bool isRecording() const { return trace_.isRecording(); }

    // Records what the gestures of the devices beside the Magic Mouse see too, from now on
    // (nullptr: no longer). `devices` is not owned; it must outlive this or be unfollowed.
    void followDevices(DeviceGestures* devices);

    void frameReceived(const FrameNote& frame) override;
    void mouseEventDecided(const MouseEventNote& note) override;
    void switchChanged(const SwitchNote& note) override;
    void profileSelected(const ProfileNote& note) override;
    void activeChanged(const ActiveNote& note) override;
    // The application in front is known from the system's announcements, never asked for per
    // event, and written when it changes.
    void frontApplicationChanged(const FrontApplicationNote& note) override;
    void refreshed(double time) override;
    void terminating(double time) override;

  private:
    void frameReceived(const ContactFrame& frame, double time) override;
    void useChosen(const TouchDevice& device, bool use, double time) override;

    void start();
    void stop();
    void showMenuEntry();
    void note(double time, TraceEvent event);
    void noteFrontApplication(TraceFrontApplication front, double time);
    void noteGestures(bool on, double time);
    // Writes the device's line before the first line that names it.
    void declare(std::uint64_t device, double time);
    void declare(const TouchDevice& device, double time);

    TraceSink& sink_;
    Clock& clock_;
    Workspace& workspace_;
    SettingsView& view_;
    StatusDisplay& display_;
    ProfileSwitcher& profiles_;
    TraceRecorder trace_;
    std::string path_;
    // The application in front as last announced, whether recording or not.
    std::optional<TraceFrontApplication> announcedFront_;
    // What was last written, so that an unchanged state is not written again.
    std::optional<TraceFrontApplication> front_;
    std::optional<bool> gestures_;
    DeviceGestures* devices_ = nullptr;  // not owned
    // The devices this recording has declared.
    std::set<std::uint64_t> declared_;
};

}  // namespace tactora
