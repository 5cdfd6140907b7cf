#include "linux/LinuxProgramEnvironment.h"

#include <iostream>
#include <utility>

#include "core/console/IcnsReader.h"

namespace tactora {

namespace {
std::filesystem::path preferencesDirectory() {
    if (auto directory = FilePreferenceSuites::defaultDirectory()) {
        return *directory;
    }
    // No home directory at all (a bare service account): keep the profiles somewhere
    // writable rather than nowhere.
    return std::filesystem::temp_directory_path() / "Tactora";
}
}  // namespace

LinuxProgramEnvironment::LinuxProgramEnvironment(std::filesystem::path resources,
                                                 std::optional<std::string> localization)
    : resources_(std::move(resources)),
      localization_(std::move(localization)),
      preferences_(preferencesDirectory()) {}

std::optional<std::vector<std::int64_t>> LinuxProgramEnvironment::appIconPixelWidths() {
    return icnsFilePixelWidths(resources_ / "Tactora.icns");
}

void LinuxProgramEnvironment::runApplication() {
    std::cerr << "Tactora's interactive application needs macOS; here it runs as "
                 "tactora --self-test, tactora --check-localization, tactora --probe, "
                 "tactora --replay FILE [--profile FILE] [--explain] or "
                 "tactora --score DIRECTORY [--profile FILE].\n";
}

}  // namespace tactora
