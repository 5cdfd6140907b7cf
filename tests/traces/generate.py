#!/usr/bin/env python3
"""Writes the golden touch traces of this folder.

Each trace is written from a fixed recipe (and, for the realistic ones, a fixed random seed),
so running this again gives the same files. The expected replay output beside each trace
(<name>.expected) is made with

    tactora --replay <name>.trace --profile profiles.json > <name>.expected

and its explained replay (<name>.explained) with

    tactora --replay <name>.trace --profile profiles.json --explain > <name>.explained

and must be checked by hand against what the recogniser and the controller are meant to do.

profiles.json holds two profiles. "Every gesture" (active first) maps
    clicks: 1 finger middle, 2 right, 3 copy, 4 Mission Control
    taps:   1 finger left,   2 right, 3 paste, 4 Show Desktop
"Browsing" maps the two-finger click to right, the one- and two-finger taps to back and
forward, and everything else to the system's own behaviour; and "More gestures" maps the eight as
"Every gesture" does and, beyond them,
    taps by region: left half back, right half forward, top band Mission Control
    tip taps:       left copy, right paste
    swipes:         one finger up Mission Control, two fingers left back and right forward,
                    three fingers down Show Desktop
    tap and hold:   the middle button
The more-* traces select it first.

"Every gesture" also maps two of the trackpads' eight: the three-finger click and the
three-finger tap to the middle button. The trackpad-* traces name their devices (format
version 3): the Magic Mouse's lines stay as they are, and a trackpad's frames and events carry
"@<id>".
"""

import os
import random

HERE = os.path.dirname(os.path.abspath(__file__))
BROWSING = "6F1C2A10-0000-4000-8000-00000000000B"
MORE_GESTURES = "6F1C2A10-0000-4000-8000-00000000000C"
FRAME_INTERVAL = 1 / 90


def seconds(t):
    return f"{t:.4f}"


def position(v):
    return f"{v:.4f}".rstrip("0").rstrip(".") if v != int(v) else f"{v:.1f}"


class Trace:
    def __init__(self, name, *comments, version=1):
        self.name = name
        self.comments = comments
        self.version = version
        self.lines = []

    def add(self, t, text):
        self.lines.append((round(t, 4), len(self.lines), text))

    def frame(self, t, contacts=(), device=None):
        words = " ".join(f"{i}:{position(x)},{position(y)}" for i, x, y in contacts)
        at = f"@{device} " if device is not None else ""
        self.add(t, ("frame " + at + words).rstrip())

    def device(self, t, ident, kind, name):
        self.add(t, f"device {ident} {kind} {name}")

    def use(self, t, ident, on):
        self.add(t, f"use @{ident} {'on' if on else 'off'}")

    def mouse(self, t, kind, button=0, source="mouse"):
        if kind == "scroll":
            self.add(t, f"scroll {source}")
        else:
            self.add(t, f"{kind} {button} {source}")

    def state(self, t, text):
        self.add(t, text)

    def write(self):
        with open(os.path.join(HERE, self.name + ".trace"), "w", encoding="utf-8") as out:
            out.write(f"tactora-trace {self.version}\n")
            for comment in self.comments:
                out.write(f"# {comment}\n")
            for t, _, text in sorted(self.lines):
                out.write(f"{seconds(t)} {text}\n")


def fingers(n, x=0.5):
    """The self-check's finger(1) ... finger(n): all at (x, 0.5)."""
    return [(i, x, 0.5) for i in range(1, n + 1)]


# --- The recogniser's own self-check, scenario by scenario ------------------------------------


