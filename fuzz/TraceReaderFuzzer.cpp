// Arbitrary bytes as a touch trace: reading must never crash; whatever it accepts must be
// written back to text that reads again to the same values and is then written the same way,
// and must replay to an end, explained.
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/app/Globals.h"
#include "core/replay/TraceReplay.h"
#include "core/trace/TraceFormat.h"
#include "core/trace/TraceReader.h"

namespace {

std::string written(const std::vector<tactora::TraceLine>& lines) {
    std::string text = tactora::trace::header() + "\n";
    for (const tactora::TraceLine& line : lines) {
        text += tactora::trace::formatLine(line) + "\n";
    }
    return text;
}

// The same number to the bit, or both not a number (the format has one way to write that).
bool same(double first, double second) {
    return (std::isnan(first) && std::isnan(second)) ||
           std::bit_cast<std::uint64_t>(first) == std::bit_cast<std::uint64_t>(second);
}

bool same(float first, float second) {
    return (std::isnan(first) && std::isnan(second)) ||
           std::bit_cast<std::uint32_t>(first) == std::bit_cast<std::uint32_t>(second);
}

bool sameShape(const std::optional<tactora::ContactShape>& first,
               const std::optional<tactora::ContactShape>& second) {
    if (!first || !second) {
        return first.has_value() == second.has_value();
    }
    return same(first->size, second->size) && same(first->angle, second->angle) &&
           same(first->majorAxis, second->majorAxis) && same(first->minorAxis, second->minorAxis);
}

bool sameFrame(const tactora::TraceFrame& first, const tactora::TraceFrame& second) {
    if (first.fingers.size() != second.fingers.size() || first.device != second.device ||
        first.shapes.size() != second.shapes.size()) {
        return false;
    }
    for (std::size_t i = 0; i < first.shapes.size(); ++i) {
        if (!sameShape(first.shapes[i], second.shapes[i])) {
            return false;
        }
    }
    for (std::size_t i = 0; i < first.fingers.size(); ++i) {
        const tactora::Finger& a = first.fingers[i];
        const tactora::Finger& b = second.fingers[i];
        if (a.id != b.id || !same(a.x, b.x) || !same(a.y, b.y)) {
            return false;
        }
    }
    return true;
}

bool sameLines(const std::vector<tactora::TraceLine>& first,
               const std::vector<tactora::TraceLine>& second) {
    if (first.size() != second.size()) {
        return false;
    }
    for (std::size_t i = 0; i < first.size(); ++i) {
        if (!same(first[i].time, second[i].time)) {
            return false;
        }
        const auto* a = std::get_if<tactora::TraceFrame>(&first[i].event);
        const auto* b = std::get_if<tactora::TraceFrame>(&second[i].event);
        if (a != nullptr || b != nullptr) {
            if (a == nullptr || b == nullptr || !sameFrame(*a, *b)) {
                return false;
            }
        } else if (first[i].event != second[i].event) {
            return false;
        }
    }
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool initialized = [] {
        tactora::initializeGlobals();
        return true;
    }();
    (void)initialized;
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    const tactora::TraceReading reading = tactora::readTrace(input);
    if (reading.error) {
        if (!reading.lines.empty() || reading.error->line == 0) {
            std::abort();
        }
        return 0;
    }
    // What was read is written so that it reads back to the very same values, and a second
    // writing is the same text as the first.
    const std::string once = written(reading.lines);
    const tactora::TraceReading again = tactora::readTrace(once);
    if (again.error || !sameLines(reading.lines, again.lines) || written(again.lines) != once) {
        std::abort();
    }
    tactora::TraceReplay::run(reading.lines, std::nullopt, tactora::TraceReplay::Detail::explained);
    return 0;
}
