#pragma once

#include <memory>

#include "core/app/DeviceEvents.h"
#include "core/app/ExtraActionPerformer.h"
#include "core/app/GestureExtension.h"
#include "core/app/TouchJudge.h"
#include "core/platform/AppShell.h"
#include "core/platform/Clock.h"
#include "core/platform/DeviceWatcher.h"
#include "core/platform/Dialogs.h"
#include "core/platform/EventPoster.h"
#include "core/platform/EventTap.h"
#include "core/platform/LoginItem.h"
#include "core/platform/MainQueue.h"
#include "core/platform/PermissionResetTool.h"
#include "core/platform/Permissions.h"
#include "core/platform/PointerDragger.h"
#include "core/platform/ProcessActivity.h"
#include "core/platform/ProfileFiles.h"
#include "core/platform/SecureInput.h"
#include "core/platform/Sensor.h"
#include "core/platform/SettingsView.h"
#include "core/platform/SurfaceView.h"
#include "core/platform/TraceSink.h"
#include "core/platform/Workspace.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// Everything the controller reaches the system and the interface through. The referenced
// objects must outlive the controller.
struct ControllerServices {
    Clock& clock;
    MainQueue& queue;
    Workspace& workspace;
    Permissions& permissions;
    EventPoster& poster;
    EventTap& tap;
    Sensor& sensor;
    AppShell& shell;
    SettingsView& view;
    Dialogs& dialogs;
    // Where recorded touch traces are written.
    TraceSink& traceSink;
    // The domain the work profiles are kept in (the standard user defaults).
    std::shared_ptr<Preferences> defaults;
    // The settings window's live view of the touch surface.
    SurfaceView& surface;
    // Where profiles are exported to and imported from.
    ProfileFiles& files;
    // What keeps gestures working by themselves: devices coming and going, the login item,
    // the activity that keeps the process from napping, secure input and the permission reset.
    DeviceWatcher& devices;
    LoginItem& loginItem;
    ProcessActivity& activity;
    SecureInput& secureInput;
    PermissionResetTool& resetTool;
    // Turns the pointer's moves into drags while a tap and hold holds a button.
    PointerDragger& dragger;
    // Carries out the further actions and chooses their values; they do nothing without it.
    std::shared_ptr<ExtraActionPerformer> extraActions;
    // Has a say in what touches become (the options against accidents, the tap's limits); the
    // recogniser decides alone without it.
    std::shared_ptr<TouchJudge> judge;
    // Recognises the gestures beyond the recogniser's; none without it.
    std::shared_ptr<GestureExtension> extension;
    // Decides the events of the touch devices in use beside the Magic Mouse; they pass
    // untouched without it.
    std::shared_ptr<DeviceEvents> deviceEvents;
};

}  // namespace tactora
