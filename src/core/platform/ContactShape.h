#pragma once

namespace tactora {

// What the sensor reports of a contact's shape besides its position: its size, the angle of
// its long axis and the lengths of its two axes, each the sensor's own 32-bit value as given.
// A fingertip is small and nearly round; a palm, or a thumb lying on its side, is large and
// long.
struct ContactShape {
    float size = 0;
    float angle = 0;
    float majorAxis = 0;
    float minorAxis = 0;

    bool operator==(const ContactShape&) const = default;
};

}  // namespace tactora
