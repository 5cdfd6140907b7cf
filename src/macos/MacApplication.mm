#include "macos/MacApplication.h"

#import <AppKit/AppKit.h>

#include <utility>

#include "core/app/ApplicationController.h"
#include "core/app/SettingsWindowTexts.h"
#include "macos/EventTapCallback.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

MacApplication::MacApplication(Sensor& sensor, std::shared_ptr<Preferences> defaults)
    : sensor_(sensor),
      tap_(&forwardTapEvent),
      controls_([[TASettingsControls alloc]
          initWithEnableTitle:toNSString(settingsWindowTexts().enableSwitch)]),
      delegate_([[TAApplicationDelegate alloc] init]),
      view_(controls_),
      shell_(controls_, delegate_),
      controller_(Controller::create({
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
      })) {
    [delegate_ attachController:controller_];
}

MacApplication::~MacApplication() {
    // The sensor's thread reaches the controller through the global; it must be quiet first.
    sensor_.stop();
    clearApplicationController();
}

void MacApplication::run() {
    setApplicationController(controller_);
    // The application keeps its delegate weakly; this object keeps it alive.
    NSApp.delegate = delegate_;
    [NSApp run];
}

}  // namespace tactora::macos
