#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tactora {

// What a conversion of a localised text asks for.
enum class ConversionType : std::uint8_t {
    percent,          // "%%": a literal percent sign, takes no argument
    signedInteger,    // "%d", "%i", "%ld", "%lld", "%li", "%lli"
    unsignedInteger,  // "%u", "%lu", "%llu"
    string,           // "%@"
    unsupported,      // anything else: flags, width, precision, other lengths or letters
};

// One conversion as written in a text: "%" through its conversion character, optionally with
// an argument position ("%2$d"). Pure value; any thread.
struct FormatConversion {
    std::size_t offset = 0;  // where its "%" stands in the text
    std::size_t length = 0;  // bytes from the "%" through the conversion character
    ConversionType type = ConversionType::unsupported;
    // The 1-based argument position of "%n$": 0 when written as "%0$", and saturated at
    // maxPosition when too large to matter.
    std::optional<std::size_t> position;

    static constexpr std::size_t maxPosition = 1'000'000;

    // Whether it stands for an argument (an integer or a string conversion).
    bool takesArgument() const {
        return type == ConversionType::signedInteger || type == ConversionType::unsignedInteger ||
               type == ConversionType::string;
    }
};

// Reads the conversion whose "%" is at `offset` of `text`. A "%" at the very end is an
// unsupported conversion of length 1.
FormatConversion readConversion(std::string_view text, std::size_t offset);

// Every conversion of `text`, in order, "%%" included.
std::vector<FormatConversion> conversionsIn(std::string_view text);

}  // namespace tactora
