#include "macos/MacApplication.h"

#import <AppKit/AppKit.h>

#include <csignal>
#include <memory>
#include <utility>

#include "core/app/ApplicationController.h"
#include "core/app/Globals.h"
#include "core/app/SettingsWindowTexts.h"
#include "macos/EventTapCallback.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

MacApplication::MacApplication(Sensor& sensor, TouchDevices& touchDevices,
                               std::shared_ptr<Preferences> defaults)
    : tap_(&forwardTapEvent),
      controls_([[TASettingsControls alloc]
          initWithEnableTitle:toNSString(settingsWindowTexts().enableSwitch)]),
      delegate_([[TAApplicationDelegate alloc] init]),
      files_(controls_),
      view_(controls_),
      shell_(controls_, delegate_),
      surface_(controls_),
      moreSheet_(controls_, delegate_),
      advanced_(controls_, delegate_),
      deviceTable_(controls_),
      program_(std::make_unique<Tactora>(
          ControllerServices{
              .clock = clock_,
              .queue = queue_,
              .workspace = workspace_,
              .permissions = permissions_,
              .poster = poster_,
              .tap = tap_,
              .sensor = sensor,
              .shell = shell_,
              .view = view_,
              .dialogs = dialogs_,
              .traceSink = traceSink_,
              .defaults = std::move(defaults),
              .surface = surface_,
              .files = files_,
              .devices = devices_,
              .loginItem = loginItem_,
              .activity = activity_,
              .secureInput = secureInput_,
              .resetTool = resetTool_,
              .dragger = dragger_,
          },
          ExtraActionPlatform{
              .systemEvents = systemEvents_,
              .opener = opener_,
              .processes = processes_,
              .picker = picker_,
          },
          PartViews{.advanced = &advanced_,
                    .moreSheet = &moreSheet_,
                    .touchDevices = &touchDevices,
                    .deviceTable = &deviceTable_,
                    .systemPreferences = &systemPreferences_})) {
    [delegate_ attachProgram:program_.get()];
}

void MacApplication::run() {
    // Never cleared: see the class's comment.
    setApplicationController(program_->sharedController());
    // The application keeps its delegate weakly; this object keeps it alive.
    NSApp.delegate = delegate_;
    // SIGTERM (scripts/run, `kill`) quits as the menu does, so the sensor and the event tap are
    // let go of in order instead of with the process.
    signal(SIGTERM, SIG_IGN);
    dispatch_source_t termination =
        dispatch_source_create(DISPATCH_SOURCE_TYPE_SIGNAL, SIGTERM, 0, dispatch_get_main_queue());
    const std::weak_ptr<Controller> weak = program_->sharedController();
    dispatch_source_set_event_handler(termination, ^{
        if (const auto controller = weak.lock()) {
            controller->quit();
        }
    });
    dispatch_resume(termination);
    [NSApp run];
}

}  // namespace tactora::macos
