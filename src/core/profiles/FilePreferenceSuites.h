#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "core/profiles/FilePreferences.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// The user's preferences on systems without a user defaults database: one file per domain,
// "<directory>/<domain>.json". Asking twice for one domain gives the same object, so every
// user of a domain sees the same values. Main thread only.
class FilePreferenceSuites : public PreferenceSuites {
  public:
    // The domain that standard() returns.
    static constexpr const char* standardDomain = "app.tactora.Tactora";

    // "$XDG_CONFIG_HOME/Tactora" when that variable holds an absolute path, else
    // "$HOME/.config/Tactora"; nothing when neither is known.
    static std::optional<std::filesystem::path> defaultDirectory();

    // Keeps its files in `directory`, which is created on the first write.
    explicit FilePreferenceSuites(std::filesystem::path directory);

    std::shared_ptr<Preferences> standard() override;
    std::shared_ptr<Preferences> suite(const std::string& name) override;
    void removeSuite(const std::string& name) override;

    // The file of a domain. Characters that could leave the directory or confuse a file system
    // are written as "%XX", so every name maps to its own file.
    std::filesystem::path fileFor(const std::string& domain) const;

  private:
    std::filesystem::path directory_;
    std::map<std::string, std::shared_ptr<FilePreferences>, std::less<>> domains_;
};

}  // namespace tactora
