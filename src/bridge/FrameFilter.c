#include "bridge/FrameFilter.h"

#include <string.h>

enum {
    ID_OFFSET = 16,
    STATE_OFFSET = 20,
    X_OFFSET = 32,
    Y_OFFSET = 36,
    SIZE_OFFSET = 48,
    ANGLE_OFFSET = 56,
    MAJOR_AXIS_OFFSET = 60,
    MINOR_AXIS_OFFSET = 64,
    STATE_TOUCHING = 3,
    STATE_PRESSING = 4,
};

/* Records come from the framework with no alignment promise, so fields are copied out. */
static int32_t readInt(const unsigned char* record, int offset) {
    int32_t value;
    memcpy(&value, record + offset, sizeof value);
    return value;
}

static float readFloat(const unsigned char* record, int offset) {
    float value;
    memcpy(&value, record + offset, sizeof value);
    return value;
}

static bool isTouching(int32_t state) {
    return state == STATE_TOUCHING || state == STATE_PRESSING;
}

bool TAFilterFrame(const void* contacts, int32_t count, TAFrame* frame) {
    if (count > TA_MAX_FRAME_CONTACTS || (contacts == NULL && count != 0)) {
        return false;
    }
    const unsigned char* records = contacts;
    frame->count = 0;
    for (int32_t index = 0; index < count && frame->count < TA_MAX_KEPT_CONTACTS; ++index) {
        const unsigned char* record = records + (size_t)index * TA_CONTACT_RECORD_SIZE;
        if (!isTouching(readInt(record, STATE_OFFSET))) {
            continue;
        }
        frame->ids[frame->count] = readInt(record, ID_OFFSET);
        frame->xs[frame->count] = readFloat(record, X_OFFSET);
        frame->ys[frame->count] = readFloat(record, Y_OFFSET);
        float* shape = frame->shapes + (size_t)frame->count * TA_SHAPE_VALUES;
        shape[0] = readFloat(record, SIZE_OFFSET);
        shape[1] = readFloat(record, ANGLE_OFFSET);
        shape[2] = readFloat(record, MAJOR_AXIS_OFFSET);
        shape[3] = readFloat(record, MINOR_AXIS_OFFSET);
        ++frame->count;
    }
    return true;
}
