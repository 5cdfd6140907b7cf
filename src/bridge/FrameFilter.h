#ifndef TACTORA_BRIDGE_FRAMEFILTER_H
#define TACTORA_BRIDGE_FRAMEFILTER_H

/*
 * Reduces one raw contact frame of the multitouch framework to the contacts that touch the
 * surface. Pure and allocation-free; called on the framework's thread.
 *
 * A raw frame is `count` records of TA_CONTACT_RECORD_SIZE bytes each, in no particular
 * alignment: identifier (32-bit integer) at byte 16, state (32-bit integer) at 20, normalised
 * x (32-bit float) at 32 and y at 36; the contact's size at 48, the angle of its long axis at
 * 56 and the lengths of its major and minor axes at 60 and 64 (32-bit floats each).
 */

#include <stdbool.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum {
    TA_CONTACT_RECORD_SIZE = 96,
    TA_MAX_FRAME_CONTACTS = 32, /* more than this is not a real frame */
    TA_MAX_KEPT_CONTACTS = 16,
    TA_SHAPE_VALUES = 4, /* size, angle, major axis, minor axis */
};

/* The touching contacts of one frame, in record order. */
typedef struct TAFrame {
    int32_t count;
    int32_t ids[TA_MAX_KEPT_CONTACTS];
    float xs[TA_MAX_KEPT_CONTACTS];
    float ys[TA_MAX_KEPT_CONTACTS];
    float shapes[TA_MAX_KEPT_CONTACTS * TA_SHAPE_VALUES];
} TAFrame;

/*
 * Fills `frame` with the first 16 records in state 3 or 4 (touching). Returns false, leaving
 * `frame` unspecified, when the frame must be dropped: more than 32 records, or no records
 * pointer with a non-zero count. A negative count carries no records.
 */
bool TAFilterFrame(const void* contacts, int32_t count, TAFrame* frame);

#ifdef __cplusplus
}
#endif

#endif
