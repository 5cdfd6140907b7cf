#pragma once

#import "macos/TAExtensionFilter.h"

#include <cstddef>
#include <optional>
#include <string>

#include "core/platform/ProfileFiles.h"

namespace tactora::macos {

// Save and open panels for JSON files, and whole-file reading and atomic writing.
class AppKitProfileFiles final : public ProfileFiles {
  public:
    AppKitProfileFiles();

    std::optional<std::string> chooseExportPath(const std::string& suggestedName,
                                                const std::string& message) override;
    std::optional<std::string> chooseImportPath(const std::string& message) override;
    std::optional<std::string> read(const std::string& path, std::size_t limit) override;
    bool write(const std::string& path, const std::string& bytes) override;

  private:
    // The panels keep their delegate weakly.
    TAExtensionFilter* __strong jsonFilter_;
};

}  // namespace tactora::macos
