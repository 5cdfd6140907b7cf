#pragma once

#include <string_view>

namespace tactora {

// A broken invariant stops the program: the message goes to standard error and the process
// aborts. Used for programming errors and for the console self-checks, never for bad input.
[[noreturn]] void fatalError(std::string_view message);

// Stops the program with "Assertion failed: <source>: <what>" unless `condition` holds.
// `source` names the subsystem whose check failed ("Gestures", "Profiles", ...).
void expect(bool condition, std::string_view source, std::string_view what);

}  // namespace tactora
