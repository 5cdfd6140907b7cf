#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

namespace tactora::testing {

// A fresh directory under the system's temporary directory, removed with everything in it at
// the end of the test. Each one has a name of its own, because the bridge never unloads a
// library: a path that was loaded once would be found loaded again even after its file went.
class ScratchDirectory {
  public:
    ScratchDirectory() : path_(uniquePath()) { std::filesystem::create_directories(path_); }
    ~ScratchDirectory() { std::filesystem::remove_all(path_); }
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    std::string file(const std::string& name) const { return (path_ / name).string(); }

  private:
    static std::filesystem::path uniquePath() {
        static int made = 0;
        return std::filesystem::temp_directory_path() /
               ("tactora-bridge-" + std::to_string(::getpid()) + "-" + std::to_string(++made));
    }

    std::filesystem::path path_;
};

}  // namespace tactora::testing
