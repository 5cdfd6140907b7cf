#pragma once

#include <cstddef>
#include <optional>
#include <string>

namespace tactora {

// The files that profiles are exported to and imported from: the panels that choose them and
// the reading and writing of their bytes. Main thread only; each panel is modal and returns
// when it closes.
class ProfileFiles {
  public:
    virtual ~ProfileFiles() = default;

    // A save panel for a JSON file, proposing `suggestedName`, showing `message`. The chosen
    // path, or nothing when cancelled.
    virtual std::optional<std::string> chooseExportPath(const std::string& suggestedName,
                                                        const std::string& message) = 0;

    // An open panel for one JSON file, showing `message`. The chosen path, or nothing.
    virtual std::optional<std::string> chooseImportPath(const std::string& message) = 0;

    // At most the first `limit` bytes of the file, or nothing when it cannot be read.
    virtual std::optional<std::string> read(const std::string& path, std::size_t limit) = 0;

    // Replaces the file's contents with `bytes` as a whole; false when that failed.
    virtual bool write(const std::string& path, const std::string& bytes) = 0;
};

}  // namespace tactora