def self_check():
    taps = Trace("selfcheck-1-taps",
                 "Self-check 1: taps of one to four fingers, each down for 0.15 s.",
                 "Each is a tap of its finger count when the fingers lift, and its action",
                 "(slots 4 to 7: left, right, paste, Show Desktop) runs 0.08 s later.")
    for n in range(1, 5):
        start = 1.0 + (n - 1) * 2
        taps.frame(start, fingers(n))
        taps.frame(start + 0.15)
    taps.write()

    click = Trace("selfcheck-2-click",
                  "Self-check 2: a click is not also a tap. One finger lands, the button goes",
                  "down and up while it rests, and the finger lifts 0.15 s after landing.",
                  "The click is a one-finger click (slot 0: middle, so the press becomes",
                  "button 2); the touch gives no tap although its length and stillness would.")
    click.frame(2.0, fingers(1))
    click.mouse(2.05, "left-down")
    click.frame(2.06, fingers(1))
    click.mouse(2.1, "left-up")
    click.frame(2.15)
    click.write()

    movement = Trace("selfcheck-3-movement",
                     "Self-check 3: movement. The finger slides 0.1 (more than 0.045) before",
                     "lifting: no tap.")
    movement.frame(1.0, fingers(1))
    movement.frame(1.1, fingers(1, 0.6))
    movement.frame(1.2)
    movement.write()

    duration = Trace("selfcheck-4-duration",
                     "Self-check 4: duration. A finger resting for a whole second is not a tap.")
    duration.frame(2.0, fingers(1))
    duration.frame(3.0)
    duration.write()

    many = Trace("selfcheck-5-too-many",
                 "Self-check 5: too many fingers. Five fingers for 0.1 s: no tap.")
    many.frame(4.0, fingers(5))
    many.frame(4.1)
    many.write()

    gradual = Trace("selfcheck-6-gradual-release",
                    "Self-check 6: gradual release. One finger, then two, then one again; the",
                    "touch is a two-finger tap over its whole 0.16 s, so slot 5 (right) runs.")
    gradual.frame(5.0, fingers(1))
    gradual.frame(5.04, fingers(2))
    gradual.frame(5.1, fingers(1))
    gradual.frame(5.16)
    gradual.write()

    noise = Trace("selfcheck-7-noise",
                  "Self-check 7: noise. A touch of 0.01 s (under 0.035 s) is no tap.")
    noise.frame(6.0, fingers(1))
    noise.frame(6.01)
    noise.write()


# --- The four flows of a tap and a click ------------------------------------------------------


def flows():
    tap = Trace("flow-1-two-finger-tap",
                "Flow 1: a two-finger tap. It is recognised when the fingers lift and slot 5's",
                "action (right click) runs 0.08 s after the release.")
    tap.frame(10.0, fingers(2))
    tap.frame(10.05, fingers(2))
    tap.frame(10.1)
    tap.write()

    click = Trace("flow-2-two-finger-click",
                  "Flow 2: a two-finger click. Two fingers rest; the physical left button goes",
                  "down, drags and comes up. Slot 1 maps it to a right click, so the down, the",
                  "drags and the up all become the right button's (button 1); the touch that",
                  "held the click gives no tap when the fingers lift.")
    t = 20.0
    while t < 20.5:
        click.frame(t, fingers(2))
        t += 0.02
    click.mouse(20.2, "left-down")
    click.mouse(20.25, "left-drag")
    click.mouse(20.3, "left-drag")
    click.mouse(20.35, "left-up")
    click.frame(20.5)
    click.write()

    veto = Trace("flow-3-tap-vetoed-by-click",
                 "Flow 3: a tap vetoed by a click. Two fingers tap, and 0.05 s after they lift",
                 "the button goes down (no finger rests then, so it stays an ordinary click).",
                 "The tap is recognised, but its action, due 0.08 s after the release, does",
                 "not run: a click came within the wait.")
    veto.frame(30.0, fingers(2))
    veto.frame(30.05, fingers(2))
    veto.frame(30.1)
    veto.mouse(30.15, "left-down")
    veto.mouse(30.2, "left-up")
    veto.write()

    switch = Trace("flow-4-profile-switch-in-wait",
                   "Flow 4: a profile switch inside the wait. A two-finger tap is recognised,",
                   "and 0.04 s later the user selects the Browsing profile: the waiting right",
                   "click is dropped. The next two-finger tap runs Browsing's slot 5, forward.")
    switch.frame(40.0, fingers(2))
    switch.frame(40.1)
    switch.state(40.14, f"profile {BROWSING}")
    switch.frame(41.0, fingers(2))
    switch.frame(41.1)
    switch.write()


# --- Sequences made the way the surface reports them ------------------------------------------


