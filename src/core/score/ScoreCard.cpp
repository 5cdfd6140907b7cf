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
    std::vector<bool> fired(labels.size(), false);
    for (const TouchLabel& label : labels) {
        if (label.intent == TouchIntent::accident) {
            ++accidents_.at(static_cast<std::size_t>(label.accident)).touches;
        } else {
            ++gestures_.at(gestureIndex(label.intent, label.fingers)).intended;
        }
    }
    for (const Firing& firing : firings) {
        const std::optional<std::size_t> found = innermost(labels, firing.recognisedAt);
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
