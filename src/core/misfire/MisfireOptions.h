#pragma once

#include <optional>

namespace tactora {

class Preferences;

// The widths of the bands along the surface's edges where a contact that lands is ignored, as
// fractions of the surface (0...0.5 each). The front is where the fingertips rest.
struct EdgeBands {
    double left = 0;
    double right = 0;
    double front = 0;
    double back = 0;

    bool operator==(const EdgeBands&) const = default;
};

// The user's choices against accidental gestures. Every option is off unless set, and with all
// of them off every touch is decided exactly as without them. Each is kept under a key of its
// own in the preferences, absent when off, so that an older copy of the program, which does not
// know the key, simply decides as before.
struct MisfireOptions {
    // Ignore a tap that starts within this many seconds after a scroll or a click of the mouse.
    std::optional<double> quietAfterActivity;
    // Ignore touches with a contact larger than `largestFingertip`: a palm's or a thumb's
    // rather than a fingertip's. Such a touch yields no tap, and a click made during it stays an
    // ordinary click.
    bool ignoreLargeContacts = false;
    // Ignore contacts that land in these bands along the edges.
    std::optional<EdgeBands> edgeBands;
    // Count only fingertips: a contact larger than `largestFingertip`, or, when the sensor
    // reports no sizes, one that rested on the surface since well before another landed, is
    // left out of a tap's or a click's finger count instead of spoiling the touch.
    bool fingertipsOnly = false;
    // Forget scroll events and clicks from before a touch began (momentum from an earlier
    // scroll no longer spoils the next tap), and let a click veto the fragments of its own
    // press (a touch that begins while the button is held is part of the click).
    bool forgetEarlierActivity = false;
    // Ignore fingers drumming on the surface: a tap whose fingers landed one after another, or
    // that follows or is followed at once by a touch at another place (see DrumWatch).
    bool ignoreDrumming = false;
    // The sensor's size of the largest fingertip, for the two options that judge by size.
    double largestFingertip = defaultLargestFingertip;

    static constexpr double defaultQuietAfterActivity = 0.3;
    static constexpr double defaultLargestFingertip = 1.35;
    static constexpr EdgeBands defaultEdgeBands{0.06, 0.06, 0, 0.12};
    // With sizes unknown, a contact down this long before another lands is a resting one.
    static constexpr double restingLead = 0.25;

    // Every option off: the behaviour without options.
    static MisfireOptions none() { return {}; }
    // The combination that the score of the labelled corpus shows to be best.
    static MisfireOptions recommended();

    bool anyOn() const;

    // Reads the options from their keys; a key that is absent, of the wrong type or out of
    // range leaves its option off. Main thread only.
    static MisfireOptions load(const Preferences& preferences);
    // Writes every option to its key, removing the keys of those that are off.
    void save(Preferences& preferences) const;

    bool operator==(const MisfireOptions&) const = default;
};

}  // namespace tactora
