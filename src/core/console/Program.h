#pragma once

#include <span>
#include <string>

#include "core/console/ProgramEnvironment.h"

namespace tactora {

// The program's entry: sets the process-wide globals, then runs the first console mode that
// the arguments name ("--self-test", "--check-localization", "--probe", "--replay", in that
// order of precedence) or else the application. Returns the exit status: 0, or 1 when a replay
// could not read its files; a failed console check stops the process instead. The string table
// must be installed first.
int runProgram(std::span<const std::string> arguments, ProgramEnvironment& environment);

}  // namespace tactora
