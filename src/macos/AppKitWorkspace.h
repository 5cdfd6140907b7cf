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
    bool isActive() const override;
    std::vector<std::int32_t> instanceProcessIDs() const override;
    std::int32_t ownProcessID() const override;
    void activateApplication(std::int32_t processID) override;
    void requestShow(std::int32_t processID) override;
    void observeShowRequests(std::function<void()> handler) override;
    void activate() override;
    void openURL(const std::string& url) override;
    void terminate() override;
    void observeWake(std::function<void()> handler) override;
    std::string frontmostBundleID() const override;
    void observeFrontmostApplication(
        std::function<void(std::optional<std::int32_t>, std::string)> handler) override;
    std::vector<RunningApplication> regularApplications() const override;
    std::optional<std::string> applicationName(const std::string& bundleID) const override;

  private:
    // The registrations; the notification centres keep them until they are removed.
    id __strong wakeObserver_;
    id __strong showObserver_;
    id __strong activationObserver_;
};

}  // namespace tactora::macos
