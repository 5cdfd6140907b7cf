#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/platform/Opener.h"

namespace tactora::testing {

// Installed applications and existing files as the test says; every open is recorded and
// answered when the test calls answer().
class FakeOpener final : public Opener {
  public:
    struct Opened {
        std::string kind;  // "application", "file" or "address"
        std::string value;
        bool operator==(const Opened&) const = default;
    };

    bool hasApplication(const std::string& bundleID) const override {
        return applications.contains(bundleID);
    }
    bool hasFile(const std::string& path) const override { return files.contains(path); }
    std::string applicationName(const std::string& bundleID) const override {
        const auto found = names.find(bundleID);
        return found == names.end() ? bundleID : found->second;
    }

    void openApplication(const std::string& bundleID, std::function<void(bool)> done) override {
        add("application", bundleID, std::move(done));
    }
    void openFile(const std::string& path, std::function<void(bool)> done) override {
        add("file", path, std::move(done));
    }
    void openAddress(const std::string& url, std::function<void(bool)> done) override {
        add("address", url, std::move(done));
    }

    // Answers every open still waiting, oldest first.
    void answer(bool succeeded) {
        std::vector<std::function<void(bool)>> waiting = std::exchange(pending_, {});
        for (const auto& done : waiting) {
            done(succeeded);
        }
    }

    std::set<std::string> applications;
    std::set<std::string> files;
    std::map<std::string, std::string> names;
    std::vector<Opened> opened;

  private:
    void add(std::string kind, const std::string& value, std::function<void(bool)> done) {
        opened.push_back({std::move(kind), value});
        pending_.push_back(std::move(done));
    }

    std::vector<std::function<void(bool)>> pending_;
};

}  // namespace tactora::testing
