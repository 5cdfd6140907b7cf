#include "core/console/ConsoleModes.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iostream>
#include <string>

#include "core/actions/ActionIndex.h"
#include "core/app/Globals.h"
#include "core/gestures/GestureSelfTest.h"
#include "core/localization/Localizer.h"
#include "core/profiles/ProfileSelfTest.h"
#include "core/support/Fatal.h"

namespace tactora {

namespace {

constexpr std::array<std::int64_t, 7> requiredIconWidths = {16, 32, 64, 128, 256, 512, 1024};

void printLine(const std::string& line) {
    std::cout << line << '\n' << std::flush;
}

void checkIcon(ProgramEnvironment& environment) {
    const auto widths = environment.appIconPixelWidths();
    if (!widths) {
        fatalError("Missing app icon");
    }
    // Further sizes are fine; every required one must be there, whatever its height.
    const bool complete = std::ranges::all_of(requiredIconWidths, [&](std::int64_t width) {
        return std::ranges::find(*widths, width) != widths->end();
    });
    expect(complete, "main", "requiredIconWidths.isSubset(of: widths)");
    printLine("PASS: bundled app icon decodes at all required sizes.");
}

void ignoreFrame(std::int32_t /*count*/, const std::int32_t* /*ids*/, const float* /*xs*/,
                 const float* /*ys*/, const float* /*shapes*/) {}

}  // namespace

void runSelfTest(ProgramEnvironment& environment) {
    runTests();
    profileTests(environment.preferences());
    dispatchTests();
    checkIcon(environment);
}

void runLocalizationCheck(ProgramEnvironment& environment) {
    const auto& names = choices();
    printLine("Language: " + environment.preferredLocalization().value_or("none"));
    printLine(L("hero"));
    printLine(L("record.hint"));
    printLine(L("finger.many", std::int64_t{3}));
    printLine(L("sensor.blocked", std::int64_t{42}));
    printLine(L("permissions", L("ok"), L("pending")));
    printLine(L("error.action", names.at(static_cast<std::size_t>(action::showDesktop))));
    expect(names.size() == actionKeys.size(), "main", "choices.count == 15");
    expect(std::ranges::find(names, "action.default") == names.end(), "main",
           "!choices.contains(\"action.default\")");
}

void runProbe(ProgramEnvironment& environment) {
    Sensor& sensor = environment.sensor();
    const bool started = sensor.start(ignoreFrame);
    const std::string status = sensor.status();
    const auto error = std::int64_t{sensor.statusError()};
    printLine("Sensor: " + std::to_string(started ? 1 : 0) + " · " + L(status, error));
    sensor.stop();
}

}  // namespace tactora
