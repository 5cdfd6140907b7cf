#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/actions/Press.h"
#include "core/app/ContactFrame.h"
#include "core/app/ControllerObserver.h"
#include "core/app/ControllerServices.h"
#include "core/app/NamingMode.h"
#include "core/gestures/Finger.h"
#include "core/gestures/GestureDispatchContext.h"
#include "core/gestures/GestureState.h"
#include "core/platform/EventDisposition.h"
#include "core/platform/EventTypes.h"
#include "core/platform/MouseButton.h"
#include "core/platform/TapEvent.h"
#include "core/profiles/ProfileStore.h"
#include "core/profiles/SavedShortcut.h"
#include "core/trace/TraceLine.h"
#include "core/trace/TraceRecorder.h"

namespace tactora {

// The application's one run-time object: it owns the recogniser, the held presses and the
// profile store, and decides everything that happens between the sensor, the event tap, the
// settings window and the synthetic input it posts. The shell merely forwards the application
// delegate's calls, the menu and control actions and the tap's events to it.
//
// Held by std::shared_ptr: work it schedules holds it weakly and does nothing once it is gone.
// Every member runs on the main thread, except frameCallback(), which runs on the sensor's.
class Controller : public std::enable_shared_from_this<Controller> {
    struct Passkey {
        explicit Passkey() = default;
    };

  public:
    // A recognised tap waits this long before it is performed, so that a click whose button
    // event arrives just after the fingers lifted can still veto it; a click this close
    // before the release vetoes it too.
    static constexpr double tapDelay = 0.08;
    // A click counts the resting fingers only while the last contact frame is younger.
    static constexpr double freshContact = 0.25;
    // The live line counts fingers only while the last contact frame is younger.
    static constexpr double liveContact = 0.5;
    static constexpr double refreshInterval = 0.2;

    static constexpr std::string_view accessibilitySettings =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
    static constexpr std::string_view inputMonitoringSettings =
        "x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent";

    // Makes the controller and gives the live line its first text. The labels and the switch
    // of `services.view` must exist already; nothing else is touched until launching finishes.
    static std::shared_ptr<Controller> create(ControllerServices services);

    Controller(Passkey /*unused*/, ControllerServices services);
    Controller(const Controller&) = delete;
    Controller& operator=(const Controller&) = delete;
    Controller(Controller&&) = delete;
    Controller& operator=(Controller&&) = delete;
    ~Controller() = default;

    // --- Lifecycle: the application delegate and the menus ---------------------------------

    // Start-up: a second instance activates the first and terminates; otherwise builds the
    // menus, the window and the status item, connects the sensor, starts the refresh timer,
    // watches for wake and shows the window. Gestures stay off until the user switches them on.
    void applicationDidFinishLaunching();
    // Both drop pending gesture actions, let go of held presses and reset the recogniser.
    void applicationDidBecomeActive();
    void applicationDidResignActive();
    // Pauses, then stops the sensor.
    void applicationWillTerminate();

    // Brings the settings window to the front and activates the application.
    void show();
    void quit();
    // Switches gestures off: cancels pending actions, turns the switch off and applies it.
    void pause();
    // Applies the master switch's state: on only with a ready sensor, both permissions and an
    // event tap; otherwise the switch goes back off and the status line says why.
    void toggle();
    // The permission buttons: prompt, then open the matching System Settings pane.
    void access();
    void monitor();

    // --- Sensor ------------------------------------------------------------------------------

    // Pauses, resets the recogniser, (re)starts the sensor and shows its status.
    void reconnect();
    // The system woke from sleep: pause, then reconnect.
    void woke();

    // The sensor's frame callback, on the sensor's thread: copies the frame and posts it to the
    // main queue, through applicationController(). A negative count stops the program.
    static void frameCallback(std::int32_t count, const std::int32_t* ids, const float* xs,
                              const float* ys);

    // One contact frame, on the main thread: feeds the recogniser and schedules a recognised
    // tap's action tapDelay seconds later.
    void receive(std::span<const Finger> fingers);

    // --- Status display ----------------------------------------------------------------------

    // Rewrites the permission line and the live line, then the status item.
    void refresh();
    void updateMenuIcon();

    // --- Dispatch guard ----------------------------------------------------------------------

    // Switch on, no shortcut being recorded, and this application not the active one.
    bool canRunGestures() const;
    // Invalidates every scheduled action and held press context.
    void cancelPendingActions();
    GestureDispatchContext dispatchContext();
    bool mayDispatch(const GestureDispatchContext& context);

    // --- Actions -----------------------------------------------------------------------------

    // Carries out catalogue entry `action`; `shortcut` is used by the custom action only.
    void perform(ActionIndex action, const std::optional<SavedShortcut>& shortcut);
    // Posts one marked mouse button event at the pointer.
    void post(MouseButton button, bool down, std::int64_t clickState = 1);
    // Posts one marked key press, down then up.
    void sendKeys(std::uint16_t keyCode, std::uint64_t flags);
    // The settings window's test button: Show Desktop.
    void testDesktop();

