#pragma once

#include <cstdint>
#include <functional>
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
    std::optional<std::string> frontmostBundleIdentifier() const override {
        return frontmostBundle;
    }
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

    std::optional<std::int32_t> frontmost = 42;
    std::optional<std::string> frontmostBundle = "com.example.Editor";
    bool active = false;
    std::int32_t own = 7;
    std::vector<std::int32_t> instances{7};  // this process alone
    std::vector<std::int32_t> activated;
    std::vector<std::string> openedURLs;
    std::function<void()> wake;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
