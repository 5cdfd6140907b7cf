#include "bridge/TouchBridge.h"

#include <stdatomic.h>
#include <stddef.h>
#include <stdio.h>
#include <string.h>

#include "bridge/BridgeTesting.h"
#include "bridge/DeviceRegistry.h"
#include "bridge/FrameFilter.h"
#include "bridge/LibraryLoader.h"
#include "bridge/MultitouchFunctions.h"
#include "bridge/TouchDevices.h"

static const char systemFrameworkPath[] =
    "/System/Library/PrivateFrameworks/MultitouchSupport.framework/MultitouchSupport";

static const char* frameworkPath = systemFrameworkPath;
static void* library = NULL; /* loaded once, never closed */
static TAMultitouchFunctions functions;
static bool running = false; /* the framework's functions are known and devices may run */
static char status[256] = "sensor.not_started";
static int32_t statusError = 0;

/* Read on the framework's thread while TAStop may clear them on the main thread. */
static _Atomic(TADeviceFrameCallback) deviceClient;
static _Atomic(TAFrameCallback) client; /* TAStart's client, reached through mouseFrame */

static TADeviceChoice choose = NULL;
static void* chooseContext = NULL;

/*
 * A listed device. `device` is the framework's object, owned by the list `list` it came from;
 * both are empty while the device is missing. Main thread only.
 */
typedef struct Slot {
    void* device;
    int32_t list;
    bool started;
    TADeviceInfo info;
} Slot;

static Slot slots[TA_MAX_DEVICES];
static int32_t slotCount = 0;
/* The device id each slot's frames are delivered under, 0 while it isn't started. Written on
 * the main thread, read on the framework's. */
static _Atomic(uint64_t) deliveredIDs[TA_MAX_DEVICES];

/*
 * Device lists from the framework, each held while a listed device came from it. The newest
 * is held until the next listing too, so a list is never released while its devices are read.
 */
typedef struct HeldList {
    const void* list;
    int32_t users;
} HeldList;

static HeldList heldLists[TA_MAX_DEVICES + 1];
static int32_t newestList = -1;

static void setStatus(const char* key) {
    snprintf(status, sizeof status, "%s", key);
}

/* --- Frames, on the framework's thread ------------------------------------------------------ */

static void deliver(int32_t slot, const void* contacts, int32_t count) {
    TAFrame kept;
    if (!TAFilterFrame(contacts, count, &kept)) {
        return;
    }
    const uint64_t id = atomic_load(&deliveredIDs[slot]);
    TADeviceFrameCallback target = atomic_load(&deviceClient);
    if (id != 0 && target != NULL) {
        target(id, &kept);
    }
}

/*
 * One handler per slot, so that a frame reaches its device's slot without looking for it: a
 * second device costs the first one's frames nothing.
 */
#define TA_SLOT_HANDLER(slot)                                                       \
    static int frameOfSlot##slot(void* device, const void* contacts, int32_t count, \
                                 double timestamp, int32_t frameNumber) {           \
        (void)device;                                                               \
        (void)timestamp;                                                            \
        (void)frameNumber;                                                          \
        deliver(slot, contacts, count);                                             \
        return 0;                                                                   \
    }
TA_SLOT_HANDLER(0)
TA_SLOT_HANDLER(1)
TA_SLOT_HANDLER(2)
TA_SLOT_HANDLER(3)
TA_SLOT_HANDLER(4)
TA_SLOT_HANDLER(5)
TA_SLOT_HANDLER(6)
TA_SLOT_HANDLER(7)
TA_SLOT_HANDLER(8)
TA_SLOT_HANDLER(9)
TA_SLOT_HANDLER(10)
TA_SLOT_HANDLER(11)
TA_SLOT_HANDLER(12)
TA_SLOT_HANDLER(13)
TA_SLOT_HANDLER(14)
TA_SLOT_HANDLER(15)
#undef TA_SLOT_HANDLER

