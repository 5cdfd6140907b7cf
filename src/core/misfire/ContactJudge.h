#pragma once

#include "core/misfire/MisfireOptions.h"

// Pure judgements about single contacts. Any thread.
namespace tactora::contact {

// Whether a contact of this size is larger than a fingertip may be.
inline bool isLarge(float size, double largestFingertip) {
    return static_cast<double>(size) > largestFingertip;
}

// Whether a position lies in one of the bands along the edges. The surface's y grows toward
// the front, where the fingertips rest; x from left to right. A band's inner border belongs to
// the middle of the surface.
inline bool inEdgeBand(double x, double y, const EdgeBands& bands) {
    return x < bands.left || x > 1 - bands.right || y > 1 - bands.front || y < bands.back;
}

}  // namespace tactora::contact
