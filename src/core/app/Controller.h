#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/actions/ExtraActions.h"
#include "core/actions/Press.h"
#include "core/app/ContactFrame.h"
#include "core/app/ControllerObserver.h"
#include "core/app/ControllerServices.h"
#include "core/app/GestureKind.h"
#include "core/app/MenuBarFeedback.h"
#include "core/app/NamingMode.h"
#include "core/app/TouchSurface.h"
#include "core/gestures/Finger.h"
#include "core/gestures/GestureDispatchContext.h"
#include "core/gestures/GestureState.h"
#include "core/keepon/KeepOn.h"
#include "core/keepon/PermissionMemory.h"
#include "core/platform/ApplicationsSheet.h"
#include "core/platform/EventDisposition.h"
#include "core/platform/EventTypes.h"
#include "core/platform/LoginItemStatus.h"
#include "core/platform/MouseButton.h"
#include "core/platform/StatusItemAppearance.h"
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

    // Start-up: a second instance activates the first, asks it to show its window and
    // terminates; otherwise builds the menus, the window and the status item, connects the
    // sensor, starts the refresh timer, watches for wake and for other copies' requests to
    // show the window, and shows the window. Gestures stay off until the user switches them on.
    void applicationDidFinishLaunching();
    // Both drop pending gesture actions, let go of held presses and reset the recogniser.
    void applicationDidBecomeActive();
    void applicationDidResignActive();
    // Pauses, then stops the sensor.
    void applicationWillTerminate();
    // The Dock icon was clicked (or the application opened again) while it runs. With no
    // window on screen it shows the settings window and returns false: nothing is left for
    // AppKit to do. Otherwise it returns true, leaving AppKit's usual handling.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

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

    // The sensor's frame callback, on the sensor's thread: copies the frame into fixed storage
    // and hands it to the main queue by value, where the application controller of the moment
    // receives it. Allocates nothing itself. A negative count stops the program.
    static void frameCallback(std::int32_t count, const std::int32_t* ids, const float* xs,
                              const float* ys);

    // One contact frame, on the main thread: feeds the recogniser and schedules a recognised
    // tap's action tapDelay seconds later.
    void receive(std::span<const Finger> fingers);

    // --- Keeping gestures on ------------------------------------------------------------------

    // A reconnect after a device arrived or left waits this long, so that a burst of device
    // notices (and a mouse still settling) leads to one reconnect.
    static constexpr double deviceSettle = 0.5;

    // The "Keep gestures on" checkbox's action: takes its state, and the master switch's as
    // the user's choice.
    void toggleKeepOn();
    // A multitouch mouse arrived or left: reconnects, deviceSettle seconds later.
    void deviceArrived();
    void deviceLeft();
    // The "Open at login" checkbox's action: registers or unregisters the login item.
    void toggleLoginItem();
    // Opens the Login Items pane of System Settings, where a pending login item is approved.
    void openLoginItems();
    // Resets both permissions of this application with the system's tool, then asks for both
    // again as access() and monitor() do. A failed reset shows the tool's exit status.
    void resetPermissions();

    const KeepOn& keepOn() const { return keepOn_; }

    // --- Status display ----------------------------------------------------------------------

    // Rewrites the permission line and the live line, then the status item.
    void refresh();
    // Redraws the status item, but only when its image, title or tooltip would change.
    void updateMenuIcon();

    // --- Dispatch guard ----------------------------------------------------------------------

    // Switch on, no shortcut being recorded, and this application not the active one.
    bool canRunGestures() const;
    // Invalidates every scheduled action and held press context.
    void cancelPendingActions();
    GestureDispatchContext dispatchContext();
    bool mayDispatch(const GestureDispatchContext& context);

    // --- Actions -----------------------------------------------------------------------------

    // Carries out catalogue entry `action`; `shortcut` is used by the custom action only, and
    // `value` (what it opens or runs) by the extra actions only.
    void perform(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                 const std::string& value = {});
    // Carries out the extra actions (not owned; it must outlive the controller, or be taken
    // away with null). Without it the extra actions do nothing.
    void setExtraActions(ExtraActions* extras);
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
    // The profile actions' delete item: asks, then deletes the profile shown in the pop-up.
    void deleteProfile();

    // --- Profiles of applications ------------------------------------------------------------

    // Another application came to the front (`processID` none when no application is in front;
    // `bundleID` empty when it has none). Its profile becomes active, or the user's choice when
    // it has none, through the same steps as selectProfile(). This application coming to the
    // front changes nothing.
    void frontmostApplicationChanged(std::optional<std::int32_t> processID, std::string bundleID);
    // The bundle id of the last application other than this one that came to the front.
    const std::string& frontmostBundleID() const { return frontmostBundleID_; }
    // Whether the active profile is not the user's choice but that of the application in front.
    bool profileFollowsApplication();
    // What the pop-up and the status item call the active profile: its name, and the
    // application's when the application in front chose it.
    std::string activeProfileTitle();

    // The profile actions' applications item: shows the sheet of the active profile's
    // applications, which the next three operations edit until it closes.
    void editApplications();
    // Assigns the application to the sheet's profile (moving it from any other).
    void addApplication(const std::string& bundleID);
    // Takes the application away from the sheet's profile.
    void removeApplication(const std::string& bundleID);
    void closeApplications();

    // --- Profile files -----------------------------------------------------------------------

    // Writes every profile to a file chosen with a save panel.
    void exportProfiles();
    // Appends the profiles of a file chosen with an open panel; a file that is not such a list
    // changes nothing and is explained in a message.
    void importProfiles();

    // --- Live view of the touch surface and feedback in the menu bar ---------------------------

    // The settings window became visible on screen, or stopped being visible. The live view is
    // kept up to date only while it is visible; while it is not, frames cost it nothing.
    void surfaceVisibilityChanged(bool visible);
    // The status menu's item that shows gestures in the menu bar: turns the preference over.
    void toggleMenuBarFeedback();

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
    bool surfaceVisible() const { return surfaceVisible_; }
    bool menuBarFeedbackOn() const { return feedback_.isOn(); }

  private:
    static void receiveFrame(const ContactFrame& frame);
    void receive(const ContactFrame& frame);
    void scheduleTap(std::int64_t fingers, ActionIndex action,
                     const std::optional<SavedShortcut>& shortcut, const std::string& value,
                     const GestureDispatchContext& context, double recognisedAt);
    void performTap(std::int64_t fingers, ActionIndex action,
                    const std::optional<SavedShortcut>& shortcut, const std::string& value,
                    const GestureDispatchContext& context, double recognisedAt);

    void performShortcut(const std::optional<SavedShortcut>& shortcut);
    void notifyDock(ActionIndex action, bool showDesktop);

    void tapDisabled();
    bool isFromMouse(const TapEvent& event);
    EventDisposition pressDown(TapEvent& event, std::int64_t button, double now);
    EventDisposition pressContinues(EventType type, TapEvent& event, std::int64_t button);
    // rewrite(), and the modifier flags of a modifier click on each of its events.
    static void rewritePress(TapEvent& event, const Press& press, bool down, bool drag);
    void performOnRelease(const Press& press);

    void afterReconnect();
    void armIfWanted(bool announce);
    KeepOnWait missingForGestures() const;
    void showWait(KeepOnWait wait, const std::string& before);
    void waitAfterFailedTick();
    void keepOnAtRefresh(bool accessibility, bool inputMonitoring);
    void coolDown(double seconds);
    void scheduleWakeRetry();
    void scheduleDeviceReconnect();
    void syncActivity();
    void refreshLoginItem();
    void warnIfSecureInput();
    std::string permissionLine(bool accessibility, bool inputMonitoring);
    void watchDevices();

    bool activateOtherInstance();
    void buildWindow();
    void createStatusItem();
    void startRefreshTimer();
    void observeWake();
    void observeShowRequests();
    void observeFrontmostApplication();
    void dropPendingWork();

    void noteGesture(GestureKind kind, std::int64_t fingers, double at);
    void noteAction(ActionIndex action, const std::optional<SavedShortcut>& shortcut, double at);
    void fireFeedback(std::int64_t fingers, double at);
    void highlightChanged();
    void scheduleHighlightEnd();
    void showSurface();

    enum class ProfileSwitch { chosen, automatic };
    // The steps of selectProfile() around the store's change: pending actions cancelled, held
    // presses released, recogniser reset, the store's select() (a choice) or activate(), then
    // the status texts and controls refreshed.
    void switchProfile(const Uuid& id, ProfileSwitch kind);
    // The profile of the application in front, or the user's choice when it has none.
    Uuid frontmostProfile();
    // Switches to frontmostProfile() when that is not the active one already.
    void followFrontmost();
    ApplicationsSheet applicationsSheet();
    std::string applicationName(const std::string& bundleID) const;
    void applySwitch(bool byUser);
    void noteTapEvent(EventType type, const TapEvent& event);
    void startTrace();
    void stopTrace();
    void noteTrace(double now, TraceEvent event);
    void noteFrontApplication(double now);
    void noteGestures();
    void showStatusMenu();

    // The slot's action: one of the fifteen, or the index of the slot's extra action.
    ActionIndex actionAt(std::int64_t slot);
    const std::optional<SavedShortcut>& shortcutAt(std::int64_t slot);
    // What the slot's extra action opens or runs; empty for every other action.
    std::string valueAt(std::int64_t slot);
    // An action pop-up chose an extra action: asks for its value where it needs one, then
    // stores it in the slot.
    void chooseExtra(std::int64_t slot, ExtraAction extra);

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
    std::string frontmostBundleID_;
    std::string frontmostName_;          // what the user calls that application
    std::optional<Uuid> editedProfile_;  // the applications sheet's profile while it is open

    KeepOn keepOn_;
    PermissionMemory permissionMemory_;
    // Above zero while the program itself pauses or switches gestures on (launch, wake,
    // reconnect, quit, keeping gestures on): then the switch's state is not the user's choice.
    int programActions_ = 0;
    int pausing_ = 0;
    bool activityHeld_ = false;
    bool deviceReconnectPending_ = false;
    std::string sensorText_;
    std::optional<std::pair<bool, bool>> lastPermissions_;
    std::optional<LoginItemStatus> loginStatus_;

    bool windowBuilt_ = false;
    bool statusItemCreated_ = false;
    // What the status item shows now, so that an unchanged look is not pushed again.
    std::optional<StatusItemAppearance> shownAppearance_;
    std::vector<Finger> frameFingers_;  // reused for every frame, so frames allocate nothing

    TouchSurface surface_;
    bool surfaceVisible_ = false;
    MenuBarFeedback feedback_;
    TraceRecorder trace_;
    std::string tracePath_;
    std::optional<TraceFrontApplication> tracedFront_;
    std::optional<bool> tracedGestures_;
    ControllerObserver* observer_ = nullptr;  // not owned
    ExtraActions* extras_ = nullptr;          // not owned
};

}  // namespace tactora
