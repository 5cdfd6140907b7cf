#include "corpus/Corpus.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <functional>
#include <utility>

#include "corpus/Dice.h"
#include "corpus/HandModel.h"

namespace tactora::corpus {

namespace {

// What one stretch of use adds to a session: the hand's contacts, the mouse's events and the
// labels of what the hand meant.
struct Episode {
    std::vector<PlannedContact> contacts;
    std::vector<PlannedEvent> events;
    std::vector<TouchLabel> labels;

    double end() const {
        double last = 0;
        for (const PlannedContact& contact : contacts) {
            last = std::max(last, contact.lift);
        }
        for (const PlannedEvent& event : events) {
            last = std::max(last, event.time);
        }
        return last;
    }
};

constexpr double scrollEventPeriod = 0.016;

TouchLabel intended(TouchIntent intent, double start, double end, std::int64_t fingers) {
    return TouchLabel{start, end, intent, fingers};
}

TouchLabel accident(AccidentKind kind, double start, double end) {
    return TouchLabel{start, end, TouchIntent::accident, 0, kind};
}

double lastLift(const std::vector<PlannedContact>& contacts, std::size_t from = 0) {
    double last = 0;
    for (std::size_t index = from; index < contacts.size(); ++index) {
        last = std::max(last, contacts[index].lift);
    }
    return last;
}

// A contact that drifts slowly, as a resting finger does.
PlannedContact contactAt(Dice& dice, double land, double lift, double x, double y,
                         ContactShape shape, double drift = 0.03) {
    return PlannedContact{land,  lift, x, y, dice.normal(0, drift), dice.normal(0, drift),
                          shape, {}};
}

// `count` fingertips side by side near the front of the surface, the first landing at `land`
// and the others within a few milliseconds; all down for about `duration`, lifting a few
// milliseconds apart, the last at `land + duration`.
void addFingers(Episode& episode, Dice& dice, std::int64_t count, double land, double duration) {
    const double spacing = dice.uniform(0.13, 0.18);
    const double left = 0.5 - (spacing * static_cast<double>(count - 1) / 2) + dice.normal(0, 0.04);
    const double row = dice.normalWithin(0.72, 0.05, 0.55, 0.88);
    const auto last = static_cast<std::size_t>(dice.integer(0, count - 1));
    for (std::int64_t finger = 0; finger < count; ++finger) {
        const double landing = finger == 0 ? land : land + dice.uniform(0, 0.02);
        const double lifting = static_cast<std::size_t>(finger) == last
                                   ? land + duration
                                   : land + duration - dice.uniform(0, 0.025);
        const double x = left + (spacing * static_cast<double>(finger)) + dice.normal(0, 0.01);
        episode.contacts.push_back(contactAt(dice, landing, std::max(lifting, landing + 0.03), x,
                                             row + dice.normal(0, 0.02), fingertip(dice)));
    }
}

void addClick(Episode& episode, double down, double up) {
    episode.events.push_back({down, TraceMouseEvent{event::leftMouseDown, 0, true}});
    episode.events.push_back({up, TraceMouseEvent{event::leftMouseUp, 0, true}});
}

void addScrollEvents(Episode& episode, double from, double to) {
    for (double time = from; time <= to; time += scrollEventPeriod) {
        episode.events.push_back({time, TraceMouseEvent{event::scrollWheel, 0, true}});
    }
}

double tapDuration(Dice& dice) {
    // Now and then a tap is slower than a tap may be: the hand meant it, the rules miss it.
    if (dice.chance(0.03)) {
        return dice.uniform(0.3, 0.38);
    }
    return dice.normalWithin(0.13, 0.04, 0.06, 0.28);
}

double edgeX(Dice& dice) {
    return dice.chance(0.5) ? dice.uniform(0.005, 0.06) : dice.uniform(0.94, 0.995);
}

PlannedContact palmAt(Dice& dice, double land, double lift) {
    return contactAt(dice, land, lift, dice.uniform(0.3, 0.7), dice.uniform(0.02, 0.14), palm(dice),
                     0.01);
}

PlannedContact thumbAt(Dice& dice, double land, double lift) {
    return contactAt(dice, land, lift, edgeX(dice), dice.uniform(0.3, 0.6), thumb(dice), 0.02);
}

// --- Intended gestures -------------------------------------------------------------------

Episode tap(Dice& dice, double start, std::int64_t fingers) {
    Episode episode;
    const double duration = tapDuration(dice);
    addFingers(episode, dice, fingers, start, duration);
    episode.labels.push_back(intended(TouchIntent::tap, start, start + duration, fingers));
    return episode;
}

// Fingers come to rest, the button goes down and up, the fingers lift.
void addRestingClick(Episode& episode, Dice& dice, std::int64_t fingers, double start) {
    const double down = start + dice.uniform(0.15, 0.6);
    const double up = down + dice.uniform(0.07, 0.16);
    const double lift = up + dice.uniform(0.05, 0.4);
    const std::size_t first = episode.contacts.size();
    addFingers(episode, dice, fingers, start, lift - start);
    addClick(episode, down, up);
    episode.labels.push_back(
        intended(TouchIntent::click, start, lastLift(episode.contacts, first), fingers));
}

Episode click(Dice& dice, double start, std::int64_t fingers) {
    Episode episode;
    addRestingClick(episode, dice, fingers, start);
    return episode;
}

// A one-finger click while the palm or the thumb rests too.
Episode clickBeside(Dice& dice, double start, bool withPalm) {
    Episode episode;
    const double clickStart = start + dice.uniform(0.2, 1.0);
    addRestingClick(episode, dice, 1, clickStart);
    const double restEnd = episode.end() + dice.uniform(0.2, 1.5);
    episode.contacts.push_back(withPalm ? palmAt(dice, start, restEnd)
                                        : thumbAt(dice, start, restEnd));
    episode.labels.push_back(
        accident(withPalm ? AccidentKind::palm : AccidentKind::thumb, start, restEnd));
    return episode;
}

// A one-finger click during which the finger eases off and the sensor loses it for a frame;
// what follows the gap is a short fragment of the same press.
Episode clickWithDropout(Dice& dice, double start) {
    Episode episode;
    const double down = start + dice.uniform(0.15, 0.5);
    const double up = down + dice.uniform(0.08, 0.14);
    const double gap = down + dice.uniform(0.03, 0.07);
    const double lift = down + dice.uniform(0.16, 0.33);
    addFingers(episode, dice, 1, start, lift - start);
    episode.contacts.back().dropouts.push_back(gap);
    addClick(episode, down, up);
    episode.labels.push_back(intended(TouchIntent::click, start, lift, 1));
    episode.labels.push_back(accident(AccidentKind::clickLift, gap, lift));
    return episode;
}

// A tap made while the palm rests on the back of the surface.
Episode tapBesidePalm(Dice& dice, double start) {
    Episode episode;
    const double tapStart = start + dice.uniform(0.3, 1.2);
    const std::int64_t fingers = dice.integer(1, 2);
    const double duration = tapDuration(dice);
    addFingers(episode, dice, fingers, tapStart, duration);
    episode.labels.push_back(
        intended(TouchIntent::tap, tapStart, lastLift(episode.contacts), fingers));
    const double restEnd = tapStart + duration + dice.uniform(0.3, 1.5);
    episode.contacts.push_back(palmAt(dice, start, restEnd));
    episode.labels.push_back(accident(AccidentKind::palm, start, restEnd));
    return episode;
}

// Taps of one and two fingers in quick alternation.
Episode alternatingTaps(Dice& dice, double start) {
    Episode episode;
    const std::int64_t count = dice.integer(4, 6);
    double land = start;
    for (std::int64_t index = 0; index < count; ++index) {
        const std::int64_t fingers = index % 2 == 0 ? 1 : 2;
        const double duration = dice.uniform(0.06, 0.11);
        const std::size_t first = episode.contacts.size();
        addFingers(episode, dice, fingers, land, duration);
        const double lift = lastLift(episode.contacts, first);
        episode.labels.push_back(intended(TouchIntent::tap, land, lift, fingers));
        land = lift + dice.uniform(0.05, 0.14);
    }
    return episode;
}

// --- Scrolling, and what follows it -----------------------------------------------------------

// One or two fingers sliding along the surface, scroll events while they move, and with
// `momentum` the scroll events that keep coming after they lift. Returns when the last scroll
// event came.
double addScroll(Episode& episode, Dice& dice, double start, bool momentum) {
    const std::int64_t fingers = dice.integer(1, 2);
    const double duration = dice.uniform(0.3, 0.9);
    const std::size_t first = episode.contacts.size();
    addFingers(episode, dice, fingers, start, duration);
    const double speed = (dice.chance(0.5) ? 1 : -1) * dice.uniform(0.25, 0.6);
    for (std::size_t index = first; index < episode.contacts.size(); ++index) {
        episode.contacts[index].driftY = speed;
        episode.contacts[index].y = 0.5;
    }
    const double lift = lastLift(episode.contacts, first);
    episode.labels.push_back(accident(AccidentKind::scroll, start, lift));
    const double last = momentum ? lift + dice.uniform(0.3, 0.9) : lift - 0.02;
    addScrollEvents(episode, start + 0.05, last);
    if (dice.chance(0.3)) {
        // Another finger brushes the surface while the scrolling ones move.
        const double graze = start + dice.uniform(0.05, duration - 0.15);
        const double length = dice.uniform(0.04, 0.1);
        episode.contacts.push_back(contactAt(dice, graze, graze + length, dice.uniform(0.2, 0.8),
                                             dice.uniform(0.6, 0.85), fingertip(dice)));
        episode.labels.push_back(accident(AccidentKind::scrollGraze, graze, graze + length));
    }
    return last;
}

Episode scroll(Dice& dice, double start) {
    Episode episode;
    addScroll(episode, dice, start, dice.chance(0.5));
    return episode;
}

// A scroll whose momentum is still arriving after the fingers lift, then a deliberate tap.
Episode tapAfterMomentum(Dice& dice, double start) {
    Episode episode;
    const double last = addScroll(episode, dice, start, true);
    const double tapStart = last + dice.uniform(0.25, 0.9);
    const std::int64_t fingers = dice.integer(1, 2);
    const double duration = tapDuration(dice);
    const std::size_t first = episode.contacts.size();
    addFingers(episode, dice, fingers, tapStart, duration);
    episode.labels.push_back(
        intended(TouchIntent::tap, tapStart, lastLift(episode.contacts, first), fingers));
    return episode;
}

// A finger grazing the surface just after a scroll.
Episode grazeAfterScroll(Dice& dice, double start) {
    Episode episode;
    const bool momentum = dice.chance(0.4);
    const double last = addScroll(episode, dice, start, momentum);
    const double lift = lastLift(episode.contacts);
    const double graze =
        momentum ? lift + dice.uniform(0.05, last - lift) : lift + dice.uniform(0.05, 0.25);
    const double length = dice.uniform(0.04, 0.12);
    episode.contacts.push_back(contactAt(dice, graze, graze + length, dice.uniform(0.25, 0.75),
                                         dice.uniform(0.55, 0.85), fingertip(dice)));
    episode.labels.push_back(accident(AccidentKind::scrollGraze, graze, graze + length));
    return episode;
}

// --- Accidents ----------------------------------------------------------------------------

Episode palmTouch(Dice& dice, double start) {
    Episode episode;
    const bool brief = dice.chance(0.45);
    const double end = start + (brief ? dice.uniform(0.08, 0.28) : dice.uniform(1.0, 6.0));
    episode.contacts.push_back(palmAt(dice, start, end));
    episode.labels.push_back(accident(AccidentKind::palm, start, end));
    return episode;
}

Episode thumbBrush(Dice& dice, double start) {
    Episode episode;
    const double end = start + dice.uniform(0.06, 0.25);
    episode.contacts.push_back(thumbAt(dice, start, end));
    episode.labels.push_back(accident(AccidentKind::thumb, start, end));
    return episode;
}

// The fingers shift their grip to move the mouse: they land together and slide a little.
Episode reposition(Dice& dice, double start) {
    Episode episode;
    const std::int64_t fingers = dice.integer(2, 4);
    addFingers(episode, dice, fingers, start, dice.uniform(0.15, 0.5));
    const double driftX = dice.normal(0, 0.25);
    const double driftY = dice.normal(0, 0.25);
    for (PlannedContact& contact : episode.contacts) {
        contact.driftX = driftX + dice.normal(0, 0.02);
        contact.driftY = driftY + dice.normal(0, 0.02);
    }
    if (dice.chance(0.5)) {
        episode.contacts.push_back(
            thumbAt(dice, start + dice.uniform(0, 0.05), lastLift(episode.contacts)));
    }
    episode.labels.push_back(accident(AccidentKind::reposition, start, lastLift(episode.contacts)));
    return episode;
}

// Fingers drumming on the surface one after another, often overlapping.
Episode drumming(Dice& dice, double start) {
    Episode episode;
    const std::int64_t beats = dice.integer(3, 6);
    double land = start;
    for (std::int64_t beat = 0; beat < beats; ++beat) {
        const double length = dice.uniform(0.05, 0.12);
        episode.contacts.push_back(contactAt(dice, land, land + length,
                                             0.3 + (0.13 * static_cast<double>(beat % 4)),
                                             dice.uniform(0.6, 0.8), fingertip(dice)));
        land += dice.uniform(0.05, 0.12);
    }
    episode.labels.push_back(accident(AccidentKind::drumming, start, lastLift(episode.contacts)));
    return episode;
}

// The hand grips the mouse to lift it: the thumb on one side, fingers on the other, perhaps
// the palm; all land within a few hundredths of a second and lift together.
Episode pickUp(Dice& dice, double start) {
    Episode episode;
    const double hold = dice.uniform(0.12, 0.6);
    episode.contacts.push_back(thumbAt(dice, start, start + hold + dice.uniform(0, 0.03)));
    const std::int64_t fingers = dice.integer(2, 3);
    for (std::int64_t finger = 0; finger < fingers; ++finger) {
        const double land = start + dice.uniform(0, 0.06);
        episode.contacts.push_back(contactAt(dice, land, start + hold + dice.uniform(0, 0.03),
                                             edgeX(dice), dice.uniform(0.4, 0.85),
                                             fingertip(dice)));
    }
    if (dice.chance(0.4)) {
        episode.contacts.push_back(palmAt(dice, start + dice.uniform(0, 0.06), start + hold));
    }
    episode.labels.push_back(accident(AccidentKind::pickUp, start, lastLift(episode.contacts)));
    return episode;
}

// --- The gestures beyond the taps and clicks, and what could be mistaken for them ---------------

TouchLabel meant(MoreGestureSlot slot, double start, double end) {
    TouchLabel label{start, end, TouchIntent::gesture};
    label.slot = slot;
    return label;
}

// A one-finger tap in one region of the surface: the left or right half below the top band, or
// the top band, nearest the fingertips.
Episode regionTap(Dice& dice, double start, MoreGestureSlot slot) {
    Episode episode;
    const double duration = tapDuration(dice);
    double x = dice.uniform(0.25, 0.75);
    double y = dice.uniform(0.8, 0.95);
    if (slot != MoreGestureSlot::tapTop) {
        x = slot == MoreGestureSlot::tapLeft ? dice.uniform(0.12, 0.44) : dice.uniform(0.56, 0.88);
        y = dice.uniform(0.3, 0.68);
    }
    episode.contacts.push_back(contactAt(dice, start, start + duration, x, y, fingertip(dice)));
    episode.labels.push_back(meant(slot, start, start + duration));
    return episode;
}

// One finger comes to rest; then a second taps beside it, once or twice, to its left or right;
// then the resting finger lifts. The resting finger is no gesture, and its lift is none.
Episode tipTap(Dice& dice, double start, bool right) {
    Episode episode;
    const double x = dice.uniform(0.35, 0.65);
    const double y = dice.uniform(0.45, 0.75);
    double land = start + dice.uniform(0.45, 1.2);
    const std::int64_t taps = dice.chance(0.3) ? 2 : 1;
    for (std::int64_t tap = 0; tap < taps; ++tap) {
        const double duration = dice.normalWithin(0.12, 0.03, 0.06, 0.22);
        const double side = (right ? 1 : -1) * dice.uniform(0.1, 0.2);
        episode.contacts.push_back(contactAt(dice, land, land + duration, x + side,
                                             y + dice.normal(0, 0.03), fingertip(dice), 0.02));
        episode.labels.push_back(
            meant(right ? MoreGestureSlot::tipTapRight : MoreGestureSlot::tipTapLeft, land,
                  land + duration));
        land += duration + dice.uniform(0.2, 0.5);
    }
    const double lift = lastLift(episode.contacts) + dice.uniform(0.2, 0.8);
    episode.contacts.push_back(contactAt(dice, start, lift, x, y, fingertip(dice), 0.006));
    episode.labels.push_back(accident(AccidentKind::restingFinger, start, lift));
    return episode;
}

// `fingers` fingers side by side that land together and move together across the surface,
// far and fast enough to be a swipe. One and two fingers moving scroll as they go.
Episode swipe(Dice& dice, double start, std::int64_t fingers, SwipeDirection direction) {
    Episode episode;
    const double duration = dice.uniform(0.15, 0.35);
    const double distance = dice.uniform(0.2, 0.32);
    const double speed = distance / duration;
    const bool vertical = direction == SwipeDirection::up || direction == SwipeDirection::down;
    const double forward =
        direction == SwipeDirection::up || direction == SwipeDirection::right ? 1 : -1;
    const double spacing = dice.uniform(0.11, 0.15);
    const double span = spacing * static_cast<double>(fingers - 1);
    // Where the hand starts: far enough from the edge it moves towards. The fingers lie side by
    // side across the surface; `first` is where the leftmost lands.
    const double row = vertical
                           ? (forward > 0 ? dice.uniform(0.12, 0.25) : dice.uniform(0.75, 0.88))
                           : dice.uniform(0.35, 0.65);
    double first = 0.5 - (span / 2) + dice.normal(0, 0.04);
    if (!vertical) {
        first = forward > 0 ? dice.uniform(0.1, 0.2) : dice.uniform(0.8, 0.9) - span;
    }
    for (std::int64_t finger = 0; finger < fingers; ++finger) {
        const double land = finger == 0 ? start : start + dice.uniform(0, 0.02);
        const double lift = start + duration - dice.uniform(0, 0.025);
        PlannedContact contact = contactAt(dice, land, std::max(lift, land + 0.08),
                                           first + (spacing * static_cast<double>(finger)),
                                           row + dice.normal(0, 0.02), fingertip(dice), 0.01);
        const double drift = forward * speed * (1 + dice.normal(0, 0.05));
        (vertical ? contact.driftY : contact.driftX) = drift;
        (vertical ? contact.driftX : contact.driftY) = dice.normal(0, 0.05);
        episode.contacts.push_back(contact);
    }
    const double lift = lastLift(episode.contacts);
    if (fingers <= 2) {
        addScrollEvents(episode, start + 0.04, lift - 0.02);
    }
    episode.labels.push_back(meant(moreslot::forSwipe(fingers, direction), start, lift));
    return episode;
}

// A one-finger tap, then soon after a finger that lands in about the same place and stays while
// the hand drags the mouse.
Episode tapHold(Dice& dice, double start) {
    Episode episode;
    const double x = dice.uniform(0.25, 0.75);
    const double y = dice.uniform(0.4, 0.7);
    const double tapEnd = start + dice.normalWithin(0.11, 0.03, 0.06, 0.2);
    episode.contacts.push_back(contactAt(dice, start, tapEnd, x, y, fingertip(dice)));
    const double land = tapEnd + dice.uniform(0.06, 0.2);
    const double lift = land + dice.uniform(0.6, 2.5);
    episode.contacts.push_back(contactAt(dice, land, lift, x + dice.normal(0, 0.015),
                                         y + dice.normal(0, 0.015), fingertip(dice), 0.006));
    episode.labels.push_back(meant(MoreGestureSlot::tapHold, start, lift));
    return episode;
}

// One or two fingers scrolling slowly, or only a little: the start of what could be a swipe.
Episode shortScroll(Dice& dice, double start) {
    Episode episode;
    const std::int64_t fingers = dice.integer(1, 2);
    const double duration = dice.uniform(0.3, 1.2);
    const std::size_t first = episode.contacts.size();
    addFingers(episode, dice, fingers, start, duration);
    const double speed = (dice.chance(0.5) ? 1 : -1) * dice.uniform(0.05, 0.22);
    for (std::size_t index = first; index < episode.contacts.size(); ++index) {
        episode.contacts[index].driftY = speed;
        episode.contacts[index].y = 0.5;
    }
    const double lift = lastLift(episode.contacts, first);
    addScrollEvents(episode, start + 0.05, lift - 0.02);
    episode.labels.push_back(accident(AccidentKind::shortScroll, start, lift));
    return episode;
}

// One to three fingers shifting their grip to move the mouse, sliding a little.
Episode repositionFew(Dice& dice, double start) {
    Episode episode;
    const std::int64_t fingers = dice.integer(1, 3);
    addFingers(episode, dice, fingers, start, dice.uniform(0.15, 0.6));
    const double driftX = dice.normal(0, 0.2);
    const double driftY = dice.normal(0, 0.2);
    for (PlannedContact& contact : episode.contacts) {
        contact.driftX = driftX + dice.normal(0, 0.02);
        contact.driftY = driftY + dice.normal(0, 0.02);
    }
    episode.labels.push_back(accident(AccidentKind::reposition, start, lastLift(episode.contacts)));
    return episode;
}

// A finger resting, and a second one that comes to rest beside it rather than tapping.
Episode restingPair(Dice& dice, double start) {
    Episode episode;
    const double x = dice.uniform(0.35, 0.65);
    const double y = dice.uniform(0.45, 0.75);
    const double land = start + dice.uniform(0.4, 1.0);
    const double second = land + dice.uniform(0.35, 1.5);
    const double lift = second + dice.uniform(0.1, 0.6);
    episode.contacts.push_back(contactAt(dice, land, second,
                                         x + (dice.chance(0.5) ? 1 : -1) * dice.uniform(0.1, 0.2),
                                         y, fingertip(dice), 0.006));
    episode.contacts.push_back(contactAt(dice, start, lift, x, y, fingertip(dice), 0.006));
    episode.labels.push_back(accident(AccidentKind::restingFinger, start, lift));
    return episode;
}

// A one-finger tap, then a hand that comes back to rest on the surface: sometimes as soon as a
// hold would, with one finger or two.
Episode restAfterTap(Dice& dice, double start) {
    Episode episode;
    const double duration = tapDuration(dice);
    addFingers(episode, dice, 1, start, duration);
    const double tapEnd = lastLift(episode.contacts);
    episode.labels.push_back(intended(TouchIntent::tap, start, tapEnd, 1));
    const double land = tapEnd + dice.uniform(0.1, 0.9);
    const std::size_t first = episode.contacts.size();
    addFingers(episode, dice, dice.integer(1, 2), land, dice.uniform(0.6, 2.0));
    for (std::size_t index = first; index < episode.contacts.size(); ++index) {
        episode.contacts[index].driftX = dice.normal(0, 0.01);
        episode.contacts[index].driftY = dice.normal(0, 0.01);
    }
    episode.labels.push_back(
        accident(AccidentKind::restAfterTap, land, lastLift(episode.contacts, first)));
    return episode;
}

// --- The mix of a session -------------------------------------------------------------------

struct Kind {
    double weight;
    std::function<Episode(Dice&, double)> make;
};

const std::vector<Kind>& kinds() {
    static const std::vector<Kind> all = {
        {8, [](Dice& d, double t) { return tap(d, t, 1); }},
        {7, [](Dice& d, double t) { return tap(d, t, 2); }},
        {4, [](Dice& d, double t) { return tap(d, t, 3); }},
        {2, [](Dice& d, double t) { return tap(d, t, 4); }},
        {16, [](Dice& d, double t) { return click(d, t, 1); }},
        {5, [](Dice& d, double t) { return click(d, t, 2); }},
        {3, [](Dice& d, double t) { return click(d, t, 3); }},
        {1, [](Dice& d, double t) { return click(d, t, 4); }},
        {3, [](Dice& d, double t) { return clickBeside(d, t, true); }},
        {3, [](Dice& d, double t) { return clickBeside(d, t, false); }},
        {2, clickWithDropout},
        {2, tapBesidePalm},
        {2, alternatingTaps},
        {12, scroll},
        {3, tapAfterMomentum},
        {3, grazeAfterScroll},
        {6, palmTouch},
        {4, thumbBrush},
        {4, reposition},
        {1, drumming},
        {2, pickUp},
    };
    return all;
}

// The sessions beside the gestures beyond the taps and clicks: each of those gestures as meant,
// and the touches that could be mistaken for them, with some taps, clicks and scrolls between.
const std::vector<Kind>& moreKinds() {
    static const std::vector<Kind> all = [] {
        std::vector<Kind> kinds = {
            {4, [](Dice& d, double t) { return regionTap(d, t, MoreGestureSlot::tapLeft); }},
            {4, [](Dice& d, double t) { return regionTap(d, t, MoreGestureSlot::tapRight); }},
            {4, [](Dice& d, double t) { return regionTap(d, t, MoreGestureSlot::tapTop); }},
            {4, [](Dice& d, double t) { return tipTap(d, t, false); }},
            {4, [](Dice& d, double t) { return tipTap(d, t, true); }},
            {5, tapHold},
            {4, shortScroll},
            {4, repositionFew},
            {3, restingPair},
            {4, restAfterTap},
            {3, scroll},
            {2, [](Dice& d, double t) { return tap(d, t, 2); }},
            {2, [](Dice& d, double t) { return click(d, t, 1); }},
        };
        for (std::int64_t fingers = 1; fingers <= moreslot::maxSwipeFingers; ++fingers) {
            for (const SwipeDirection direction : {SwipeDirection::up, SwipeDirection::down,
                                                   SwipeDirection::left, SwipeDirection::right}) {
                kinds.push_back({1.5, [fingers, direction](Dice& d, double t) {
                                     return swipe(d, t, fingers, direction);
                                 }});
            }
        }
        return kinds;
    }();
    return all;
}

Episode nextEpisode(Dice& dice, double start, const std::vector<Kind>& mix) {
    double total = 0;
    for (const Kind& kind : mix) {
        total += kind.weight;
    }
    double pick = dice.uniform(0, total);
    for (const Kind& kind : mix) {
        if (pick < kind.weight) {
            return kind.make(dice, start);
        }
        pick -= kind.weight;
    }
    return mix.back().make(dice, start);
}

std::string sessionName(const std::string& prefix, int index) {
    const std::string number = std::to_string(index);
    return prefix + std::string(number.size() < 2 ? 2 - number.size() : 0, '0') + number;
}

Session generateFrom(const std::vector<Kind>& mix, std::uint64_t seed, double start,
                     double minutes) {
    Dice dice(seed);
    Session session;
    const double end = start + (minutes * 60);
    double time = start;
    while (time < end) {
        Episode episode = nextEpisode(dice, time, mix);
        std::vector<TraceLine> lines = sense(episode.contacts, episode.events, dice);
        session.lines.insert(session.lines.end(), std::make_move_iterator(lines.begin()),
                             std::make_move_iterator(lines.end()));
        for (TouchLabel& label : episode.labels) {
            label.start = rounded(label.start);
            label.end = rounded(label.end);
            session.labels.push_back(label);
        }
        // A pause long enough for any waiting action to have run, as between uses.
        time = rounded(session.lines.back().time + 1.0 + dice.exponential(3.0));
    }
    return session;
}

}  // namespace

Session generateSession(std::uint64_t seed, double start, double minutes) {
    return generateFrom(kinds(), seed, start, minutes);
}

Session generateMoreSession(std::uint64_t seed, double start, double minutes) {
    return generateFrom(moreKinds(), seed, start, minutes);
}

std::vector<Session> generateMore(const CorpusShape& shape) {
    std::vector<Session> sessions;
    for (int index = 1; index <= shape.moreSessions; ++index) {
        // A seed stream of their own, so that the sessions above stay exactly as they are.
        Session session =
            generateMoreSession(shape.seed * 1000 + 500 + static_cast<std::uint64_t>(index),
                                1000.0 * index, shape.minutesPerMoreSession);
        session.name = sessionName("more-", index);
        sessions.push_back(std::move(session));
    }
    return sessions;
}

std::vector<Session> generate(const CorpusShape& shape) {
    std::vector<Session> sessions;
    for (int index = 1; index <= shape.sessions; ++index) {
        // Each session on a clock of its own, as if recorded on a different day.
        Session session = generateSession(shape.seed * 1000 + static_cast<std::uint64_t>(index),
                                          1000.0 * index, shape.minutesPerSession);
        session.name = sessionName("session-", index);
        sessions.push_back(std::move(session));
    }
    return sessions;
}

}  // namespace tactora::corpus