static const TAContactFrameHandler slotHandlers[TA_MAX_DEVICES] = {
    frameOfSlot0,  frameOfSlot1,  frameOfSlot2,  frameOfSlot3,  frameOfSlot4,  frameOfSlot5,
    frameOfSlot6,  frameOfSlot7,  frameOfSlot8,  frameOfSlot9,  frameOfSlot10, frameOfSlot11,
    frameOfSlot12, frameOfSlot13, frameOfSlot14, frameOfSlot15,
};

/* TAStart's client takes the mouse's frames as three arrays. */
static void mouseFrame(uint64_t device, const TAFrame* frame) {
    (void)device;
    TAFrameCallback target = atomic_load(&client);
    if (target != NULL) {
        target(frame->count, frame->ids, frame->xs, frame->ys);
    }
}

/* --- Held lists ------------------------------------------------------------------------------ */

static int32_t holdList(const void* list) {
    for (int32_t index = 0; index <= TA_MAX_DEVICES; ++index) {
        if (heldLists[index].list == NULL) {
            heldLists[index] = (HeldList){list, 0};
            return index;
        }
    }
    return -1; /* unreachable: each held list but the newest has a listed device */
}

static void releaseListIfUnused(int32_t index) {
    if (index >= 0 && index != newestList && heldLists[index].users == 0 &&
        heldLists[index].list != NULL) {
        TAReleaseDevices(heldLists[index].list);
        heldLists[index].list = NULL;
    }
}

static void dropListUser(int32_t index) {
    if (index >= 0) {
        --heldLists[index].users;
        releaseListIfUnused(index);
    }
}

/* --- Starting and stopping one device -------------------------------------------------------- */

static void stopSlot(int32_t index) {
    Slot* slot = &slots[index];
    if (!slot->started) {
        return;
    }
    atomic_store(&deliveredIDs[index], 0);
    functions.unregisterHandler(slot->device, slotHandlers[index]);
    functions.stop(slot->device);
    slot->started = false;
}

static void startSlot(int32_t index) {
    Slot* slot = &slots[index];
    /* A device without an id still needs a non-zero one for its frames. */
    atomic_store(&deliveredIDs[index], slot->info.id != 0 ? slot->info.id : (uint64_t)index + 1);
    functions.registerHandler(slot->device, slotHandlers[index]);
    slot->started = true;
    const int32_t code = functions.start(slot->device, 0);
    if (code == 0) {
        slot->info.state = TADeviceStateConnected;
        slot->info.error = 0;
        return;
    }
    stopSlot(index);
    slot->info.state = TADeviceStateBlocked;
    slot->info.error = code;
}

static void leave(int32_t index) {
    Slot* slot = &slots[index];
    stopSlot(index);
    dropListUser(slot->list);
    slot->device = NULL;
    slot->list = -1;
    slot->info.state = TADeviceStateMissing;
    slot->info.error = 0;
}

/* --- Listing --------------------------------------------------------------------------------- */

static int32_t presentSlotFor(void* device, uint64_t id) {
    for (int32_t index = 0; index < slotCount; ++index) {
        const Slot* slot = &slots[index];
        if (slot->device != NULL && (id != 0 ? slot->info.id == id : slot->device == device)) {
            return index;
        }
    }
    return -1;
}

/* A missing entry of the same kind and name takes the device back; else a new or reused one. */
static int32_t freeSlotFor(TADeviceKind kind, const char* name) {
    int32_t firstMissing = -1;
    for (int32_t index = 0; index < slotCount; ++index) {
        const Slot* slot = &slots[index];
        if (slot->info.state != TADeviceStateMissing) {
            continue;
        }
        if (slot->info.kind == kind && strcmp(slot->info.name, name) == 0) {
            return index;
        }
        if (firstMissing < 0) {
            firstMissing = index;
        }
    }
    if (slotCount < TA_MAX_DEVICES) {
        return slotCount++;
    }
    return firstMissing;
}

