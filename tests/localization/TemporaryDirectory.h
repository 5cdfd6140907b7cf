#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <string_view>

namespace tactora {

// A fresh directory under the system's temporary directory, removed with everything in it when
// the object goes away. For tests on one thread.
class TemporaryDirectory {
  public:
    TemporaryDirectory() {
        std::random_device random;
        const std::filesystem::path base = std::filesystem::temp_directory_path();
        do {
            path_ = base / ("tactora-test-" + std::to_string(random()) + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
    }

    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
    TemporaryDirectory(TemporaryDirectory&&) = delete;
    TemporaryDirectory& operator=(TemporaryDirectory&&) = delete;

    ~TemporaryDirectory() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    const std::filesystem::path& path() const { return path_; }

    // Writes `bytes` to the file at `relative`, creating the folders on the way; returns its path.
    std::filesystem::path write(const std::filesystem::path& relative,
                                std::string_view bytes) const {
        const std::filesystem::path file = path_ / relative;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream stream(file, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        return file;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace tactora
