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
/* TAStart got as far as the framework's functions and no TAStop came since. */
static bool running = false;
static char status[256] = "sensor.not_started";
static int32_t statusError = 0;

/* The Magic Mouse that TAStart took, and the held list (below) it came from. */
static void* mouse = NULL;
static int32_t mouseList = -1;
static uint64_t deviceEntryID = 0; /* of `mouse` while frames flow */
/* Read on the framework's thread while TAStop may clear it on the main thread. */
static _Atomic(TAFrameCallback) client;
/*
 * TAStart's client, kept until TAStop even while no mouse runs, so that a refresh can hand it a
 * Magic Mouse that arrives later. Main thread only.
 */
static TAFrameCallback startClient = NULL;

/* The devices beside the mouse: the client's choice and where their frames go. */
static TADeviceChoice choose = NULL;
static void* chooseContext = NULL;
static _Atomic(TADeviceFrameCallback) deviceClient;

/*
 * A listed device. `device` is the framework's object, owned by the held list `list` it came
 * from; both are empty while the device is missing. `started` is true while the bridge runs it
 * beside the mouse; the mouse itself runs through TAStart's own handler. Main thread only.
 */
typedef struct Slot {
    void* device;
    int32_t list;
    bool started;
    TADeviceInfo info;
} Slot;

static Slot slots[TA_MAX_DEVICES];
static int32_t slotCount = 0;
/* The entry of the mouse that TAStart took, -1 when none; the choice is never asked about it. */
static int32_t mouseEntry = -1;
/* The device id each slot's frames are delivered under, 0 while it isn't started. Written on
 * the main thread, read on the framework's. */
static _Atomic(uint64_t) deliveredIDs[TA_MAX_DEVICES];

/*
 * Device lists from the framework, each held while a listed device or the mouse came from it.
 * The newest is held until the next listing too, so a list is never released while its devices
 * are read; until a refresh, TAStart's list stays held until TAStop as it always has. At most
 * every slot's list, the mouse's and the newest are held at once.
 */
typedef struct HeldList {
    const void* list;
    int32_t users;
} HeldList;

enum { HELD_LIST_CAPACITY = TA_MAX_DEVICES + 2 };
static HeldList heldLists[HELD_LIST_CAPACITY];
static int32_t newestList = -1;

static void setStatus(const char* key) {
    snprintf(status, sizeof status, "%s", key);
}

/* --- Frames, on the framework's thread ------------------------------------------------------ */

static int frame(void* source, const void* contacts, int32_t count, double timestamp,
                 int32_t frameNumber) {
    (void)source;
    (void)timestamp;
    (void)frameNumber;
    TAFrame kept;
    if (!TAFilterFrame(contacts, count, &kept)) {
        return 0;
    }
    TAFrameCallback target = atomic_load(&client);
    if (target != NULL) {
        target(kept.count, kept.ids, kept.xs, kept.ys, kept.shapes);
    }
    return 0;
}

static int deliver(int32_t slot, const void* contacts, int32_t count) {
    TAFrame kept;
    if (!TAFilterFrame(contacts, count, &kept)) {
        return 0;
    }
    const uint64_t id = atomic_load(&deliveredIDs[slot]);
    TADeviceFrameCallback target = atomic_load(&deviceClient);
    if (id != 0 && target != NULL) {
        target(id, &kept);
    }
    return 0;
}

/*
 * One handler per slot, so that a frame reaches its device's slot without looking for it: a
 * second device costs the first one's frames nothing.
 */
static int frameOfSlot0(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(0, contacts, count);
}
static int frameOfSlot1(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(1, contacts, count);
}
static int frameOfSlot2(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(2, contacts, count);
}
static int frameOfSlot3(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(3, contacts, count);
}
static int frameOfSlot4(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(4, contacts, count);
}
static int frameOfSlot5(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(5, contacts, count);
}
static int frameOfSlot6(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(6, contacts, count);
}
static int frameOfSlot7(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(7, contacts, count);
}
static int frameOfSlot8(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(8, contacts, count);
}
static int frameOfSlot9(void* device, const void* contacts, int32_t count, double timestamp,
                        int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(9, contacts, count);
}
static int frameOfSlot10(void* device, const void* contacts, int32_t count, double timestamp,
                         int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(10, contacts, count);
}
static int frameOfSlot11(void* device, const void* contacts, int32_t count, double timestamp,
                         int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(11, contacts, count);
}
static int frameOfSlot12(void* device, const void* contacts, int32_t count, double timestamp,
                         int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(12, contacts, count);
}
static int frameOfSlot13(void* device, const void* contacts, int32_t count, double timestamp,
                         int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(13, contacts, count);
}
static int frameOfSlot14(void* device, const void* contacts, int32_t count, double timestamp,
                         int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(14, contacts, count);
}
static int frameOfSlot15(void* device, const void* contacts, int32_t count, double timestamp,
                         int32_t frameNumber) {
    (void)device, (void)timestamp, (void)frameNumber;
    return deliver(15, contacts, count);
}

