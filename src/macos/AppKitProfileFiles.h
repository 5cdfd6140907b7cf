#pragma once

#import "macos/TASettingsControls.h"

#include <cstddef>
#include <optional>
#include <string>

#include "core/platform/ProfileFiles.h"

namespace tactora::macos {

// Save and open panels for JSON files, as sheets on the settings window (free-standing while
// the window is not on screen), and whole-file reading and atomic writing.
class AppKitProfileFiles final : public ProfileFiles {
  public:
    // `controls` holds the settings window once it is built.
    explicit AppKitProfileFiles(TASettingsControls* controls) : controls_(controls) {}

    void chooseExportPath(const std::string& suggestedName, const std::string& message,
                          PathChosen chosen) override;
    void chooseImportPath(const std::string& message, PathChosen chosen) override;
    std::optional<std::string> read(const std::string& path, std::size_t limit) override;
    bool write(const std::string& path, const std::string& bytes) override;

  private:
    void begin(NSSavePanel* panel, PathChosen chosen);

    TASettingsControls* __strong controls_;
};

}  // namespace tactora::macos
