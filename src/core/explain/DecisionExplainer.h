#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <utility>

#include "core/app/ControllerObserver.h"

namespace tactora {

// Says why every touch that became no gesture came to nothing, why a recognised gesture's action
// was not carried out, what became of every mouse event the tap decided on, and which ups a
// change of state sent for held presses. One line per decision, handed to `line` with the
// controller's time:
//
//   dropped <reason> <fingers>          a touch of that many fingers became no gesture, or its
//                                       gesture was recognised while gestures could not run
//   action-dropped <action> <reason>    a gesture's action was not carried out
//   <event> <button> <sender> <fate>    a mouse event: passed, swallowed, rewritten button B;
//                                       its sender "mouse", "other", or as nameSenders() says
//   up-sent button <B>                  a held press was let go of by a change of state
//
// Reasons and events are written with the words of DecisionWords.h. Main thread, as every
// observer; `line` is called from inside the controller's notes and must not call back into it.
class DecisionExplainer final : public ControllerObserver {
  public:
    using Line = std::function<void(double time, const std::string& what)>;

    explicit DecisionExplainer(Line line);

    // The name of a sender that is not the Magic Mouse ("@7"), or "" for "other".
    using SenderName = std::function<std::string(std::uint64_t sender)>;
    void nameSenders(SenderName name) { senderName_ = std::move(name); }

    void touchDropped(const TouchDropNote& note) override;
    void actionDropped(const ActionDropNote& note) override;
    void mouseEventDecided(const MouseEventNote& note) override;
    void pressesReleased(const PressesReleasedNote& note) override;

  private:
    Line line_;
    SenderName senderName_;
};

}  // namespace tactora
