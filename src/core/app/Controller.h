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
#include "core/actions/ExtraAction.h"
#include "core/actions/SavedShortcut.h"
#include "core/app/ControllerEvents.h"
#include "core/app/ControllerObserver.h"
#include "core/app/ControllerServices.h"
#include "core/app/ControllerState.h"
#include "core/app/GestureKind.h"
#include "core/app/GestureSwitch.h"
#include "core/app/NamingMode.h"
#include "core/app/ObserverList.h"
#include "core/app/PendingTap.h"
#include "core/app/Press.h"
#include "core/app/ProfileSwitcher.h"
#include "core/app/ProfileTitleSource.h"
#include "core/app/StatusDisplay.h"
#include "core/gestures/Finger.h"
#include "core/gestures/GestureDispatchContext.h"
#include "core/gestures/GestureState.h"
#include "core/keepon/LaunchPresence.h"
#include "core/platform/ContactFrame.h"
#include "core/platform/ContactShape.h"
#include "core/platform/EventDisposition.h"
#include "core/platform/EventTypes.h"
#include "core/platform/MenuEntry.h"
#include "core/platform/MouseButton.h"
#include "core/platform/StatusItemAppearance.h"
#include "core/platform/TapEvent.h"
#include "core/profiles/ProfileStore.h"

