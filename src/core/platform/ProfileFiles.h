#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

namespace tactora {

// The files that profiles are exported to and imported from: the panels that choose them and
// the reading and writing of their bytes. Main thread only.
class ProfileFiles {
  public:
    // The path chosen in a panel, or nothing when it was cancelled.
    using PathChosen = std::function<void(std::optional<std::string> path)>;

    virtual ~ProfileFiles() = default;

    // A save panel for a JSON file, proposing `suggestedName`, showing `message`: a sheet on
    // the settings window. Returns at once; `chosen` runs on the main thread once the panel
    // closes.
    virtual void chooseExportPath(const std::string& suggestedName, const std::string& message,
                                  PathChosen chosen) = 0;

    // An open panel for one JSON file, showing `message`, as chooseExportPath() shows its.
    virtual void chooseImportPath(const std::string& message, PathChosen chosen) = 0;

    // At most the first `limit` bytes of the file, or nothing when it cannot be read.
    virtual std::optional<std::string> read(const std::string& path, std::size_t limit) = 0;

    // Replaces the file's contents with `bytes` as a whole; false when that failed.
    virtual bool write(const std::string& path, const std::string& bytes) = 0;
};

}  // namespace tactora
