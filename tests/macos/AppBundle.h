#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <vector>

namespace tactora::testing {

// The Tactora.app that this build made, with its resources.
NSBundle* appBundle();

// The languages the bundle ships: the names of its Resources/*.lproj folders, sorted.
std::vector<std::string> shippedLanguages();

// The path of the bundle's string table for `language`.
NSString* stringTablePath(const std::string& language);

// Installs the bundle's table for `language`, as Foundation reads it, for L, and the globals that
// depend on it.
void installStringTable(const std::string& language);

}  // namespace tactora::testing
