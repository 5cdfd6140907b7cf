#pragma once

#include <cstdint>
#include <vector>

#include "core/trace/TraceLine.h"
#include "corpus/Dice.h"

// How a hand's contacts become what the touch sensor reports. The numbers are a model, chosen
// to resemble what such sensors report, not measurements: about 90 frames a second with a
// millisecond or two of jitter, positions that shake by a fraction of a millimetre, contacts
// that grow over their first frames as the skin flattens, and the shapes of a fingertip (small,
// nearly round), a thumb on its side (longer, larger) and a palm (several times a fingertip).
namespace tactora::corpus {

// One contact as the hand makes it: where and when it lands, how it drifts, when it lifts.
struct PlannedContact {
    double land = 0;
    double lift = 0;
    double x = 0.5;
    double y = 0.5;
    double driftX = 0;  // surface units per second
    double driftY = 0;
    ContactShape shape;
    // Moments at which the sensor loses the contact for one frame (a finger easing off).
    std::vector<double> dropouts;
};

// A mouse event at its time.
struct PlannedEvent {
    double time = 0;
    TraceMouseEvent event;
};

// Typical contact shapes, each drawn a little differently every time.
ContactShape fingertip(Dice& dice);
ContactShape thumb(Dice& dice);
ContactShape palm(Dice& dice);

// The sensor: turns contacts and mouse events into trace lines in time order, frames sampled
// on the sensor's own jittered clock while anything touches, and one empty frame when the last
// contact has gone. Contact ids are the lowest free numbers from 1, kept while a contact stays.
std::vector<TraceLine> sense(const std::vector<PlannedContact>& contacts,
                             const std::vector<PlannedEvent>& events, Dice& dice);

// A time rounded to a tenth of a millisecond, so that the trace stays short and exact.
double rounded(double seconds);

}  // namespace tactora::corpus