static void take(int32_t index, void* device, int32_t list, uint64_t id, TADeviceKind kind,
                 const char* name) {
    Slot* slot = &slots[index];
    slot->device = device;
    slot->list = list;
    slot->started = false;
    ++heldLists[list].users;
    slot->info = (TADeviceInfo){.id = id, .kind = kind, .state = TADeviceStateOff};
    snprintf(slot->info.name, sizeof slot->info.name, "%s", name);
}

/* Lists the framework's devices; `seen[i]` tells whether slot i is still connected. */
static bool list(bool seen[TA_MAX_DEVICES]) {
    bool changed = false;
    const void* devices = functions.createList();
    const int32_t previous = newestList;
    newestList = -1;
    releaseListIfUnused(previous);
    if (devices != NULL) {
        newestList = holdList(devices);
        if (newestList < 0) {
            TAReleaseDevices(devices);
            devices = NULL;
        }
    }
    const int64_t count = devices != NULL ? TADeviceCount(devices) : 0;
    for (int64_t position = 0; position < count; ++position) {
        void* device = TADeviceAt(devices, position);
        const uint32_t service = functions.getService(device);
        const uint64_t id = TAServiceEntryID(service);
        int32_t index = presentSlotFor(device, id);
        if (index < 0) {
            TADeviceKind kind = TADeviceKindOther;
            char name[TA_DEVICE_NAME_SIZE] = "";
            TADescribeService(service, &kind, name);
            index = freeSlotFor(kind, name);
            if (index < 0) {
                continue; /* every entry holds a connected device */
            }
            take(index, device, newestList, id, kind, name);
            changed = true;
        }
        seen[index] = true;
    }
    return changed;
}

static bool applyChoice(void) {
    bool changed = false;
    for (int32_t index = 0; index < slotCount; ++index) {
        Slot* slot = &slots[index];
        if (slot->device == NULL) {
            continue;
        }
        const bool wanted = choose != NULL && choose(chooseContext, &slot->info);
        if (wanted && slot->info.state == TADeviceStateOff) {
            startSlot(index);
            changed = true;
        } else if (!wanted && slot->info.state != TADeviceStateOff) {
            stopSlot(index);
            slot->info.state = TADeviceStateOff;
            slot->info.error = 0;
            changed = true;
        }
    }
    return changed;
}

static bool refresh(void) {
    bool seen[TA_MAX_DEVICES] = {false};
    bool changed = list(seen);
    for (int32_t index = 0; index < slotCount; ++index) {
        if (!seen[index] && slots[index].device != NULL) {
            leave(index);
            changed = true;
        }
    }
    return applyChoice() || changed;
}

static const Slot* firstMouseInUse(void) {
    for (int32_t index = 0; index < slotCount; ++index) {
        const Slot* slot = &slots[index];
        if (slot->info.kind == TADeviceKindMagicMouse &&
            (slot->info.state == TADeviceStateConnected ||
             slot->info.state == TADeviceStateBlocked)) {
            return slot;
        }
    }
    return NULL;
}

static void showMouseStatus(void) {
    const Slot* mouse = firstMouseInUse();
    if (mouse == NULL) {
        statusError = 0;
        setStatus("sensor.missing");
    } else if (mouse->info.state == TADeviceStateConnected) {
        statusError = 0;
        setStatus("sensor.connected");
    } else {
        statusError = mouse->info.error;
        setStatus("sensor.blocked");
    }
}

/* --- Connecting ------------------------------------------------------------------------------ */

static bool loadFramework(void) {
    if (library == NULL) {
        library = TAOpenLibrary(frameworkPath);
    }
    if (library == NULL) {
        setStatus("sensor.unavailable");
        return false;
    }
    if (!TALookUpMultitouchFunctions(library, &functions)) {
        setStatus("sensor.incompatible");
        return false;
    }
    return true;
}

static bool connect(TADeviceFrameCallback frames, TAFrameCallback mouseClient,
                    TADeviceChoice chooser, void* context) {
    TAStop();
    statusError = 0;
    if (!loadFramework()) {
        return false;
    }
    running = true;
    choose = chooser;
    chooseContext = context;
    atomic_store(&client, mouseClient);
    atomic_store(&deviceClient, frames);
    refresh();
    return true;
}