class Surface:
    """Frames at about 90 a second with jitter, for fingers that land, drift and lift."""

    def __init__(self, trace, seed):
        self.trace = trace
        self.random = random.Random(seed)

    def touch(self, start, spots, length, spread=0.008, drift=0.0, ids=None):
        """Fingers at `spots` land within `spread` s of `start`, stay about `length` s while
        drifting `drift` per second, and lift within `spread` s of each other. Returns the time
        of the empty frame that ends the touch."""
        ids = ids or list(range(1, len(spots) + 1))
        lands = [start + self.random.uniform(0, spread) * (k > 0) for k in range(len(spots))]
        lifts = [start + length - self.random.uniform(0, spread) * (k > 0)
                 for k in range(len(spots))]
        angles = [self.random.uniform(-1, 1) for _ in spots]
        t = start
        while True:
            down = [k for k in range(len(spots)) if lands[k] <= t < lifts[k]]
            if not down and t > start:
                self.trace.frame(t)
                return t
            contacts = []
            for k in down:
                moved = drift * (t - lands[k])
                x = spots[k][0] + moved * angles[k] + self.random.uniform(-0.0008, 0.0008)
                y = spots[k][1] + moved * (1 - abs(angles[k])) + self.random.uniform(-0.0008, 0.0008)
                contacts.append((ids[k], round(x, 4), round(y, 4)))
            self.trace.frame(t, contacts)
            t += FRAME_INTERVAL + self.random.uniform(-0.0015, 0.0015)


    def fingers(self, fingers):
        """Each finger (id, x, y, lands, lifts, vx, vy) lands and lifts at its own times and
        moves at (vx, vy) per second while down, with the sensor's jitter. Frames run from the
        first landing to the empty frame after the last lift, whose time this returns."""
        t = min(f[3] for f in fingers)
        while True:
            down = [f for f in fingers if f[3] <= t < f[4]]
            if not down and t > min(f[3] for f in fingers):
                self.trace.frame(t)
                return t
            contacts = []
            for ident, x, y, lands, _, vx, vy in down:
                moved = t - lands
                contacts.append((ident,
                                 round(x + vx * moved + self.random.uniform(-0.0008, 0.0008), 4),
                                 round(y + vy * moved + self.random.uniform(-0.0008, 0.0008), 4)))
            self.trace.frame(t, contacts)
            t += FRAME_INTERVAL + self.random.uniform(-0.0015, 0.0015)


def row(n, left=0.35, step=0.1, y=0.45):
    return [(left + step * k, y + 0.02 * (k % 2)) for k in range(n)]


def realistic():
    taps = Trace("real-1-taps",
                 "Realistic taps, at about 90 frames a second with jitter: fingers land and",
                 "lift a few milliseconds apart and drift slowly. A one-, a two-, a three- and",
                 "a four-finger tap, each recognised at its last lift; their actions (left,",
                 "right, paste, Show Desktop) run 0.08 s later.")
    surface = Surface(taps, 11)
    t = 100.0
    for n in range(1, 5):
        end = surface.touch(t, row(n), 0.09 + 0.02 * n, spread=0.012, drift=0.02)
        t = end + 0.6
    taps.write()

    palm = Trace("real-2-resting-palm",
                 "A resting palm: five contacts land over 40 ms, rest for 1.2 s drifting a",
                 "little, and lift. More than four fingers spoil the touch: nothing is",
                 "recognised. Then a quick five-contact brush that drops to four before it",
                 "lifts: still nothing.")
    surface = Surface(palm, 12)
    end = surface.touch(200.0, row(5, left=0.2, step=0.13), 1.2, spread=0.04, drift=0.01)
    surface.touch(end + 0.5, row(5, left=0.2, step=0.13), 0.12, spread=0.03)
    palm.write()

    scroll = Trace("real-3-scrolling",
                   "Scrolling: one finger strokes up the surface while the mouse sends scroll",
                   "events. The stroke moves far more than 0.045, and a scroll marks the touch",
                   "as moving anyway: no tap. The second stroke is short and barely moves, yet",
                   "its scroll events alone keep it from being a one-finger tap.")
    surface = Surface(scroll, 13)
    end = surface.touch(300.0, [(0.5, 0.7)], 0.25, drift=0.4)
    t = 300.03
    while t < end:
        scroll.mouse(t, "scroll")
        t += 0.03
    start = end + 0.4
    surface.touch(start, [(0.5, 0.5)], 0.12, drift=0.05)
    scroll.mouse(start + 0.04, "scroll")
    scroll.mouse(start + 0.07, "scroll")
    scroll.write()

    press = Trace("real-4-long-press",
                  "A long press: one finger rests for 0.8 s (too long for a tap): nothing. Then",
                  "three fingers rest and the button is pressed and held for 0.3 s: a",
                  "three-finger click, mapped to copy, so the press is swallowed and copy runs",
                  "when the button comes up. The touch that held the click is no tap. A click",
                  "from another pointing device meanwhile passes untouched.")
    surface = Surface(press, 14)
    end = surface.touch(400.0, [(0.5, 0.5)], 0.8, drift=0.01)
    start = end + 0.5
    surface.touch(start, row(3), 0.9, spread=0.01, drift=0.005)
    press.mouse(start + 0.2, "left-down")
    press.mouse(start + 0.3, "left-drag")
    press.mouse(start + 0.5, "left-up")
    press.mouse(start + 0.6, "left-down", source="other")
    press.mouse(start + 0.65, "left-up", source="other")
    press.write()


