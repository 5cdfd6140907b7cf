#include "macos/AlertRecordingDialog.h"

#include "macos/StringConversion.h"

namespace tactora::macos {

void AlertRecordingDialog::setLabelText(const std::string& text) {
    label_.stringValue = toNSString(text);
}

void AlertRecordingDialog::setSaveEnabled(bool enabled) {
    saveButton_.enabled = enabled;
}

}  // namespace tactora::macos
