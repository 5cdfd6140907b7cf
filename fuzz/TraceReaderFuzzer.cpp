// Arbitrary bytes as a touch trace: reading must never crash; whatever it accepts must be
// written back to text that reads again to the same text, and must replay to an end.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

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
    // Positions are read as the sensor's 32-bit values, so a second writing is stable.
    const std::string once = written(reading.lines);
    const tactora::TraceReading again = tactora::readTrace(once);
    if (again.error || written(again.lines) != once) {
        std::abort();
    }
    tactora::TraceReplay::run(reading.lines, std::nullopt);
    return 0;
}
