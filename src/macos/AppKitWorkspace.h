#pragma once

#import <Foundation/Foundation.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/Workspace.h"

namespace tactora::macos {

// NSWorkspace, NSRunningApplication and the shared application.
class AppKitWorkspace final : public Workspace {
  public:
    AppKitWorkspace() = default;
    ~AppKitWorkspace() override;

    AppKitWorkspace(const AppKitWorkspace&) = delete;
    AppKitWorkspace& operator=(const AppKitWorkspace&) = delete;

    std::optional<std::int32_t> frontmostProcessID() const override;
    std::optional<std::string> frontmostBundleIdentifier() const override;
    bool isActive() const override;
    std::vector<std::int32_t> instanceProcessIDs() const override;
    std::int32_t ownProcessID() const override;
    void activateApplication(std::int32_t processID) override;
    void activate() override;
    void openURL(const std::string& url) override;
    void terminate() override;
    void observeWake(std::function<void()> handler) override;

  private:
    // The wake registration; the notification centre keeps it until it is removed.
    id __strong wakeObserver_;
};

}  // namespace tactora::macos
