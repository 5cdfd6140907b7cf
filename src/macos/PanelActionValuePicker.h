#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/platform/ActionValuePicker.h"

namespace tactora::macos {

// Runs the open panels and the list alert in which the user chooses what an action opens or
// runs, each modally.
class PanelActionValuePicker final : public ActionValuePicker {
  public:
    std::optional<std::string> chooseApplication(const PickPanelTexts& texts) override;
    std::optional<std::string> chooseFile(const PickPanelTexts& texts) override;
    std::optional<std::string> chooseFromList(const PickListTexts& texts,
                                              const std::vector<std::string>& entries,
                                              const std::string& current) override;
};

}  // namespace tactora::macos