    // --- Event tap ---------------------------------------------------------------------------

    // Creates the tap on first use, otherwise re-enables it. True when a tap exists.
    bool installTap();
    // Decides one event of the tap: pass it on (possibly rewritten in place) or swallow it.
    // Allocates nothing for events it passes untouched.
    EventDisposition handle(EventType type, TapEvent& event);
    // Turns `event` into `button`'s drag, down or up event (drag wins over down).
    static void rewrite(TapEvent& event, MouseButton button, bool down, bool drag);
    // Posts the up half of every rewritten press still held, and forgets all held presses.
    void releasePresses();

    // --- Shortcut recording ------------------------------------------------------------------

    // A record button's action; `slot` is the button's tag.
    void recordShortcut(std::int64_t slot);
    // Runs the recording dialog for `slot` and stores what it captured when saved.
    void beginRecording(std::int64_t slot);

    // --- Profiles ----------------------------------------------------------------------------

    // The profile store, created on first use.
    ProfileStore& profiles();
    // The active profile's actions, one per gesture slot.
    const std::vector<ActionIndex>& mapping();
    // Brings the profile pop-up and the gesture rows into line with the store.
    void refreshProfileUI();
    // An action pop-up's action; `slot` is its tag.
    void changed(std::int64_t slot);
    // The profile pop-up's action.
    void selectProfile();
    void newProfile();
    void renameProfile();
    void duplicateProfile();
    void nameProfile(NamingMode mode);

    // --- Touch traces ------------------------------------------------------------------------

    // The status menu's "Record Touches…" item: starts writing a trace of everything the
    // controller receives, or stops the one under way. Off until the user chooses it.
    void recordTouches();
    bool recordingTouches() const { return trace_.isRecording(); }

    // Tells `observer` (not owned; it must outlive the controller, or be taken away with null)
    // what is recognised and performed from now on.
    void setObserver(ControllerObserver* observer) { observer_ = observer; }

    // --- State, for the status display and for tests -----------------------------------------

    const GestureState& gesture() const { return gesture_; }
    double lastFrame() const { return lastFrame_; }
    double lastClick() const { return lastClick_; }
    const std::string& lastGesture() const { return lastGesture_; }
    const std::string& lastAction() const { return lastAction_; }
    bool ready() const { return ready_; }
    const std::map<std::int64_t, Press>& presses() const { return presses_; }
    std::uint64_t lastSender() const { return lastSender_; }
    bool senderIsMouse() const { return senderIsMouse_; }
    bool recording() const { return recording_; }
    std::int64_t actionGeneration() const { return actionGeneration_; }

  private:
    void deliver(const ContactFrame& frame);
    void receive(const ContactFrame& frame);
    void scheduleTap(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                     const GestureDispatchContext& context, double recognisedAt);
    void performTap(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                    const GestureDispatchContext& context, double recognisedAt);

    void performShortcut(const std::optional<SavedShortcut>& shortcut);
    void notifyDock(ActionIndex action, bool showDesktop);

    void tapDisabled();
    bool isFromMouse(const TapEvent& event);
    EventDisposition pressDown(TapEvent& event, std::int64_t button, double now);
    EventDisposition pressContinues(EventType type, TapEvent& event, std::int64_t button);
    void performOnRelease(const Press& press);

    bool activateOtherInstance();
    void buildWindow();
    void createStatusItem();
    void startRefreshTimer();
    void observeWake();
    void dropPendingWork();

    void applySwitch();
    void noteTapEvent(EventType type, const TapEvent& event);
    void startTrace();
    void stopTrace();
    void noteTrace(double now, TraceEvent event);
    void noteFrontApplication(double now);
    void noteGestures();
    void showStatusMenu();

    ActionIndex actionAt(std::int64_t slot);
    const std::optional<SavedShortcut>& shortcutAt(std::int64_t slot);

    ControllerServices services_;

    GestureState gesture_;
    double lastFrame_ = 0;
    double lastClick_ = 0;
    std::string lastGesture_ = "—";
    std::string lastAction_ = "—";
    bool ready_ = false;
    std::map<std::int64_t, Press> presses_;
    std::uint64_t lastSender_ = 0;
    bool senderIsMouse_ = false;
    std::optional<ProfileStore> profiles_;
    bool recording_ = false;
    std::int64_t actionGeneration_ = 0;

    bool windowBuilt_ = false;
    bool statusItemCreated_ = false;
    std::vector<Finger> frameFingers_;  // reused for every frame, so frames allocate nothing

    TraceRecorder trace_;
    std::string tracePath_;
    std::optional<TraceFrontApplication> tracedFront_;
    std::optional<bool> tracedGestures_;
    ControllerObserver* observer_ = nullptr;  // not owned
};

}  // namespace tactora
