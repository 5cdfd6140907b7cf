#include "corpus/HandModel.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>

namespace tactora::corpus {

namespace {

constexpr double framePeriod = 1.0 / 90.0;
constexpr double positionShake = 0.0008;
constexpr double growTime = 0.025;    // a contact reaches its full size this long after landing
constexpr double shrinkTime = 0.015;  // and starts shrinking this long before lifting

float roundedTo(double value, double step) {
    return static_cast<float>(std::round(value / step) * step);
}

ContactShape drawn(Dice& dice, double size, double sizeDeviation, double major, double minor,
                   double low, double high) {
    const double drawnMajor = dice.normalWithin(major, major * 0.08, major * 0.7, major * 1.3);
    const double drawnMinor =
        std::min(drawnMajor, dice.normalWithin(minor, minor * 0.08, minor * 0.7, minor * 1.3));
    return ContactShape{roundedTo(dice.normalWithin(size, sizeDeviation, low, high), 0.01),
                        roundedTo(dice.uniform(0, std::numbers::pi), 0.01),
                        roundedTo(drawnMajor, 0.01), roundedTo(drawnMinor, 0.01)};
}

bool droppedAt(const PlannedContact& contact, double time) {
    return std::any_of(contact.dropouts.begin(), contact.dropouts.end(), [&](double moment) {
        return moment <= time && time < moment + (1.2 * framePeriod);
    });
}

// How far grown a contact is at `time`: small as it lands and as it lifts.
double growth(const PlannedContact& contact, double time) {
    const double grown = std::min(1.0, (time - contact.land) / growTime);
    const double shrunk = std::min(1.0, (contact.lift - time) / shrinkTime);
    return 0.35 + (0.65 * std::clamp(std::min(grown, shrunk), 0.0, 1.0));
}

ContactShape shapeAt(const PlannedContact& contact, double time) {
    const double scale = growth(contact, time);
    ContactShape shape = contact.shape;
    shape.size = roundedTo(shape.size * scale, 0.01);
    shape.majorAxis = roundedTo(shape.majorAxis * scale, 0.01);
    shape.minorAxis = roundedTo(shape.minorAxis * scale, 0.01);
    return shape;
}

// Contact ids as the sensor gives them: the lowest number not held by a contact still down.
class Ids {
  public:
    explicit Ids(std::size_t contacts) : ids_(contacts) {}

    std::int64_t of(std::size_t contact) {
        if (!ids_[contact]) {
            std::int64_t id = 1;
            while (std::find(ids_.begin(), ids_.end(), id) != ids_.end()) {
                ++id;
            }
            ids_[contact] = id;
        }
        return *ids_[contact];
    }

    void release(std::size_t contact) { ids_[contact].reset(); }

  private:
    std::vector<std::optional<std::int64_t>> ids_;
};

void senseFrames(const std::vector<PlannedContact>& contacts, Dice& dice,
                 std::vector<TraceLine>& lines) {
    if (contacts.empty()) {
        return;
    }
    double first = contacts.front().land;
    double last = contacts.front().lift;
    for (const PlannedContact& contact : contacts) {
        first = std::min(first, contact.land);
        last = std::max(last, contact.lift);
    }
    Ids ids(contacts.size());
    bool lastWasEmpty = true;
    for (double time = first + dice.uniform(0, framePeriod); !(time > last && lastWasEmpty);
         time += dice.normalWithin(framePeriod, 0.0012, 0.008, 0.016)) {
        const double stamp = rounded(time);
        TraceFrame frame;
        for (std::size_t index = 0; index < contacts.size(); ++index) {
            const PlannedContact& contact = contacts[index];
            if (stamp >= contact.lift) {
                ids.release(index);
            }
            if (stamp < contact.land || stamp >= contact.lift || droppedAt(contact, stamp)) {
                continue;
            }
            const double age = stamp - contact.land;
            const double x = contact.x + (contact.driftX * age) + dice.normal(0, positionShake);
            const double y = contact.y + (contact.driftY * age) + dice.normal(0, positionShake);
            frame.fingers.emplace_back(ids.of(index), roundedTo(x, 0.0001), roundedTo(y, 0.0001));
            frame.shapes.emplace_back(shapeAt(contact, stamp));
        }
        if (!frame.fingers.empty() || !lastWasEmpty) {
            lastWasEmpty = frame.fingers.empty();
            lines.push_back({stamp, std::move(frame)});
        }
    }
}

}  // namespace

ContactShape fingertip(Dice& dice) {
    return drawn(dice, 0.85, 0.15, 9.5, 8.0, 0.5, 1.5);
}

ContactShape thumb(Dice& dice) {
    return drawn(dice, 1.9, 0.3, 15.0, 9.0, 1.2, 2.8);
}

ContactShape palm(Dice& dice) {
    return drawn(dice, 4.2, 0.8, 25.0, 16.0, 2.8, 7.0);
}

double rounded(double seconds) {
    return std::round(seconds * 10000.0) / 10000.0;
}

std::vector<TraceLine> sense(const std::vector<PlannedContact>& contacts,
                             const std::vector<PlannedEvent>& events, Dice& dice) {
    std::vector<TraceLine> lines;
    senseFrames(contacts, dice, lines);
    for (const PlannedEvent& planned : events) {
        lines.push_back({rounded(planned.time), planned.event});
    }
    std::stable_sort(lines.begin(), lines.end(),
                     [](const TraceLine& a, const TraceLine& b) { return a.time < b.time; });
    return lines;
}

}  // namespace tactora::corpus