def session():
    demo = Trace("session",
                 "Ten seconds of use, made as the surface reports it (about 90 frames a",
                 "second, jitter, staggered fingers, slow drift): one- to four-finger taps, a",
                 "two-finger click rewritten to the right button, a resting palm, a scroll, a",
                 "long press, and a tap cut short by a click. scripts/run replays this one.")
    surface = Surface(demo, 21)
    t = 500.0
    for n in (1, 2, 3, 4):
        t = surface.touch(t, row(n), 0.1 + 0.015 * n, spread=0.01, drift=0.02) + 0.7
    start = t
    end = surface.touch(start, row(2), 0.6, spread=0.01, drift=0.005)
    demo.mouse(start + 0.2, "left-down")
    demo.mouse(start + 0.3, "left-drag")
    demo.mouse(start + 0.4, "left-up")
    t = end + 0.8
    t = surface.touch(t, row(5, left=0.2, step=0.13), 1.0, spread=0.04, drift=0.01) + 0.8
    scroll_start = t
    t = surface.touch(t, [(0.5, 0.7)], 0.3, drift=0.35)
    s = scroll_start + 0.03
    while s < t:
        demo.mouse(s, "scroll")
        s += 0.03
    t = surface.touch(t + 0.8, [(0.5, 0.5)], 0.7, drift=0.01) + 0.8
    lift = surface.touch(t, row(2), 0.12, spread=0.01)
    demo.mouse(lift + 0.04, "left-down")
    demo.mouse(lift + 0.12, "left-up")
    demo.write()


# --- The gestures beyond the eight, with the "More gestures" profile ---------------------------


def still(ident, x, y, lands, lifts):
    return (ident, x, y, lands, lifts, 0.0, 0.0)


