#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tactora {

// The texts of an open panel.
struct PickPanelTexts {
    std::string message;
    std::string chooseButton;

    bool operator==(const PickPanelTexts&) const = default;
};

// The texts of a list to pick one entry from.
struct PickListTexts {
    std::string message;
    std::string informative;
    std::string chooseButton;
    std::string cancelButton;

    bool operator==(const PickListTexts&) const = default;
};

// The small modal panels in which the user chooses what an action opens or runs. Each call runs
// its panel to the end and returns the choice, or nothing when it was cancelled. Main thread
// only.
class ActionValuePicker {
  public:
    virtual ~ActionValuePicker() = default;

    // An open panel on the Applications folder that takes one application; its bundle
    // identifier (nothing when the chosen bundle has none).
    virtual std::optional<std::string> chooseApplication(const PickPanelTexts& texts) = 0;
    // An open panel that takes one file or folder; its path.
    virtual std::optional<std::string> chooseFile(const PickPanelTexts& texts) = 0;
    // An alert with a pop-up of `entries`, `current` selected when it is one of them.
    virtual std::optional<std::string> chooseFromList(const PickListTexts& texts,
                                                      const std::vector<std::string>& entries,
                                                      const std::string& current) = 0;
};

}  // namespace tactora
