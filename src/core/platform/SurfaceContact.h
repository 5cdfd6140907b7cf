#pragma once

namespace tactora {

// One contact as the live view draws it: where it lies on the drawn surface, which shows the
// mouse from above with its front (where the fingertips rest) at the top. Both are fractions
// of the surface, 0...1: `left` of its width from the left edge, `top` of its length from the
// front edge.
struct SurfaceContact {
    double left = 0;
    double top = 0;

    bool operator==(const SurfaceContact&) const = default;
};

}  // namespace tactora
