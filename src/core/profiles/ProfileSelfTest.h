#pragma once

#include "core/profiles/Preferences.h"

namespace tactora {

// The store's built-in scenario, run on a fresh private suite of `suites` that is removed
// afterwards. Prints its pass line; a failed step stops the program with an assertion naming
// "Profiles". Called on the main thread by the self-test mode.
void profileTests(PreferenceSuites& suites);

}  // namespace tactora
