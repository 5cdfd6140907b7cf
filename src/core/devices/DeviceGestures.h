#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "core/app/ControllerObserver.h"
#include "core/app/DeviceEvents.h"
#include "core/app/PendingTap.h"
#include "core/app/Press.h"
#include "core/devices/DeviceChoice.h"
#include "core/devices/DeviceGestureWatcher.h"
#include "core/devices/DeviceRecognisers.h"
#include "core/devices/GestureRunner.h"
#include "core/gestures/Finger.h"
#include "core/keepon/OtherSurfaces.h"
#include "core/platform/Clock.h"
#include "core/platform/MainQueue.h"
#include "core/platform/TouchDevices.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// What the gestures of the devices beside the Magic Mouse reach the system through.
struct DeviceGestureServices {
    TouchDevices& devices;
    MainQueue& queue;
    Clock& clock;
    // Where the choice of devices is remembered (the standard user defaults).
    std::shared_ptr<Preferences> defaults;
};

// The taps and clicks of the touch devices beside the Magic Mouse: the trackpads the user
// ticks. Each device has a recogniser of its own, so that the frames of two devices never mix;
// a tap carries out the active profile's trackpad slot for it after the tap's wait, unless a
// click on the same device vetoes it; a physical click with fingers resting on a trackpad is
// rewritten to the mapped button (held through its drags until the physical up) or swallowed
// and its action carried out on release, exactly as on the mouse.
//
// It is the controller's DeviceEvents and one of its observers: the chosen devices start with
// the sensor, from the launch's first connection on; it keeps the list current as devices come
// and go (and tells keeping gestures on whether any is in use), and lets go of its held
// presses and forgets every touch whenever the controller does (switch off, wake, profile
// change, activation, quit). A device that leaves during a held press gets exactly one up.
//
// Main thread only, except the frame callback, which runs on the sensor's thread and only
// hands the frame to the main queue. The one instance that was last launched receives the
// frames; it must stay alive until the process ends, as the controller does.
class DeviceGestures final : public DeviceEvents,
                             public ControllerObserver,
                             public OtherSurfaces,
                             public std::enable_shared_from_this<DeviceGestures> {
  public:
    explicit DeviceGestures(DeviceGestureServices services);
    ~DeviceGestures() override;
    DeviceGestures(const DeviceGestures&) = delete;
    DeviceGestures& operator=(const DeviceGestures&) = delete;
    DeviceGestures(DeviceGestures&&) = delete;
    DeviceGestures& operator=(DeviceGestures&&) = delete;

    // Runs the gestures through `runner` (not owned; it must outlive this). Until it is given,
    // devices are listed but no gesture runs.
    void runThrough(GestureRunner& runner) { runner_ = &runner; }
    // Tells `watcher` (not owned; nullptr for none) what the devices' gestures are from now on.
    void watch(DeviceGestureWatcher* watcher) { watcher_ = watcher; }
    // Runs `changed` whenever the list of devices or the use of one changed (empty: nothing).
    void setListChanged(std::function<void()> changed) { listChanged_ = std::move(changed); }

    // Every device seen, the Magic Mouse included.
    std::vector<TouchDevice> devices() const { return services_.devices.devices(); }
    // Whether the user uses `device` for gestures; the Magic Mouse always is.
    bool uses(const TouchDevice& device) const;
    // Remembers the choice and starts or stops the device at once.
    void setUses(const TouchDevice& device, bool use);
    // Whether a trackpad has been seen since launch.
    bool trackpadSeen() const;
    // The device in use that sent input with this sender id (an event's sender), or 0 when
    // none did or before launch.
    std::uint64_t deviceOfSender(std::uint64_t sender);

    // The presses held on the devices now.
    std::size_t heldPresses() const { return presses_.size(); }

    bool othersInUse() const override;
    void followDevices() override { devicesChanged(); }

    // One frame of a device in use, on the main thread: feeds that device's recogniser, and
    // schedules a recognised tap's action the tap's wait later.
    void receive(const ContactFrame& frame);

    std::optional<EventDisposition> decide(EventType type, TapEvent& event) override;

    void launched(double time) override;
    void reconnected(const ReconnectNote& note) override;
    void switchChanged(const SwitchNote& note) override;
    void profileSelected(const ProfileNote& note) override;
    void activeChanged(const ActiveNote& note) override;
    void woke(const MomentNote& note) override;
    void terminating(double time) override;

  private:
    // A press held on a device, by the device and its physical button.
    struct HeldPress {
        std::uint64_t device = 0;
        std::int64_t button = 0;
        Press press;
    };

    // On the sensor's thread: hands the frame to the main queue.
    static void frameArrived(const ContactFrame& frame);
    static void receiveFrame(const ContactFrame& frame);
    void scheduleTap(std::uint64_t device, PendingTap tap);
    void performTap(std::uint64_t device, const PendingTap& tap);

    std::uint64_t deviceFor(const TapEvent& event);
    EventDisposition pressDown(std::uint64_t device, TapEvent& event, std::int64_t button,
                               double now);
    EventDisposition pressContinues(std::uint64_t device, EventType type, TapEvent& event,
                                    std::int64_t button);
    void performReleased();

    // Posts the up of every held press of `device` (of every device when nothing), once.
    void releasePresses(std::optional<std::uint64_t> device = std::nullopt);
    // Whatever is under way ends: held presses let go of, every touch forgotten.
    void stopTouches();
    void devicesChanged();

    static std::atomic<DeviceGestures*> receiver_;

    DeviceGestureServices services_;
    GestureRunner* runner_ = nullptr;
    DeviceGestureWatcher* watcher_ = nullptr;
    std::function<void()> listChanged_;
    DeviceChoice choice_;
    DeviceRecognisers recognisers_;
    bool using_ = false;
    // Reused for every frame, so frames allocate nothing.
    std::vector<Finger> fingers_;
    std::vector<HeldPress> presses_;
    // Presses swallowed at release whose action waits for the tap's callback to return.
    std::vector<HeldPress> released_;
    bool handOffPosted_ = false;
    // The sender of the last event asked about, and the device it stands for (0: none).
    std::optional<std::uint64_t> lastSender_;
    std::uint64_t senderDevice_ = 0;
};

}  // namespace tactora
