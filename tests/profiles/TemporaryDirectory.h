#pragma once

#include <filesystem>
#include <set>
#include <string>

#include "core/profiles/Uuid.h"

namespace tactora {

// A fresh directory under the system's temporary directory, deleted with everything in it when
// the object goes.
class TemporaryDirectory {
  public:
    TemporaryDirectory()
        : path_(std::filesystem::temp_directory_path() /
                ("tactora-test-" + Uuid::random().text())) {
        std::filesystem::create_directories(path_);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }

    // The names of the entries directly inside `directory`.
    static std::set<std::string> entries(const std::filesystem::path& directory) {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(directory)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace tactora
