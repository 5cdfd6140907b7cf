#pragma once

#include <memory>

#include "core/composition/Tactora.h"
#include "core/platform/Sensor.h"
#include "core/platform/TouchDevices.h"
#include "core/profiles/Preferences.h"
#include "macos/AppKitAdvancedSheetView.h"
#include "macos/AppKitDeviceTableView.h"
#include "macos/AppKitDialogs.h"
#include "macos/AppKitMoreSheetView.h"
#include "macos/AppKitProfileFiles.h"
#include "macos/AppKitSettingsView.h"
#include "macos/AppKitShell.h"
#include "macos/AppKitSurfaceView.h"
#include "macos/AppKitWorkspace.h"
#include "macos/CFSystemPreferences.h"
#include "macos/CGEventPoster.h"
#include "macos/CGSystemEventPoster.h"
#include "macos/DispatchMainQueue.h"
#include "macos/FileTraceSink.h"
#include "macos/IOKitDeviceWatcher.h"
#include "macos/MachPortEventTap.h"
#include "macos/MachPortPointerDragger.h"
#include "macos/PanelActionValuePicker.h"
#include "macos/ServiceManagementLoginItem.h"
#include "macos/SystemPermissions.h"
#include "macos/SystemProcessActivity.h"
#include "macos/SystemSecureInput.h"
#import "macos/TAApplicationDelegate.h"
#import "macos/TASettingsControls.h"
#include "macos/TaskProcessLauncher.h"
#include "macos/TccutilResetTool.h"
#include "macos/UptimeClock.h"
#include "macos/WorkspaceOpener.h"

namespace tactora::macos {

// The interactive application: the AppKit implementations of the program's services, the
// program itself (the controller and the parts beside it) and the delegate that forwards to it.
// Made after the shared application.
//
// Made once and never destroyed. The sensor's thread reaches the controller, and through it the
// main queue here, with every frame; stopping the multitouch framework does not promise that a
// frame it is delivering has returned, so nothing that a frame touches may go away before the
// process does. AppKit ends the process with exit() after applicationWillTerminate (which stops
// the sensor), so the application simply lives as long as the process.
class MacApplication {
  public:
    MacApplication(Sensor& sensor, TouchDevices& touchDevices,
                   std::shared_ptr<Preferences> defaults);

    MacApplication(const MacApplication&) = delete;
    MacApplication& operator=(const MacApplication&) = delete;

    // Runs the event loop until the application ends.
    void run();

  private:
    UptimeClock clock_;
    DispatchMainQueue queue_;
    AppKitWorkspace workspace_;
    SystemPermissions permissions_;
    CGEventPoster poster_;
    MachPortEventTap tap_;
    AppKitDialogs dialogs_;
    IOKitDeviceWatcher devices_;
    ServiceManagementLoginItem loginItem_;
    SystemProcessActivity activity_;
    SystemSecureInput secureInput_;
    TccutilResetTool resetTool_;
    MachPortPointerDragger dragger_;
    FileTraceSink traceSink_;
    TASettingsControls* __strong controls_;
    TAApplicationDelegate* __strong delegate_;
    AppKitProfileFiles files_;
    AppKitSettingsView view_;
    AppKitShell shell_;
    AppKitSurfaceView surface_;
    AppKitMoreSheetView moreSheet_;
    CGSystemEventPoster systemEvents_;
    WorkspaceOpener opener_;
    TaskProcessLauncher processes_;
    PanelActionValuePicker picker_;
    AppKitAdvancedSheetView advanced_;
    AppKitDeviceTableView deviceTable_;
    CFSystemPreferences systemPreferences_;
    std::unique_ptr<Tactora> program_;
};

}  // namespace tactora::macos
