#pragma once

#include <functional>
#include <string>

#include "core/actions/ExtraAction.h"
#include "core/platform/RecordButtonState.h"

namespace tactora {

// What the controller asks of the further actions (opening, running, media keys, the system's
// views, modifier clicks), which are carried out by a part beside it. Main thread only.
class ExtraActionPerformer {
  public:
    virtual ~ExtraActionPerformer() = default;

    // Carries out `action` with its value (what it opens or runs; empty when it needs none).
    virtual void perform(ExtraAction action, const std::string& value) = 0;
    // The record button of a gesture row that holds `action` with `value`.
    virtual RecordButtonState rowButton(ExtraAction action, const std::string& value) = 0;
    // Lets the user choose the value for `action`, starting from `current`; `chosen` runs with
    // it once chosen (at once, with an empty value, for an action that needs none), and never
    // when the user cancels.
    virtual void choose(ExtraAction action, const std::string& current,
                        std::function<void(const std::string&)> chosen) = 0;

  protected:
    ExtraActionPerformer() = default;
    ExtraActionPerformer(const ExtraActionPerformer&) = default;
    ExtraActionPerformer(ExtraActionPerformer&&) = default;
    ExtraActionPerformer& operator=(const ExtraActionPerformer&) = default;
    ExtraActionPerformer& operator=(ExtraActionPerformer&&) = default;
};

}  // namespace tactora
