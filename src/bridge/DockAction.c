#include "bridge/TouchBridge.h"

#include <stddef.h>

#include "bridge/BridgeTesting.h"
#include "bridge/LibraryLoader.h"

#ifdef __APPLE__
#include <CoreFoundation/CoreFoundation.h>
#endif

typedef int32_t (*TADockSend)(const void* notification, int32_t flags);

static const char systemDockPath[] =
    "/System/Library/Frameworks/ApplicationServices.framework/Frameworks/HIServices.framework/"
    "HIServices";

static const char* dockPath = systemDockPath;
static void* dockLibrary = NULL;
static TADockSend dockSend = NULL;

/* The Dock takes CoreFoundation strings; a stand-in library off Apple systems gets C strings. */
static const void* notificationName(int32_t desktop) {
#ifdef __APPLE__
    return desktop != 0 ? CFSTR("com.apple.showdesktop.awake") : CFSTR("com.apple.expose.awake");
#else
    return desktop != 0 ? "com.apple.showdesktop.awake" : "com.apple.expose.awake";
#endif
}

/* The Dock call, loaded on first use; NULL when it is not available. Failures are not
   remembered: a later call looks again. */
static TADockSend loadDockSend(void) {
    if (dockLibrary == NULL) {
        dockLibrary = TAOpenLibrary(dockPath);
    }
    if (dockSend == NULL && dockLibrary != NULL) {
        dockSend = (TADockSend)TALookUpFunction(dockLibrary, "CoreDockSendNotification");
    }
    return dockSend;
}

int32_t TADesktopAction(int32_t desktop) {
    const TADockSend send = loadDockSend();
    if (send == NULL) {
        return -1;
    }
    return send(notificationName(desktop), 0);
}

int32_t TADockNotification(const char* name) {
    if (name == NULL) {
        return -1;
    }
    const TADockSend send = loadDockSend();
    if (send == NULL) {
        return -1;
    }
#ifdef __APPLE__
    CFStringRef notification =
        CFStringCreateWithCString(kCFAllocatorDefault, name, kCFStringEncodingUTF8);
    if (notification == NULL) {
        return -1;
    }
    const int32_t status = send(notification, 0);
    CFRelease(notification);
    return status;
#else
    return send(name, 0);
#endif
}

void TASetDockLibraryPath(const char* path) {
    dockPath = path != NULL ? path : systemDockPath;
    dockLibrary = NULL;
    dockSend = NULL;
}
