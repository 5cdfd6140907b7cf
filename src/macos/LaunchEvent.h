#pragma once

#import <Foundation/Foundation.h>

#include "core/platform/LaunchOrigin.h"

namespace tactora::macos {

// Who started the application, told by the Apple event that opened it: an open-application
// event whose keyAEPropData parameter is keyAELaunchedAsLogInItem comes from the login item;
// any other event, or none, from the user.
LaunchOrigin launchOrigin(NSAppleEventDescriptor* _Nullable openEvent);

}  // namespace tactora::macos