int32_t TAStartDevices(TADeviceFrameCallback newClient, TADeviceChoice chooser, void* context) {
    if (!connect(newClient, NULL, chooser, context)) {
        return 0;
    }
    showMouseStatus();
    return 1;
}

/* TAStart listens to the first mouse in list order and nothing else. */
static bool mouseChosen = false;
static uint64_t chosenMouse = 0;

static bool firstMouseOnly(void* context, const TADeviceInfo* device) {
    (void)context;
    if (device->kind != TADeviceKindMagicMouse) {
        return false;
    }
    if (!mouseChosen) {
        mouseChosen = true;
        chosenMouse = device->id;
    }
    return device->id == chosenMouse;
}

int32_t TAStart(TAFrameCallback newClient) {
    mouseChosen = false;
    if (!connect(mouseFrame, newClient, firstMouseOnly, NULL)) {
        return 0;
    }
    const Slot* mouse = firstMouseInUse();
    if (mouse == NULL) {
        setStatus("sensor.missing");
        return 0;
    }
    if (mouse->info.state == TADeviceStateConnected) {
        setStatus("sensor.connected");
        return 1;
    }
    const int32_t code = mouse->info.error;
    TAStop();
    statusError = code;
    setStatus("sensor.blocked");
    return 0;
}

int32_t TARefreshDevices(void) {
    if (!running) {
        return 0;
    }
    const bool changed = refresh();
    showMouseStatus();
    return changed ? 1 : 0;
}

void TAStop(void) {
    for (int32_t index = 0; index < slotCount; ++index) {
        stopSlot(index);
    }
    slotCount = 0;
    for (int32_t index = 0; index <= TA_MAX_DEVICES; ++index) {
        if (heldLists[index].list != NULL) {
            TAReleaseDevices(heldLists[index].list);
            heldLists[index].list = NULL;
        }
    }
    newestList = -1;
    running = false;
    choose = NULL;
    chooseContext = NULL;
    atomic_store(&deviceClient, NULL);
    atomic_store(&client, NULL);
}

/* --- Questions ------------------------------------------------------------------------------- */

const char* TAStatus(void) {
    return status;
}

int32_t TAStatusError(void) {
    return statusError;
}

bool TAIsMouseSender(uint64_t senderID) {
    return senderID != 0 && TAIsMouseRegistryEntry(senderID);
}

int32_t TAKnownDeviceCount(void) {
    return slotCount;
}

bool TAKnownDevice(int32_t index, TADeviceInfo* device) {
    if (index < 0 || index >= slotCount) {
        return false;
    }
    *device = slots[index].info;
    return true;
}

uint64_t TADeviceForSender(uint64_t senderID) {
    if (senderID == 0) {
        return 0;
    }
    for (int32_t index = 0; index < slotCount; ++index) {
        if (slots[index].started && slots[index].info.id == senderID) {
            return senderID;
        }
    }
    TADeviceKind kind = TADeviceKindOther;
    char name[TA_DEVICE_NAME_SIZE] = "";
    if (!TADescribeRegistryEntry(senderID, &kind, name) || kind == TADeviceKindOther) {
        return 0;
    }
    const Slot* sameKind = NULL;
    int32_t sameKindCount = 0;
    for (int32_t index = 0; index < slotCount; ++index) {
        const Slot* slot = &slots[index];
        if (!slot->started || slot->info.kind != kind) {
            continue;
        }
        if (strcmp(slot->info.name, name) == 0) {
            return slot->info.id;
        }
        sameKind = slot;
        ++sameKindCount;
    }
    return sameKindCount == 1 ? sameKind->info.id : 0;
}

void TASetFrameworkPath(const char* path) {
    TAStop();
    frameworkPath = path != NULL ? path : systemFrameworkPath;
    library = NULL;
}
