#include "core/support/Fatal.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace tactora {

void fatalError(std::string_view message) {
    const std::string line = "Fatal error: " + std::string(message) + "\n";
    std::fflush(stdout);
    std::fputs(line.c_str(), stderr);
    std::fflush(stderr);
    std::abort();
}

void expect(bool condition, std::string_view source, std::string_view what) {
    if (condition) {
        return;
    }
    fatalError("Assertion failed: " + std::string(source) + ": " + std::string(what));
}

}  // namespace tactora
