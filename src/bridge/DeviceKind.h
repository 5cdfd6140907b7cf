#ifndef TACTORA_BRIDGE_DEVICEKIND_H
#define TACTORA_BRIDGE_DEVICEKIND_H

/*
 * What kind of touch surface a multitouch device is, told from a few properties of its registry
 * entry or its ancestors. Pure; any thread.
 */

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
    TA_DEVICE_NAME_SIZE = 128,      /* bytes, NUL included */
    TA_ACCELERATION_TYPE_SIZE = 64, /* bytes, NUL included */
};

typedef enum TADeviceKind {
    TADeviceKindOther = 0, /* a multitouch surface that is neither, such as a touch strip */
    TADeviceKindMagicMouse = 1,
    TADeviceKindMagicTrackpad = 2,
    TADeviceKindBuiltInTrackpad = 3,
} TADeviceKind;

/*
 * The registry properties that tell a device's kind and name, each found on the device's entry
 * or its nearest ancestor that has it (the HID keys "HIDPointerAccelerationType", "Product" and
 * "Built-In" of the SDK's IOHIDEventServiceKeys.h and IOHIDDeviceKeys.h). Empty strings and
 * false where the registry has nothing.
 */
typedef struct TADeviceProperties {
    char accelerationType[TA_ACCELERATION_TYPE_SIZE];
    char product[TA_DEVICE_NAME_SIZE];
    bool builtIn;
} TADeviceProperties;

/*
 * The kind: a Magic Mouse when `isMouse` (the bridge's mouse test, which decides first so that
 * the mouse the bridge has always listened to stays a mouse); otherwise a trackpad when the
 * pointer acceleration type is the trackpad's ("HIDTrackpadAcceleration") or the product name
 * contains "Trackpad" in any case, built in when "Built-In" says so; otherwise another kind.
 * Which of these properties the system really sets on each surface is confirmed by the first
 * run on a Mac; the name rule covers a trackpad whose acceleration type sits elsewhere.
 */
TADeviceKind TAClassifyDevice(bool isMouse, const TADeviceProperties* properties);

/*
 * The mouse test over the properties: the pointer acceleration type is the mouse's
 * ("HIDMouseAcceleration"), or else the product name contains "Magic Mouse" in any case. Used
 * where the registry is a stand-in; on Apple systems the registry is asked directly.
 */
bool TAPropertiesDescribeMouse(const TADeviceProperties* properties);

/* Whether `text` contains `part`, comparing ASCII letters without regard to case. */
bool TAContainsIgnoringCase(const char* text, const char* part);

#ifdef __cplusplus
}
#endif

#endif