static const TAContactFrameHandler slotHandlers[TA_MAX_DEVICES] = {
    frameOfSlot0,  frameOfSlot1,  frameOfSlot2,  frameOfSlot3,  frameOfSlot4,  frameOfSlot5,
    frameOfSlot6,  frameOfSlot7,  frameOfSlot8,  frameOfSlot9,  frameOfSlot10, frameOfSlot11,
    frameOfSlot12, frameOfSlot13, frameOfSlot14, frameOfSlot15,
};

/* --- Held lists ------------------------------------------------------------------------------ */

static int32_t holdList(const void* list) {
    for (int32_t index = 0; index < HELD_LIST_CAPACITY; ++index) {
        if (heldLists[index].list == NULL) {
            heldLists[index] = (HeldList){list, 0};
            return index;
        }
    }
    return -1; /* unreachable: see HELD_LIST_CAPACITY */
}

static void releaseListIfUnused(int32_t index) {
    if (index >= 0 && index != newestList && heldLists[index].users == 0 &&
        heldLists[index].list != NULL) {
        TAReleaseDevices(heldLists[index].list);
        heldLists[index].list = NULL;
    }
}

static void addListUser(int32_t index) {
    if (index >= 0) {
        ++heldLists[index].users;
    }
}

static void dropListUser(int32_t index) {
    if (index >= 0) {
        --heldLists[index].users;
        releaseListIfUnused(index);
    }
}

static void releaseEveryList(void) {
    for (int32_t index = 0; index < HELD_LIST_CAPACITY; ++index) {
        if (heldLists[index].list != NULL) {
            TAReleaseDevices(heldLists[index].list);
        }
        heldLists[index] = (HeldList){NULL, 0};
    }
    newestList = -1;
}

/* --- The devices beside the mouse, one at a time -------------------------------------------- */

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

