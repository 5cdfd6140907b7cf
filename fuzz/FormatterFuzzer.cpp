// Formats fuzzer-chosen text with fuzzer-chosen arguments. Beyond not crashing or reading past
// the arguments, the result must stay valid UTF-8 when its inputs are, and text without a
// percent sign must come back unchanged. A second mode builds one integer conversion from
// fuzzer-chosen flags, width, precision, length modifier and letter, and compares the result
// with the C library's printf, whose integer conversions the platform's follow.
#include <fuzzer/FuzzedDataProvider.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
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

void formatFreeText(FuzzedDataProvider& provider) {
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
}

std::string printed(const std::string& conversion, const std::string& length, char letter,
                    std::int64_t value) {
    std::array<char, 256> buffer{};
    const bool isSigned = letter == 'd' || letter == 'i';
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wformat-nonliteral"
    if (length == "hh") {
        std::snprintf(buffer.data(), buffer.size(), conversion.c_str(),
                      isSigned ? static_cast<int>(static_cast<signed char>(value))
                               : static_cast<int>(static_cast<unsigned char>(value)));
    } else if (length == "h") {
        std::snprintf(buffer.data(), buffer.size(), conversion.c_str(),
                      isSigned ? static_cast<int>(static_cast<short>(value))
                               : static_cast<int>(static_cast<unsigned short>(value)));
    } else if (length.empty()) {
        std::snprintf(buffer.data(), buffer.size(), conversion.c_str(),
                      static_cast<int>(static_cast<std::uint32_t>(value)));
    } else {
        std::snprintf(buffer.data(), buffer.size(), conversion.c_str(),
                      static_cast<long long>(value));
    }
#pragma clang diagnostic pop
    return buffer.data();
}

void compareIntegerConversion(FuzzedDataProvider& provider) {
    static constexpr std::array<char, 6> letters = {'d', 'i', 'u', 'x', 'X', 'o'};
    static constexpr std::array<const char*, 6> lengths = {"", "hh", "h", "l", "ll", "z"};
    const char letter = provider.PickValueInArray(letters);
    const std::string length = provider.PickValueInArray(lengths);
    std::string conversion = "%";
    for (const char flag : std::string_view("-+ 0#")) {
        const bool undefined = flag == '#' && (letter == 'd' || letter == 'i' || letter == 'u');
        if (provider.ConsumeBool() && !undefined) {
            conversion += flag;
        }
    }
    if (provider.ConsumeBool()) {
        conversion += std::to_string(provider.ConsumeIntegralInRange(1, 40));
    }
    if (provider.ConsumeBool()) {
        conversion += "." + std::to_string(provider.ConsumeIntegralInRange(0, 40));
    }
    // "z" with a signed letter is ssize_t and with an unsigned one size_t: 64 bits either way.
    const std::string cLength = length == "z" ? "ll" : length;
    const std::int64_t value = provider.ConsumeIntegral<std::int64_t>();
    const std::vector<tactora::FormatArgument> arguments = {tactora::makeFormatArgument(value)};

    const std::string result = tactora::formatText(conversion + length + letter, arguments);

    require(result == printed(conversion + cLength + letter, length, letter, value));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider provider(data, size);
    if (provider.ConsumeBool()) {
        compareIntegerConversion(provider);
    } else {
        formatFreeText(provider);
    }
    return 0;
}