def more_gestures():
    regions = Trace("more-1-region-taps",
                    "Taps by region. One-finger taps on the left half, the right half and the",
                    "top band (the part by the fingertips, y from 0.75 up): each runs its",
                    "region's action (back, forward, Mission Control) instead of the",
                    "one-finger tap's, 0.08 s after the release as the tap would. A two-finger",
                    "tap is no region's: slot 5, right, runs as always.")
    regions.state(600.0, f"profile {MORE_GESTURES}")
    surface = Surface(regions, 31)
    t = 600.5
    for spot in ((0.25, 0.4), (0.75, 0.4), (0.5, 0.9)):
        t = surface.touch(t, [spot], 0.1, drift=0.02) + 0.6
    surface.touch(t, row(2), 0.12, spread=0.01, drift=0.02)
    regions.write()

    tips = Trace("more-2-tip-taps",
                 "Tip taps. One finger rests still; a second finger taps to its left (copy)",
                 "and, later, to its right (paste), each recognised when the tapping finger",
                 "lifts. The resting finger's own lift after 2.5 s is no tap. Then two",
                 "fingers landing together and one lifting early: no finger rested first, so",
                 "no tip tap, and the touch is too long for a tap.")
    tips.state(700.0, f"profile {MORE_GESTURES}")
    surface = Surface(tips, 32)
    end = surface.fingers([still(1, 0.5, 0.5, 700.5, 703.0),
                           still(2, 0.36, 0.52, 701.1, 701.2),
                           still(3, 0.64, 0.51, 701.9, 702.01)])
    surface.fingers([still(4, 0.45, 0.5, end + 0.6, end + 1.2),
                     still(5, 0.58, 0.5, end + 0.605, end + 0.7)])
    tips.write()

    swipes = Trace("more-3-swipes",
                   "Swipes. Two fingers sweep left while the mouse sends scroll events: once",
                   "they have covered 0.15 the swipe is recognised and back runs at once, and",
                   "from then until they lift the scroll events are swallowed; those before",
                   "pass. One finger sweeps up (Mission Control), three sweep down (Show",
                   "Desktop). Then a slow one-finger scroll that covers 0.08 in 0.4 s: no",
                   "swipe, and every scroll event passes.")
    swipes.state(800.0, f"profile {MORE_GESTURES}")
    surface = Surface(swipes, 33)

    def sweep(start, spots, vx, vy, length):
        end = surface.fingers([(k + 1, x, y, start + 0.004 * k, start + length - 0.003 * k, vx, vy)
                               for k, (x, y) in enumerate(spots)])
        s = start + 0.02
        while s < end:
            swipes.mouse(s, "scroll")
            s += 0.03
        return end

    t = sweep(800.5, [(0.6, 0.5), (0.7, 0.52)], -0.9, 0.0, 0.35) + 0.8
    t = sweep(t, [(0.5, 0.3)], 0.0, 0.9, 0.3) + 0.8
    t = surface.fingers([(k + 1, 0.4 + 0.1 * k, 0.75, t + 0.005 * k, t + 0.3, 0.0, -0.9)
                         for k in range(3)]) + 0.8
    sweep(t, [(0.5, 0.4)], 0.0, 0.2, 0.4)
    swipes.write()

    hold = Trace("more-4-tap-and-hold",
                 "Tap and hold to drag. A one-finger tap on the left half, and 0.12 s after",
                 "its lift a finger lands there and stays. The tap is the left half's tap",
                 "(back, 0.08 s after its release); once the finger has rested longer than a",
                 "tap may last (0.3 s), the middle button goes down, and it comes up when the",
                 "finger lifts 1.2 s later. A finger landing 0.4 s after a tap (later than",
                 "0.25 s) holds nothing.")
    hold.state(900.0, f"profile {MORE_GESTURES}")
    surface = Surface(hold, 34)
    end = surface.touch(900.5, [(0.3, 0.5)], 0.1, drift=0.01)
    end = surface.touch(end + 0.12, [(0.3, 0.5)], 1.2, drift=0.01)
    end = surface.touch(end + 0.8, [(0.3, 0.5)], 0.1, drift=0.01)
    surface.touch(end + 0.4, [(0.3, 0.5)], 1.0, drift=0.01)
    hold.write()

    clicked = Trace("more-5-hold-ended-by-click",
                    "A physical click ends a tap and hold. The middle button is held by a tap",
                    "and hold; the user presses the mouse's own button while the finger rests:",
                    "the held middle button comes up first, exactly once, and the press is a",
                    "one-finger click (slot 0, middle) rewritten through its up. The finger's",
                    "lift afterwards sends no second up.")
    clicked.state(1000.0, f"profile {MORE_GESTURES}")
    surface = Surface(clicked, 35)
    end = surface.touch(1000.5, [(0.7, 0.5)], 0.1, drift=0.01)
    start = end + 0.1
    surface.touch(start, [(0.7, 0.5)], 1.5, drift=0.01)
    clicked.mouse(start + 0.8, "left-down")
    clicked.mouse(start + 0.9, "left-drag")
    clicked.mouse(start + 1.0, "left-up")
    clicked.write()


