#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <utility>

#include "app/fakes/CallLog.h"
#include "core/platform/ProfileFiles.h"

namespace tactora::testing {

// Files in memory. The panels answer `exportPath` and `importPath` as they open, or, with
// `holdPanels`, only when the test calls closePanel(); `files` maps a path to its contents;
// writing fails for paths in `unwritable`.
class FakeProfileFiles final : public ProfileFiles {
  public:
    explicit FakeProfileFiles(CallLog& log) : log_(log) {}

    void chooseExportPath(const std::string& suggestedName, const std::string& /*message*/,
                          PathChosen chosen) override {
        log_.add("files.chooseExportPath");
        suggested = suggestedName;
        open(std::move(chosen), exportPath);
    }
    void chooseImportPath(const std::string& /*message*/, PathChosen chosen) override {
        log_.add("files.chooseImportPath");
        open(std::move(chosen), importPath);
    }
    // Closes the panel held open, answering `path`; false when none is open.
    bool closePanel(std::optional<std::string> path) {
        if (!heldPanel) {
            return false;
        }
        PathChosen chosen = std::move(heldPanel);
        heldPanel = nullptr;
        chosen(std::move(path));
        return true;
    }
    std::optional<std::string> read(const std::string& path, std::size_t limit) override {
        lastLimit = limit;
        const auto found = files.find(path);
        if (found == files.end()) {
            return std::nullopt;
        }
        return found->second.substr(0, limit);
    }
    bool write(const std::string& path, const std::string& bytes) override {
        if (path == unwritable) {
            return false;
        }
        files[path] = bytes;
        return true;
    }

    bool holdPanels = false;
    PathChosen heldPanel;
    std::optional<std::string> exportPath;
    std::optional<std::string> importPath;
    std::map<std::string, std::string> files;
    std::string unwritable = "/read-only/profiles.json";
    std::string suggested;
    std::size_t lastLimit = 0;

  private:
    void open(PathChosen chosen, const std::optional<std::string>& answer) {
        if (holdPanels) {
            heldPanel = std::move(chosen);
        } else {
            chosen(answer);
        }
    }

    CallLog& log_;
};

}  // namespace tactora::testing
