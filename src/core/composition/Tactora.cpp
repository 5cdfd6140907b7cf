#include "core/composition/Tactora.h"

#include <utility>

#include "core/app/Globals.h"

namespace tactora {

static_assert(TouchSurface::contactLifetime == Controller::liveContact,
              "The live view and the live line count fingers over the same time");

namespace {

std::shared_ptr<ExtraActions> makeExtraActions(const ControllerServices& services,
                                               ExtraActionPlatform platform) {
    return std::make_shared<ExtraActions>(
        ExtraActionServices{
            .poster = services.poster,
            .systemEvents = platform.systemEvents,
            .opener = platform.opener,
            .processes = platform.processes,
            .picker = platform.picker,
            .dialogs = services.dialogs,
            .view = services.view,
            .clock = services.clock,
        },
        marker);
}

// `services`, handing the further actions to `extras` when there are any, touches to `guard`,
// the gestures beyond the eight to `more` and the events of the other devices to `devices`.
ControllerServices withParts(ControllerServices services,
                             const std::shared_ptr<ExtraActions>& extras,
                             const std::shared_ptr<MisfireGuard>& guard,
                             const std::shared_ptr<MoreGesturesExtension>& more,
                             const std::shared_ptr<DeviceGestures>& devices) {
    if (extras) {
        services.extraActions = extras;
    }
    services.judge = guard;
    services.extension = more;
    services.deviceEvents = devices;
    return services;
}

// The guard with the user's options and limits, all off and the defaults unless changed.
std::shared_ptr<MisfireGuard> makeGuard(const ControllerServices& services) {
    if (!services.defaults) {
        return std::make_shared<MisfireGuard>();
    }
    return std::make_shared<MisfireGuard>(MisfireOptions::load(*services.defaults),
                                          TapThresholds::load(*services.defaults));
}

}  // namespace

Tactora::Tactora(ControllerServices services, PartViews views)
    : Tactora(std::move(services), nullptr, views) {}

Tactora::Tactora(const ControllerServices& services, ExtraActionPlatform platform, PartViews views)
    : Tactora(services, makeExtraActions(services, platform), views) {}

Tactora::Tactora(ControllerServices services, std::shared_ptr<ExtraActions> extras, PartViews views)
    : extras_(std::move(extras)),
      guard_(makeGuard(services)),
      more_(std::make_shared<MoreGesturesExtension>(
          MoreGestureServices{.poster = services.poster, .dragger = services.dragger})),
      devices_(std::make_shared<DeviceGestures>(DeviceGestureServices{
          .devices = views.touchDevices != nullptr ? *views.touchDevices : noTouchDevices_,
          .queue = services.queue,
          .clock = services.clock,
          .defaults = services.defaults})),
      controller_(Controller::create(withParts(services, extras_, guard_, more_, devices_))),
      runner_(*controller_),
      keeper_(GestureKeeper::create({.clock = services.clock,
                                     .queue = services.queue,
                                     .view = services.view,
                                     .permissions = services.permissions,
                                     .sensor = services.sensor,
                                     .devices = services.devices,
                                     .loginItem = services.loginItem,
                                     .activity = services.activity,
                                     .resetTool = services.resetTool,
                                     .defaults = services.defaults,
                                     .otherSurfaces = devices_.get()},
                                    *controller_, *controller_)),
      frontmost_(FrontmostProfiles::create(*controller_, services.workspace, services.view,
                                           services.clock, services.queue)),
      liveView_(LiveView::create(services.surface, services.clock, services.queue)),
      feedback_(
          MenuBarFeedback::create(services.defaults, *controller_, services.clock, services.queue)),
      recorder_(services.traceSink, services.clock, services.workspace, services.view, *controller_,
                *controller_),
      profileFiles_(*controller_, *frontmost_, services.files, services.dialogs, services.view),
      advanced_(*guard_, services.defaults,
                views.advanced != nullptr ? *views.advanced : noAdvancedSheet_),
      moreSheet_(*controller_, services.dialogs,
                 views.moreSheet != nullptr ? *views.moreSheet : noMoreSheet_, extras_.get()),
      deviceTable_({.switcher = *controller_,
                    .devices = *devices_,
                    .dialogs = services.dialogs,
                    .workspace = services.workspace,
                    .systemPreferences = views.systemPreferences != nullptr
                                             ? *views.systemPreferences
                                             : noSystemPreferences_,
                    .view = views.deviceTable != nullptr ? *views.deviceTable : noDeviceTable_,
                    .extras = extras_.get()}) {
    // The recorder comes first, so that it writes what comes in before the others act on it.
    controller_->addObserver(recorder_);
    // Next, so that gestures it switches on or off are what the others see.
    controller_->addObserver(*keeper_);
    // Before the live view, so that the profile of the application in front is active by the
    // time the others learn that launching finished.
    controller_->addObserver(*frontmost_);
    controller_->addObserver(*liveView_);
    controller_->setProfileTitleSource(frontmost_.get());
    controller_->addObserver(*feedback_);
    more_->follow(*controller_);
    controller_->addObserver(*more_);
    controller_->addObserver(advanced_);
    controller_->addObserver(moreSheet_);
    devices_->runThrough(runner_);
    controller_->addObserver(*devices_);
    recorder_.followDevices(devices_.get());
    // After the devices' gestures, so that the list it shows at launch is the one they keep.
    controller_->addObserver(deviceTable_);
    devices_->setListChanged([this] { deviceTable_.devicesChanged(); });
    // What the sheet stores is recognised from the next touch on, not only after a refresh.
    moreSheet_.setMappingChanged(
        [this, &clock = services.clock] { more_->refreshed(clock.uptime()); });
    if (extras_) {
        // A list of Shortcuts that arrives later may change what the gesture rows and the
        // sheet's rows show.
        extras_->setRowsChanged([weak = std::weak_ptr<Controller>(controller_), this] {
            if (const auto controller = weak.lock()) {
                controller->refreshProfileUI();
                moreSheet_.valuesChanged();
                deviceTable_.valuesChanged();
            }
        });
    }
}

Tactora::~Tactora() {
    if (extras_) {
        // The further actions may outlive the program's parts through the controller.
        extras_->setRowsChanged({});
    }
    recorder_.followDevices(nullptr);
    devices_->setListChanged({});
    controller_->removeObserver(deviceTable_);
    controller_->removeObserver(*devices_);
    controller_->removeObserver(moreSheet_);
    controller_->removeObserver(advanced_);
    controller_->removeObserver(*more_);
    controller_->removeObserver(*feedback_);
    controller_->removeObserver(*liveView_);
    controller_->removeObserver(*frontmost_);
    controller_->setProfileTitleSource(nullptr);
    controller_->removeObserver(*keeper_);
    controller_->removeObserver(recorder_);
}

}  // namespace tactora
