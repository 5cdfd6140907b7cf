#pragma once

#include <filesystem>

namespace tactora {

// The running executable's bundle resources: ".../Tactora.app/Contents/Resources" for an
// executable at ".../Tactora.app/Contents/MacOS/tactora". `argument0` is the fallback when
// the system can't say where the executable is.
std::filesystem::path bundleResourcesDirectory(const char* argument0);

}  // namespace tactora
