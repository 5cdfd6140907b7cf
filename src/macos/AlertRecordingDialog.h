#pragma once

#import <AppKit/AppKit.h>

#include <string>

#include "core/platform/RecordingDialog.h"

namespace tactora::macos {

// The open recording alert's label and save button.
class AlertRecordingDialog final : public RecordingDialog {
  public:
    AlertRecordingDialog(NSTextField* label, NSButton* saveButton)
        : label_(label), saveButton_(saveButton) {}

    void setLabelText(const std::string& text) override;
    void setSaveEnabled(bool enabled) override;

  private:
    NSTextField* __strong label_;
    NSButton* __strong saveButton_;
};

}  // namespace tactora::macos
