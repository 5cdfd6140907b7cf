#pragma once

#include <functional>
#include <string>

#include "core/platform/Opener.h"

namespace tactora::macos {

// Opens applications, files and addresses with NSWorkspace; its answers come back on the main
// queue.
class WorkspaceOpener final : public Opener {
  public:
    bool hasApplication(const std::string& bundleID) const override;
    bool hasFile(const std::string& path) const override;
    std::string applicationName(const std::string& bundleID) const override;

    void openApplication(const std::string& bundleID, std::function<void(bool)> done) override;
    void openFile(const std::string& path, std::function<void(bool)> done) override;
    void openAddress(const std::string& url, std::function<void(bool)> done) override;
};

}  // namespace tactora::macos