static void switchOff(int32_t index) {
    stopSlot(index);
    slots[index].info.state = TADeviceStateOff;
    slots[index].info.error = 0;
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

/*
 * The mouse's entry only says that it is gone: its connection is ended by TAStart, or by the
 * refresh that follows the mouse (followMouse). A mouse that comes back is another device.
 */
static void leave(int32_t index) {
    Slot* slot = &slots[index];
    if (index == mouseEntry) {
        mouseEntry = -1;
    }
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

static void take(int32_t index, void* device, uint64_t id, TADeviceKind kind, const char* name) {
    Slot* slot = &slots[index];
    slot->device = device;
    slot->list = newestList;
    slot->started = false;
    addListUser(newestList);
    slot->info = (TADeviceInfo){.id = id, .kind = kind, .state = TADeviceStateOff};
    snprintf(slot->info.name, sizeof slot->info.name, "%s", name);
}

/* Makes `devices` (NULL for none) the newest list and releases the one before if unused. */
static void holdNewest(const void* devices) {
    const int32_t previous = newestList;
    newestList = -1;
    releaseListIfUnused(previous);
    if (devices != NULL) {
        newestList = holdList(devices);
        if (newestList < 0) {
            TAReleaseDevices(devices);
        }
    }
}

/* Lists the newest list's devices; `seen[i]` tells whether slot i is in it. */
static bool list(bool seen[TA_MAX_DEVICES]) {
    bool changed = false;
    const void* devices = newestList >= 0 ? heldLists[newestList].list : NULL;
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
            take(index, device, id, kind, name);
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
        if (slot->device == NULL || index == mouseEntry) {
            continue;
        }
        const bool wanted = choose != NULL && choose(chooseContext, &slot->info);
        if (wanted && slot->info.state == TADeviceStateOff) {
            startSlot(index);
            changed = true;
        } else if (!wanted && slot->info.state != TADeviceStateOff) {
            switchOff(index);
            changed = true;
        }
    }
    return changed;
}

/* --- Connecting ------------------------------------------------------------------------------ */

static void* firstMouse(const void* devices) {
    int64_t count = TADeviceCount(devices);
    for (int64_t index = 0; index < count; ++index) {
        void* candidate = TADeviceAt(devices, index);
        if (TAIsMouseService(functions.getService(candidate))) {
            return candidate;
        }
    }
    return NULL;
}

static int32_t entryOf(const void* device) {
    for (int32_t index = 0; index < slotCount; ++index) {
        if (slots[index].device == device) {
            return index;
        }
    }
    return -1;
}

/* Marks the mouse's entry, when the listing could give it one. */
static void setMouseState(TADeviceState state, int32_t error) {
    if (mouseEntry >= 0) {
        slots[mouseEntry].info.state = state;
        slots[mouseEntry].info.error = error;
    }
}

/* Ends the mouse's connection alone; its entry stays. */
static void stopMouse(void) {
    deviceEntryID = 0;
    if (mouse != NULL) {
        functions.unregisterHandler(mouse, frame);
        functions.stop(mouse);
        mouse = NULL;
        dropListUser(mouseList);
        mouseList = -1;
    }
    atomic_store(&client, NULL);
}

/*
 * Takes `found`, a device of the newest list listed at `entry` (-1 for none), as the mouse and
 * starts it for TAStart's client. Returns the start's code; on success frames flow and the
 * status says so. A failure is left for the caller to report, since TAStart without a choice
 * ends everything then.
 */
static int32_t startMouse(void* found, int32_t entry) {
    mouse = found;
    mouseEntry = entry;
    mouseList = newestList;
    addListUser(mouseList);
    atomic_store(&client, startClient);
    functions.registerHandler(mouse, frame);
    const int32_t code = functions.start(mouse, 0);
    if (code == 0) {
        deviceEntryID = TAServiceEntryID(functions.getService(mouse));
        setMouseState(TADeviceStateConnected, 0);
        setStatus("sensor.connected");
    } else {
        setMouseState(TADeviceStateBlocked, code);
    }
    return code;
}

/* Reports a mouse that could not be started, and stops what it left registered. */
static void blockMouse(int32_t code) {
    stopMouse();
    statusError = code;
    setStatus("sensor.blocked");
}

/* Whether a device chosen beside the mouse delivers frames. */
static bool othersFlow(void) {
    for (int32_t index = 0; index < slotCount; ++index) {
        if (slots[index].info.state == TADeviceStateConnected && index != mouseEntry) {
            return true;
        }
    }
    return false;
}

/*
 * TAStart's result: frames flow from the mouse or, while a choice is given, from a device
 * chosen beside it, so that a Mac whose only surface in use is a trackpad still counts as
 * running. The status keys keep speaking for the mouse alone.
 */
static int32_t startResult(void) {
    return mouse != NULL || (choose != NULL && othersFlow()) ? 1 : 0;
}

int32_t TAStart(TAFrameCallback newClient) {
    TAStop();
    statusError = 0;
    slotCount = 0;
    mouseEntry = -1;
    startClient = newClient;
    if (library == NULL) {
        library = TAOpenLibrary(frameworkPath);
    }
    if (library == NULL) {
        setStatus("sensor.unavailable");
        return 0;
    }
    if (!TALookUpMultitouchFunctions(library, &functions)) {
        setStatus("sensor.incompatible");
        return 0;
    }
    running = true;
    holdNewest(functions.createList());
    const void* devices = newestList >= 0 ? heldLists[newestList].list : NULL;
    void* found = devices != NULL ? firstMouse(devices) : NULL;
    bool seen[TA_MAX_DEVICES] = {false};
    list(seen);
    if (found == NULL) {
        setStatus("sensor.missing");
        applyChoice();
        return startResult();
    }
    const int32_t code = startMouse(found, entryOf(found));
    if (code != 0 && choose == NULL) {
        /* Only the mouse was ever wanted: end everything, as a failed start always has. */
        TAStop();
        statusError = code;
        setStatus("sensor.blocked");
        return 0;
    }
    if (code != 0) {
        blockMouse(code);
    }
    applyChoice();
    return startResult();
}

void TAStop(void) {
    if (mouse != NULL && mouseEntry >= 0 &&
        slots[mouseEntry].info.state == TADeviceStateConnected) {
        setMouseState(TADeviceStateOff, 0);
    }
    stopMouse();
    for (int32_t index = 0; index < slotCount; ++index) {
        Slot* slot = &slots[index];
        if (slot->started) {
            switchOff(index);
        }
        slot->device = NULL;
        slot->list = -1;
    }
    releaseEveryList();
    mouseList = -1;
    startClient = NULL;
    running = false;
}

/* --- The devices beside the mouse ------------------------------------------------------------ */

void TAUseOtherDevices(TADeviceFrameCallback newClient, TADeviceChoice chooser, void* context) {
    atomic_store(&deviceClient, newClient);
    choose = chooser;
    chooseContext = context;
    if (chooser == NULL) {
        for (int32_t index = 0; index < slotCount; ++index) {
            const bool inUse =
                slots[index].started || slots[index].info.state == TADeviceStateBlocked;
            if (inUse && index != mouseEntry) {
                switchOff(index);
            }
        }
    }
}

/*
 * The first Magic Mouse of the newest list that nothing uses yet, and its entry: a mouse chosen
 * beside the one TAStart takes stays where it is, so that following the mouse never touches
 * another device.
 */
static void* freeMouse(int32_t* entry) {
    const void* devices = newestList >= 0 ? heldLists[newestList].list : NULL;
    const int64_t count = devices != NULL ? TADeviceCount(devices) : 0;
    for (int64_t position = 0; position < count; ++position) {
        void* candidate = TADeviceAt(devices, position);
        const uint32_t service = functions.getService(candidate);
        const int32_t index = presentSlotFor(candidate, TAServiceEntryID(service));
        const bool inUseBeside = index >= 0 && slots[index].info.state != TADeviceStateOff;
        if (!inUseBeside && TAIsMouseService(service)) {
            *entry = index;
            return candidate;
        }
    }
    return NULL;
}

/*
 * While a choice is given the devices beside the mouse keep running whatever the mouse does, so
 * the refresh that sees it come and go also takes its connection along, where otherwise only
 * TAStart would: a mouse that left is stopped, and one that arrives while none is TAStart's is
 * started for TAStart's client. A blocked mouse stays TAStart's, tried again only by TAStart,
 * like every blocked device. `mouseLeft` tells that the listing found TAStart's mouse gone; the
 * mouse still holds the list it came from, so its device is valid until stopped here.
 */
static bool followMouse(bool mouseLeft) {
    bool changed = false;
    if (mouseLeft) {
        stopMouse();
        statusError = 0;
        setStatus("sensor.missing");
        changed = true;
    }
    if (mouseEntry >= 0 || mouse != NULL) {
        return changed;
    }
    int32_t entry = -1;
    void* found = freeMouse(&entry);
    if (found == NULL) {
        return changed;
    }
    statusError = 0;
    const int32_t code = startMouse(found, entry);
    if (code != 0) {
        blockMouse(code);
    }
    return true;
}

int32_t TARefreshDevices(void) {
    if (!running) {
        return 0;
    }
    holdNewest(functions.createList());
    bool seen[TA_MAX_DEVICES] = {false};
    bool changed = list(seen);
    bool mouseLeft = false;
    for (int32_t index = 0; index < slotCount; ++index) {
        if (!seen[index] && slots[index].device != NULL) {
            mouseLeft = mouseLeft || index == mouseEntry;
            leave(index);
            changed = true;
        }
    }
    if (choose != NULL && followMouse(mouseLeft)) {
        changed = true;
    }
    return applyChoice() || changed ? 1 : 0;
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

/* The entries a sender may stand for: the devices in use beside the mouse, and the mouse. */
static bool inUse(int32_t index) {
    return slots[index].started || (index == mouseEntry && deviceEntryID != 0);
}

/* The id of the one entry in use that matches, 0 for the mouse, for none or for several. */
static uint64_t onlyMatch(TADeviceKind kind, const char* name) {
    int32_t match = -1;
    int32_t matches = 0;
    for (int32_t index = 0; index < slotCount; ++index) {
        const Slot* slot = &slots[index];
        if (inUse(index) && slot->info.kind == kind &&
            (name == NULL || strcmp(slot->info.name, name) == 0)) {
            match = index;
            ++matches;
        }
    }
    if (matches != 1 || match == mouseEntry) {
        return 0;
    }
    return slots[match].info.id;
}

/*
 * An input event's sender is the pointing service of the device, not the multitouch service
 * the bridge lists, so it is matched by what the registry says of it: its kind, and its name
 * where several devices of that kind are in use.
 */
uint64_t TADeviceForSender(uint64_t senderID) {
    if (senderID == 0 || senderID == deviceEntryID) {
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
    const uint64_t byName = onlyMatch(kind, name);
    return byName != 0 ? byName : onlyMatch(kind, NULL);
}

/* --- Questions ------------------------------------------------------------------------------- */

const char* TAStatus(void) {
    return status;
}

int32_t TAStatusError(void) {
    return statusError;
}

uint64_t TAConnectedDevice(void) {
    return deviceEntryID;
}

bool TAIsMouseSender(uint64_t senderID) {
    return senderID != 0 && TAIsMouseRegistryEntry(senderID);
}

void TASetFrameworkPath(const char* path) {
    TAStop();
    frameworkPath = path != NULL ? path : systemFrameworkPath;
    library = NULL;
}
