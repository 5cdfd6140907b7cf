#pragma once

#include <string>

namespace tactora {

// Where the controller asks what to call the active profile in the profile pop-up and the
// status item's tooltip: a part beside it that knows why the profile is active. Main thread only.
class ProfileTitleSource {
  public:
    virtual ~ProfileTitleSource() = default;

    virtual std::string activeProfileTitle() = 0;

  protected:
    ProfileTitleSource() = default;
    ProfileTitleSource(const ProfileTitleSource&) = default;
    ProfileTitleSource(ProfileTitleSource&&) = default;
    ProfileTitleSource& operator=(const ProfileTitleSource&) = default;
    ProfileTitleSource& operator=(ProfileTitleSource&&) = default;
};

}  // namespace tactora
