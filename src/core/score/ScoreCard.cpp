#include "core/score/ScoreCard.h"

#include <algorithm>
#include <cmath>

namespace tactora {

namespace {

// The innermost label around `time`, or nothing.
std::optional<std::size_t> innermost(const std::vector<TouchLabel>& labels, double time) {
    std::optional<std::size_t> best;
    for (std::size_t index = 0; index < labels.size(); ++index) {
        const TouchLabel& label = labels[index];
        if (time < label.start - 0.001 || time > label.end + ScoreCard::slack) {
            continue;
        }
        if (!best || label.end - label.start < labels[*best].end - labels[*best].start) {
            best = index;
        }
    }
    return best;
}

}  // namespace

double GestureFigures::recall() const {
    return intended == 0 ? 1.0 : static_cast<double>(recognised) / static_cast<double>(intended);
}

std::size_t ScoreCard::gestureIndex(TouchIntent kind, std::int64_t fingers) {
    const auto finger = static_cast<std::size_t>(std::clamp<std::int64_t>(fingers, 1, 4)) - 1;
    return kind == TouchIntent::click ? 4 + finger : finger;
}

void ScoreCard::add(const std::vector<TouchLabel>& labels, const std::vector<Firing>& firings,
                    double seconds) {
    seconds_ += seconds;
    std::vector<bool> matched(labels.size(), false);
    std::vector<bool> matchedMore(labels.size(), false);
    std::vector<bool> fired(labels.size(), false);
    for (const TouchLabel& label : labels) {
        if (label.intent == TouchIntent::accident) {
            ++accidents_.at(static_cast<std::size_t>(label.accident)).touches;
        } else if (label.intent == TouchIntent::gesture) {
            ++more_.at(moreslot::index(label.slot)).intended;
        } else {
            ++gestures_.at(gestureIndex(label.intent, label.fingers)).intended;
        }
    }
    for (const Firing& firing : firings) {
        const std::optional<std::size_t> found = innermost(labels, firing.recognisedAt);
        if (firing.more || (found && labels[*found].intent == TouchIntent::gesture)) {
            addMore(labels, firing, found, matchedMore);
        }
        // What the taps and clicks did: the gestures beyond them, and the touches meant as
        // those gestures, are counted above.
        if (firing.kind == TouchIntent::gesture ||
            (found && labels[*found].intent == TouchIntent::gesture)) {
            continue;
        }
        if (!found) {
            ++unlabelled_;
            continue;
        }
        const TouchLabel& label = labels[*found];
        if (label.intent == TouchIntent::accident) {
            if (!fired[*found]) {
                ++accidents_.at(static_cast<std::size_t>(label.accident)).fired;
            }
            fired[*found] = true;
            continue;
        }
        GestureFigures& figures = gestures_.at(gestureIndex(label.intent, label.fingers));
        if (matched[*found] || firing.kind != label.intent || firing.fingers != label.fingers) {
            ++figures.wrong;
            continue;
        }
        matched[*found] = true;
        ++figures.recognised;
        if (label.intent == TouchIntent::tap) {
            figures.latencies.push_back(firing.actedAt - label.end);
        }
    }
}

void ScoreCard::addMore(const std::vector<TouchLabel>& labels, const Firing& firing,
                        std::optional<std::size_t> found, std::vector<bool>& matched) {
    if (firing.more) {
        ++more_.at(moreslot::index(*firing.more)).fired;
    }
    const TouchLabel* label = found ? &labels[*found] : nullptr;
    if (label != nullptr && label->intent == TouchIntent::gesture) {
        MoreFigures& meant = more_.at(moreslot::index(label->slot));
        if (firing.more == label->slot && !matched[*found]) {
            matched[*found] = true;
            ++meant.recognised;
            return;
        }
        ++meant.wrong;
    }
    if (!firing.more) {
        return;
    }
    // A region's tap is a one-finger tap carrying another action: on a touch meant as a gesture
    // it is that touch's tap (the lead of a tap and hold, say), on one meant as a tap it is that
    // tap; only on an accident, or outside every touch, is it a false positive.
    const bool regionTap = firing.kind == TouchIntent::tap;
    if (!regionTap || label == nullptr || label->intent == TouchIntent::accident) {
        ++more_.at(moreslot::index(*firing.more)).falsePositives;
    }
}

bool ScoreCard::hasMore() const {
    return std::any_of(more_.begin(), more_.end(), [](const MoreFigures& figures) {
        return figures.intended > 0 || figures.fired > 0;
    });
}

double MoreFigures::recall() const {
    return intended == 0 ? 1.0 : static_cast<double>(recognised) / static_cast<double>(intended);
}

GestureFigures ScoreCard::total() const {
    GestureFigures sum;
    for (const GestureFigures& figures : gestures_) {
        sum.intended += figures.intended;
        sum.recognised += figures.recognised;
        sum.wrong += figures.wrong;
        sum.latencies.insert(sum.latencies.end(), figures.latencies.begin(),
                             figures.latencies.end());
    }
    return sum;
}

std::size_t ScoreCard::falsePositives() const {
    std::size_t sum = unlabelled_;
    for (const AccidentFigures& figures : accidents_) {
        sum += figures.fired;
    }
    return sum;
}

double ScoreCard::falsePositivesPerHour() const {
    return hours() > 0 ? static_cast<double>(falsePositives()) / hours() : 0;
}

std::optional<double> percentile(std::vector<double> values, double fraction) {
    if (values.empty()) {
        return std::nullopt;
    }
    std::sort(values.begin(), values.end());
    const double position = std::max(1.0, std::ceil(fraction * static_cast<double>(values.size())));
    const auto rank = static_cast<std::size_t>(position) - 1;
    return values.at(std::min(rank, values.size() - 1));
}

}  // namespace tactora
