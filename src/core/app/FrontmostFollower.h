#pragma once

#include "core/profiles/Uuid.h"

namespace tactora {

// What other parts may ask of the part that makes the profile of the application in front
// active. Main thread only.
class FrontmostFollower {
  public:
    virtual ~FrontmostFollower() = default;

    // The profile of the application in front, or the user's choice when it has none.
    virtual Uuid frontmostProfile() = 0;
    // Switches to frontmostProfile() when that is not the active one already.
    virtual void followFrontmost() = 0;

  protected:
    FrontmostFollower() = default;
    FrontmostFollower(const FrontmostFollower&) = default;
    FrontmostFollower(FrontmostFollower&&) = default;
    FrontmostFollower& operator=(const FrontmostFollower&) = default;
    FrontmostFollower& operator=(FrontmostFollower&&) = default;
};

}  // namespace tactora
