#include "core/console/Program.h"

#include <algorithm>
#include <iostream>
#include <string_view>

#include "core/app/Globals.h"
#include "core/console/ConsoleModes.h"
#include "core/replay/ReplayMode.h"
#include "core/score/ScoreMode.h"

namespace tactora {

namespace {
bool contains(std::span<const std::string> arguments, std::string_view flag) {
    return std::ranges::find(arguments, flag) != arguments.end();
}
}  // namespace

int runProgram(std::span<const std::string> arguments, ProgramEnvironment& environment) {
    initializeGlobals();
    if (contains(arguments, "--self-test")) {
        runSelfTest(environment);
    } else if (contains(arguments, "--check-localization")) {
        runLocalizationCheck(environment);
    } else if (contains(arguments, "--probe")) {
        runProbe(environment);
    } else if (contains(arguments, "--replay")) {
        return runReplay(arguments, std::cout, std::cerr);
    } else if (contains(arguments, "--score")) {
        return runScore(arguments, std::cout, std::cerr);
    } else {
        environment.runApplication();
    }
    return 0;
}

}  // namespace tactora
