#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/fakes/CallLog.h"
#include "core/platform/Workspace.h"

namespace tactora::testing {

class FakeWorkspace final : public Workspace {
  public:
    explicit FakeWorkspace(CallLog& log) : log_(log) {}

    std::optional<std::int32_t> frontmostProcessID() const override { return frontmost; }
    bool isActive() const override { return active; }

    std::vector<std::int32_t> instanceProcessIDs() const override {
        log_.add("workspace.instanceProcessIDs");
        return instances;
    }
    std::int32_t ownProcessID() const override { return own; }
    void activateApplication(std::int32_t processID) override {
        log_.add("workspace.activateApplication");
        activated.push_back(processID);
    }
    void requestShow(std::int32_t processID) override {
        log_.add("workspace.requestShow");
        showRequests.push_back(processID);
    }
    void observeShowRequests(std::function<void()> handler) override {
        log_.add("workspace.observeShowRequests");
        showRequested = std::move(handler);
    }
    void activate() override { log_.add("workspace.activate"); }
    void openURL(const std::string& url) override {
        log_.add("workspace.openURL");
        openedURLs.push_back(url);
    }
    void terminate() override { log_.add("workspace.terminate"); }
    void observeWake(std::function<void()> handler) override {
        log_.add("workspace.observeWake");
        wake = std::move(handler);
    }
    std::string frontmostBundleID() const override {
        ++bundleQueries;
        return frontmostBundle;
    }
    void observeFrontmostApplication(
        std::function<void(std::optional<std::int32_t>, std::string)> handler) override {
        log_.add("workspace.observeFrontmostApplication");
        frontmostChanged = std::move(handler);
    }
    std::vector<RunningApplication> regularApplications() const override { return running; }
    std::optional<std::string> applicationName(const std::string& bundleID) const override {
        const auto found = names.find(bundleID);
        return found == names.end() ? std::nullopt : std::optional<std::string>(found->second);
    }

    // Brings another application to the front, as the system would announce it.
    void bringToFront(std::optional<std::int32_t> processID, const std::string& bundleID) {
        frontmost = processID;
        frontmostBundle = bundleID;
        frontmostChanged(processID, bundleID);
    }

    std::optional<std::int32_t> frontmost = 42;
    std::string frontmostBundle = "com.example.Editor";
    // How often the frontmost application's bundle identifier was asked for.
    mutable int bundleQueries = 0;
    bool active = false;
    std::int32_t own = 7;
    std::vector<std::int32_t> instances{7};  // this process alone
    std::vector<std::int32_t> activated;
    std::vector<std::string> openedURLs;
    std::function<void()> wake;
    std::vector<std::int32_t> showRequests;
    std::function<void()> showRequested;
    std::function<void(std::optional<std::int32_t>, std::string)> frontmostChanged;
    std::vector<RunningApplication> running;
    std::map<std::string, std::string> names;  // bundle id to name, for applicationName()

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
