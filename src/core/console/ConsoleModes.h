#pragma once

#include "core/console/ProgramEnvironment.h"

namespace tactora {

// The three console modes. Each prints its report to standard output; a failed check stops the
// process through a fatal assertion, so returning means success. Main thread only.

// The recogniser's, the profile store's and the dispatch guard's scenarios, then the bundled
// icon's sizes.
void runSelfTest(ProgramEnvironment& environment);

// Seven sample texts in the user's language, then a check that the action names are
// translated.
void runLocalizationCheck(ProgramEnvironment& environment);

// Starts the sensor once and reports the result and its status text.
void runProbe(ProgramEnvironment& environment);

}  // namespace tactora
