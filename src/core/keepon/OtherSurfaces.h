#pragma once

namespace tactora {

// The touch devices in use beside the Magic Mouse, as keeping gestures on sees them: while one
// is, the Magic Mouse coming and going is followed without pausing gestures, so that the other
// devices go on working. Main thread only.
class OtherSurfaces {
  public:
    virtual ~OtherSurfaces() = default;

    // Whether a device beside the Magic Mouse is in use now.
    virtual bool othersInUse() const = 0;
    // Brings the devices, the Magic Mouse among them, up to date after one came or went,
    // touching none whose use goes on.
    virtual void followDevices() = 0;

  protected:
    OtherSurfaces() = default;
    OtherSurfaces(const OtherSurfaces&) = default;
    OtherSurfaces& operator=(const OtherSurfaces&) = default;
    OtherSurfaces(OtherSurfaces&&) = default;
    OtherSurfaces& operator=(OtherSurfaces&&) = default;
};

}  // namespace tactora
