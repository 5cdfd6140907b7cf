#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/platform/ActionValuePicker.h"

namespace tactora::testing {

// Answers each panel as the test scripted it, and remembers what it was shown.
class FakeActionValuePicker final : public ActionValuePicker {
  public:
    std::optional<std::string> chooseApplication(const PickPanelTexts& texts) override {
        panels.push_back(texts);
        return application;
    }
    std::optional<std::string> chooseFile(const PickPanelTexts& texts) override {
        panels.push_back(texts);
        return file;
    }
    std::optional<std::string> chooseFromList(const PickListTexts& texts,
                                              const std::vector<std::string>& entries,
                                              const std::string& current) override {
        listTexts = texts;
        listEntries = entries;
        listCurrent = current;
        ++listsShown;
        return listChoice;
    }

    std::optional<std::string> application;
    std::optional<std::string> file;
    std::optional<std::string> listChoice;

    std::vector<PickPanelTexts> panels;
    std::optional<PickListTexts> listTexts;
    std::vector<std::string> listEntries;
    std::string listCurrent;
    int listsShown = 0;
};

}  // namespace tactora::testing
