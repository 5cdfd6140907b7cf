#pragma once

namespace tactora {

class Preferences;

// The limits by which a touch is a tap: how short and how long it may be, and how far a finger
// may move from where it landed. The defaults are the recogniser's own, and a user may change
// them; a set that makes no sense (a shortest tap not shorter than the longest, a value out of
// range) is never kept.
struct TapThresholds {
    double shortest = 0.035;   // seconds
    double longest = 0.3;      // seconds
    double tolerance = 0.045;  // surface units

    static constexpr double shortestLow = 0.01;
    static constexpr double shortestHigh = 0.2;
    static constexpr double longestLow = 0.1;
    static constexpr double longestHigh = 1.0;
    static constexpr double toleranceLow = 0.005;
    static constexpr double toleranceHigh = 0.2;

    // Whether these are the defaults.
    bool isDefault() const;
    // Whether every value lies in its range and the shortest is shorter than the longest.
    bool isValid() const;

    // A touch lasting `duration` seconds is short enough and long enough; both ends included.
    bool allowsDuration(double duration) const {
        return duration >= shortest && duration <= longest;
    }

    // Reads the thresholds from their keys ("tap.shortest" and "tap.longest" in milliseconds,
    // "tap.tolerance" in thousandths of the surface); absent keys give the defaults, and a set
    // that is not valid gives the defaults altogether. Main thread only.
    static TapThresholds load(const Preferences& preferences);
    // Writes the thresholds, removing the keys of values that are the defaults. An invalid set
    // is not written; the keys stay as they were. Returns whether it was written.
    bool save(Preferences& preferences) const;

    bool operator==(const TapThresholds&) const = default;
};

}  // namespace tactora
