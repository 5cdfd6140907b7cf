#include "core/profiles/FilePreferenceSuites.h"

#include <cstdlib>
#include <system_error>
#include <utility>

namespace tactora {

namespace fs = std::filesystem;

namespace {

constexpr const char* applicationFolder = "Tactora";

std::optional<fs::path> environmentPath(const char* name) {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): read once, main thread
    if (value == nullptr || *value == '\0') {
        return std::nullopt;
    }
    return fs::path(value);
}

bool isPlainFileCharacter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' ||
           c == '-' || c == '_';
}

std::string escapedFileName(const std::string& domain) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string name;
    for (const char c : domain) {
        // A leading dot would hide the file, and "." or ".." would name a directory.
        if (isPlainFileCharacter(c) && !(name.empty() && c == '.')) {
            name.push_back(c);
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        name.push_back('%');
        name.push_back(digits[byte >> 4U]);
        name.push_back(digits[byte & 0x0FU]);
    }
    return name;
}

}  // namespace

std::optional<fs::path> FilePreferenceSuites::defaultDirectory() {
    // Relative values of XDG_CONFIG_HOME are invalid and must be ignored.
    if (const auto config = environmentPath("XDG_CONFIG_HOME"); config && config->is_absolute()) {
        return *config / applicationFolder;
    }
    if (const auto home = environmentPath("HOME")) {
        return *home / ".config" / applicationFolder;
    }
    return std::nullopt;
}

FilePreferenceSuites::FilePreferenceSuites(fs::path directory) : directory_(std::move(directory)) {}

std::shared_ptr<Preferences> FilePreferenceSuites::standard() {
    return suite(standardDomain);
}

std::shared_ptr<Preferences> FilePreferenceSuites::suite(const std::string& name) {
    auto& domain = domains_[name];
    if (!domain) {
        domain = std::make_shared<FilePreferences>(fileFor(name));
    }
    return domain;
}

void FilePreferenceSuites::removeSuite(const std::string& name) {
    const auto found = domains_.find(name);
    if (found == domains_.end()) {
        std::error_code error;
        fs::remove(fileFor(name), error);
        return;
    }
    // Someone may still hold the domain; it must read as empty from now on.
    found->second->removeAll();
    domains_.erase(found);
}

fs::path FilePreferenceSuites::fileFor(const std::string& domain) const {
    return directory_ / (escapedFileName(domain) + ".json");
}

}  // namespace tactora
