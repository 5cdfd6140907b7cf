#include "core/trace/TraceProblem.h"

#include <cstdint>

#include "core/localization/Localizer.h"

namespace tactora {

namespace {

const char* keyOf(TraceProblem problem) {
    switch (problem) {
        case TraceProblem::header:
            break;
        case TraceProblem::version:
            return "trace.error.version";
        case TraceProblem::time:
            return "trace.error.time";
        case TraceProblem::timeBack:
            return "trace.error.back";
        case TraceProblem::event:
            return "trace.error.event";
        case TraceProblem::contact:
            return "trace.error.contact";
        case TraceProblem::contactID:
            return "trace.error.id";
        case TraceProblem::crowded:
            return "trace.error.crowded";
        case TraceProblem::button:
            return "trace.error.button";
        case TraceProblem::source:
            return "trace.error.source";
        case TraceProblem::profile:
            return "trace.error.profile";
        case TraceProblem::process:
            return "trace.error.process";
        case TraceProblem::onOff:
            return "trace.error.switch";
        case TraceProblem::extra:
            return "trace.error.extra";
        case TraceProblem::device:
            return "trace.error.device";
        case TraceProblem::unknownDevice:
            return "trace.error.undeclared";
    }
    return "trace.error.header";
}

}  // namespace

std::string describeTraceError(const TraceError& error) {
    return L(keyOf(error.problem), static_cast<std::int64_t>(error.line));
}

}  // namespace tactora
