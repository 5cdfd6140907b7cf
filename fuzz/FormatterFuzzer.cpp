// Formats fuzzer-chosen text with fuzzer-chosen arguments. Beyond not crashing or reading past
// the arguments, the result must stay valid UTF-8 when its inputs are, and text without a
// percent sign must come back unchanged.
#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/localization/DecodedText.h"
#include "core/localization/Formatter.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

bool isValidUtf8(std::string_view text) {
    return tactora::validUtf8Length(text) == text.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider provider(data, size);
    std::vector<tactora::FormatArgument> arguments;
    bool argumentsValid = true;
    const std::size_t count = provider.ConsumeIntegralInRange<std::size_t>(0, 4);
    for (std::size_t index = 0; index < count; ++index) {
        if (provider.ConsumeBool()) {
            arguments.emplace_back(provider.ConsumeIntegral<std::int64_t>());
        } else {
            std::string text = provider.ConsumeRandomLengthString(64);
            argumentsValid = argumentsValid && isValidUtf8(text);
            arguments.emplace_back(std::move(text));
        }
    }
    const std::string format = provider.ConsumeRemainingBytesAsString();

    const std::string result = tactora::formatText(format, arguments);

    if (argumentsValid && isValidUtf8(format)) {
        require(isValidUtf8(result));
    }
    if (format.find('%') == std::string::npos) {
        require(result == format);
    }
    return 0;
}