namespace tactora {

// The application's one run-time object: it owns the recogniser, the held presses and the
// profile store, and decides everything that happens between the sensor, the event tap, the
// settings window and the synthetic input it posts. The shell merely forwards the application
// delegate's calls, the menu and control actions and the tap's events to it.
//
// The parts of the program, and where they live:
//   app/          this controller: recogniser feed, dispatch guard, actions, held presses and
//                 the tap's decision, shortcut recording, profile controls, status display
//   keepgestures/ keeping gestures on by themselves, devices coming and going, the login item
//                 and the permission reset (keepon/ holds their pure decisions)
//   frontmost/    profiles that follow the application in front, and the applications sheet
//   liveview/     the live view of the touch surface
//   feedback/     the finger count in the menu bar
//   recording/    touch traces written while the program runs
//   profilefiles/ deleting, exporting and importing profiles
//   composition/  Tactora: this controller and the parts above, wired together
// The parts learn what happens through the observer list and reach the controller only
// through StatusDisplay, ProfileSwitcher, GestureSwitch and ProfileTitleSource.
//
// Held by std::shared_ptr: work it schedules holds it weakly and does nothing once it is gone.
// Every member runs on the main thread, except frameCallback(), which runs on the sensor's.
class Controller final : public StatusDisplay,
                         public ProfileSwitcher,
                         public GestureSwitch,
                         public std::enable_shared_from_this<Controller> {
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

    // Not copied or moved: its observer list is neither.
    Controller(Passkey /*unused*/, ControllerServices services);

    // --- Lifecycle: the application delegate and the menus ---------------------------------

    // Start-up: a second instance activates the first, asks it to show its window and
    // terminates; otherwise builds the menus, the window and the status item, connects the
    // sensor, starts the refresh timer, watches for wake and for other copies' requests to
    // show the window, and shows the window. Gestures stay off until the user switches them on.
    // Started by the login item it stays in the menu bar: no window and no Dock icon until the
    // user opens the window.
    void applicationDidFinishLaunching();
    // Both drop pending gesture actions, let go of held presses and reset the recogniser;
    // becoming active also reads the login item's status afresh.
    void applicationDidBecomeActive();
    void applicationDidResignActive();
    // Pauses, then stops the sensor.
    void applicationWillTerminate();
    // The Dock icon was clicked (or the application opened again) while it runs. With no
    // window on screen it shows the settings window and returns false: nothing is left for
    // AppKit to do. Otherwise it returns true, leaving AppKit's usual handling.
    bool applicationShouldHandleReopen(bool hasVisibleWindows);

    // Brings the settings window to the front and activates the application, with its Dock icon
    // from then on; reads the login item's status afresh.
    void show();
    void quit();
    // Switches gestures off: cancels pending actions, turns the switch off and applies it.
    void pause();
    void pauseAsProgram() override;
    bool switchOnAsProgram() override;
    bool programActing() const override { return programActions_ > 0; }
    // Applies the master switch's state: on only with a ready sensor, both permissions and an
    // event tap; otherwise the switch goes back off and the status line says why.
    void toggle();
    // The permission buttons: prompt, then open the matching System Settings pane.
    void access() override;
    void monitor() override;

    // --- Sensor ------------------------------------------------------------------------------

    // Pauses, resets the recogniser, (re)starts the sensor and shows its status.
    void reconnect() override;
    bool sensorReady() const override { return state_.ready; }
    const std::string& sensorText() const override { return sensorText_; }
    void sensorFollowed() override;
    // The system woke from sleep: pause, then reconnect.
    void woke();

    // The sensor's frame callback, on the sensor's thread: copies the frame into fixed storage
    // and hands it to the main queue by value, where the application controller of the moment
    // receives it. Allocates nothing itself. A negative count stops the program.
    static void frameCallback(std::int32_t count, const std::int32_t* ids, const float* xs,
                              const float* ys, const float* shapes);

    // One contact frame, on the main thread, with its contacts' shapes when the sensor reports
    // them (one per finger): feeds the recogniser, through the touch judge when there is one,
    // and schedules a recognised tap's action tapDelay seconds later.
    void receive(std::span<const Finger> fingers,
                 std::span<const std::optional<ContactShape>> shapes = {});

    // --- Status display ----------------------------------------------------------------------

    // Rewrites the permission line and the live line, then the status item. Never asks for the
    // login item's status: that is a query to a system service, read only when the window is
    // shown, the application becomes active, and after registering or unregistering.
    void refresh() override;
    void setLiveNote(std::string note) override;
    void setPermissionNote(std::string note) override;
    void setStatusItemTitle(std::string title) override;
    void setStatusMenuEntry(MenuEntry entry) override;
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
    // `value` (what it opens or runs) by the further actions only. `origin` and `fingers` say,
    // for the observers, which gesture it stood for.
    void perform(ActionIndex action, const std::optional<SavedShortcut>& shortcut,
                 ActionOrigin origin = ActionOrigin::direct, std::int64_t fingers = 0,
                 const std::string& value = std::string());
    // Posts one marked mouse button event at the pointer, with `flags` as its modifier flags.
    void post(MouseButton button, bool down, std::int64_t clickState = 1, std::uint64_t flags = 0);
    // Posts one marked key press, down then up.
    void sendKeys(std::uint16_t keyCode, std::uint64_t flags);
    // The settings window's test button: Show Desktop.
    void testDesktop();

    // --- Event tap ---------------------------------------------------------------------------

    // Creates the tap on first use, otherwise re-enables it. True when a tap exists.
    bool installTap();
    // Decides one event of the tap: pass it on (possibly rewritten in place) or swallow it.
    // Allocates nothing for events it passes untouched, and only the one main-queue task that
    // tells the observers and performs a swallowed release's action otherwise.
    EventDisposition handle(EventType type, TapEvent& event);
    // Posts the up half of every rewritten press still held, and forgets all held presses.
    void releasePresses();

    // --- Shortcut recording ------------------------------------------------------------------

    // A record button's action; `slot` is the button's tag.
    void recordShortcut(std::int64_t slot);
    // Runs the recording dialog for `slot` and stores what it captured when saved.
    void beginRecording(std::int64_t slot);

    // --- Profiles ----------------------------------------------------------------------------

    // The profile store, created on first use.
    ProfileStore& profiles() override;
    void switchProfileAutomatically(const Uuid& id) override;
    // The active profile's actions, one per gesture slot.
    const std::vector<ActionIndex>& mapping();
    // Brings the profile pop-up and the gesture rows into line with the store.
    void refreshProfileUI() override;
    // An action pop-up's action; `slot` is its tag.
    void changed(std::int64_t slot);
    // The profile pop-up's action.
    void selectProfile();
    // The profile buttons: asks for a name, then creates, renames or duplicates a profile.
    void nameProfile(NamingMode mode);
    void dropPendingWork() override;
    bool pressesHeld() override { return !state_.presses.empty(); }
    void tellFrontApplication(const FrontApplicationNote& note) override;
    // Where the pop-up and the status item's tooltip get the active profile's name from (not
    // owned; null for the profile's own name).
    void setProfileTitleSource(ProfileTitleSource* source) { titleSource_ = source; }

    // Tells `observer` (not owned; it must stay alive until removed) what the controller
    // receives and decides from now on; see ControllerObserver.
    void addObserver(ControllerObserver& observer) { observers_.add(observer); }
    void removeObserver(ControllerObserver& observer) { observers_.remove(observer); }

    // What the controller has seen and decided so far.
    const ControllerState& state() const { return state_; }

  private:
    static void receiveFrame(const ContactFrame& frame);
    void receive(const ContactFrame& frame);
    void scheduleTap(PendingTap tap);
    void performTap(const PendingTap& tap);

    void performShortcut(const std::optional<SavedShortcut>& shortcut);
    void notifyDock(ActionIndex action, bool showDesktop);

    void tapDisabled();
    bool isFromMouse(const TapEvent& event);
    // decide(), filling in `note` with what it decided.
    EventDisposition decideNoted(EventType type, TapEvent& event, MouseEventNote& note);
    // The tap's decision proper, for an event of the mouse while gestures can run.
    EventDisposition decide(EventType type, TapEvent& event);
    // Why the guard refuses `context` now; nothing when it may run.
    std::optional<DropReason> guardRefusal(const GestureDispatchContext& context);
    EventDisposition pressDown(TapEvent& event, std::int64_t button, double now);
    EventDisposition pressContinues(EventType type, TapEvent& event, std::int64_t button);
    // Performs, or drops as the guard says, the actions of the presses swallowed at release.
    void performReleased();

    void warnIfSecureInput();

    void buildWindow();
    // Starts the refresh timer and watches for wake and for other copies' requests to show
    // the window.
    void watch();

    enum class ProfileSwitch { chosen, automatic };
    // The steps of selectProfile() around the store's change: pending actions cancelled, held
    // presses released, recogniser reset, the store's select() (a choice) or activate(), then
    // the status texts and controls refreshed.
    void switchProfile(const Uuid& id, ProfileSwitch kind);
    std::string activeProfileTitle();
    void applySwitch();
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

    ControllerState state_;
    std::optional<ProfileStore> profiles_;
    ProfileTitleSource* titleSource_ = nullptr;

    // Above zero while the program itself pauses or switches gestures on (launch, wake,
    // reconnect, quit, keeping gestures on): then the switch's state is not the user's choice.
    int programActions_ = 0;
    int pausing_ = 0;
    std::string sensorText_;
    LaunchPresence launch_{LaunchOrigin::user};

    bool windowBuilt_ = false;
    bool statusItemCreated_ = false;
    // What the status item shows now, so that an unchanged look is not pushed again.
    std::optional<StatusItemAppearance> shownAppearance_;
    // Reused for every frame, so frames allocate nothing.
    std::vector<Finger> frameFingers_;
    std::vector<std::optional<ContactShape>> frameShapes_;
    // Presses swallowed at release whose action waits for the tap's callback to return; its
    // capacity is reserved, so that a release allocates nothing of its own.
    std::vector<Press> released_;
    // Whether the task that tells the kept notes and performs released_ is on the main queue.
    bool handOffPosted_ = false;

    // What the parts beside the controller add to the status display.
    struct StatusExtras {
        std::string liveNote;
        std::string permissionNote;
        std::string title;
        std::vector<MenuEntry> menuEntries;
    };
    StatusExtras statusExtras_;
    ObserverList observers_;
};

}  // namespace tactora