# --- Trackpads beside the Magic Mouse, each with a recogniser of its own -------------------------


TRACKPAD = 5


def trackpad_fingers(n, x=0.4):
    """n fingers side by side on the trackpad."""
    return [(i, x + 0.08 * (i - 1), 0.5) for i in range(1, n + 1)]


def trackpads():
    tap = Trace("trackpad-1-three-finger-tap",
                "A three-finger tap on a Magic Trackpad. Its recogniser is its own: the tap is",
                "recognised when the fingers lift, and the trackpad's three-finger tap slot",
                "(middle) runs 0.08 s after the release, as a tap on the mouse would.",
                version=3)
    tap.device(1.0, TRACKPAD, "magic-trackpad", "Magic Trackpad")
    tap.frame(1.5, trackpad_fingers(3), TRACKPAD)
    tap.frame(1.55, trackpad_fingers(3), TRACKPAD)
    tap.frame(1.6, trackpad_fingers(3), TRACKPAD)
    tap.frame(1.65, device=TRACKPAD)
    tap.write()

    drag = Trace("trackpad-2-click-and-drag",
                 "A three-finger click and drag on a Magic Trackpad. Three fingers rest; the",
                 "trackpad's button goes down, drags and comes up. The trackpad's three-finger",
                 "click slot maps it to the middle button, so the down, every drag and the up",
                 "all become the middle button's (button 2) through to the up; the touch that",
                 "held the click gives no tap when the fingers lift.",
                 version=3)
    drag.device(2.0, TRACKPAD, "magic-trackpad", "Magic Trackpad")
    t = 2.5
    while t < 3.2:
        drag.frame(t, trackpad_fingers(3), TRACKPAD)
        t += 0.02
    drag.mouse(2.7, "left-down", source=f"@{TRACKPAD}")
    for k in range(1, 5):
        drag.mouse(2.7 + 0.06 * k, "left-drag", source=f"@{TRACKPAD}")
    drag.mouse(3.05, "left-up", source=f"@{TRACKPAD}")
    drag.frame(3.2, device=TRACKPAD)
    drag.write()

    both = Trace("trackpad-3-mouse-and-trackpad-taps",
                 "A one-finger tap on the mouse and a three-finger tap on the trackpad, landing",
                 "and lifting within a few milliseconds of each other. Each device's frames go",
                 "to its own recogniser, so they are two gestures, not one of four fingers: the",
                 "mouse's tap (slot 4, left) and the trackpad's (its three-finger tap, middle).",
                 version=3)
    both.device(3.0, TRACKPAD, "magic-trackpad", "Magic Trackpad")
    for k in range(7):
        t = 3.5 + 0.02 * k
        both.frame(t, fingers(1))
        both.frame(t + 0.004, trackpad_fingers(3), TRACKPAD)
    both.frame(3.64)
    both.frame(3.646, device=TRACKPAD)
    both.write()

    off = Trace("trackpad-4-switched-off",
                "A trackpad the user switches off. A three-finger tap runs the middle button;",
                "then the trackpad is switched off, and the same tap and a click on it change",
                "nothing (the program no longer listens to it). Switched on again, its next",
                "tap runs the middle button again.",
                version=3)
    off.device(4.0, TRACKPAD, "built-in-trackpad", "Apple Internal Keyboard / Trackpad")
    for start in (4.5, 5.5, 6.5):
        off.frame(start, trackpad_fingers(3), TRACKPAD)
        off.frame(start + 0.05, trackpad_fingers(3), TRACKPAD)
        if start == 5.5:
            off.mouse(start + 0.06, "left-down", source=f"@{TRACKPAD}")
            off.mouse(start + 0.08, "left-up", source=f"@{TRACKPAD}")
        off.frame(start + 0.1, trackpad_fingers(3), TRACKPAD)
        off.frame(start + 0.15, device=TRACKPAD)
    off.use(5.0, TRACKPAD, False)
    off.use(6.0, TRACKPAD, True)
    off.write()


if __name__ == "__main__":
    self_check()
    flows()
    realistic()
    session()
    more_gestures()
    trackpads()
