#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>

#include "app/fakes/CallLog.h"
#include "core/platform/ProfileFiles.h"

namespace tactora::testing {

// Files in memory. The panels answer `exportPath` and `importPath`; `files` maps a path to its
// contents; writing fails for paths in `unwritable`.
class FakeProfileFiles final : public ProfileFiles {
  public:
    explicit FakeProfileFiles(CallLog& log) : log_(log) {}

    std::optional<std::string> chooseExportPath(const std::string& suggestedName,
                                                const std::string& /*message*/) override {
        log_.add("files.chooseExportPath");
        suggested = suggestedName;
        return exportPath;
    }
    std::optional<std::string> chooseImportPath(const std::string& /*message*/) override {
        log_.add("files.chooseImportPath");
        return importPath;
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

    std::optional<std::string> exportPath;
    std::optional<std::string> importPath;
    std::map<std::string, std::string> files;
    std::string unwritable = "/read-only/profiles.json";
    std::string suggested;
    std::size_t lastLimit = 0;

  private:
    CallLog& log_;
};

}  // namespace tactora::testing
