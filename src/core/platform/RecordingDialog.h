#pragma once

#include <string>

namespace tactora {

// The open recording dialog, as the controller's key handler may change it while it runs.
// Main thread only, valid only while the dialog runs.
class RecordingDialog {
  public:
    virtual ~RecordingDialog() = default;

    // The large label that shows what was pressed.
    virtual void setLabelText(const std::string& text) = 0;

    // The save button, disabled when the dialog opens.
    virtual void setSaveEnabled(bool enabled) = 0;
};

}  // namespace tactora
