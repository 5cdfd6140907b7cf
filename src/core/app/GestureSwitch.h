#pragma once

#include <string>

namespace tactora {

// What a part beside the controller may do with the master switch and the sensor: switch
// gestures on or pause them as the program (which leaves the user's own choice alone), start the
// sensor again, and ask for the permissions as the permission buttons do. Main thread only.
class GestureSwitch {
  public:
    virtual ~GestureSwitch() = default;

    // Whether the sensor started at the last reconnect.
    virtual bool sensorReady() const = 0;
    // The sensor's status line as the last reconnect, or the last change followed, wrote it.
    virtual const std::string& sensorText() const = 0;
    // Whether the program itself is pausing or switching gestures on at this moment.
    virtual bool programActing() const = 0;

    // Ticks the switch as the program, through the same checks as the user's tick. True when
    // gestures are on afterwards.
    virtual bool switchOnAsProgram() = 0;
    virtual void pauseAsProgram() = 0;
    virtual void reconnect() = 0;
    // The Magic Mouse came or went while other touch devices stay in use, and the sensor
    // followed it without a restart: shows its status afresh and, when it is gone, lets go of
    // its held presses. Gestures stay as they are.
    virtual void sensorFollowed() = 0;
    // Prompts for the permission, then opens its pane of System Settings.
    virtual void access() = 0;
    virtual void monitor() = 0;

  protected:
    GestureSwitch() = default;
    GestureSwitch(const GestureSwitch&) = default;
    GestureSwitch(GestureSwitch&&) = default;
    GestureSwitch& operator=(const GestureSwitch&) = default;
    GestureSwitch& operator=(GestureSwitch&&) = default;
};

}  // namespace tactora
