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
    signedInteger,    // "%d", "%i", "%D", with any supported length modifier
    unsignedInteger,  // "%u", "%U", "%x", "%X", "%o", "%O", with any supported length modifier
    string,           // "%@"
    unsupported,      // anything else, which the formatter leaves as written
};

// The length modifiers of integer conversions, with their argument widths on the platform
// (arm64 macOS, where long and size_t have 64 bits): none 32 bits, "hh" 8, "h" 16, "l", "ll",
// "q" and "z" 64.
enum class LengthModifier : std::uint8_t { none, hh, h, l, ll, q, z };

// The bits a length modifier reads from the 64-bit argument.
constexpr unsigned argumentBits(LengthModifier modifier) {
    switch (modifier) {
        case LengthModifier::hh:
            return 8;
        case LengthModifier::h:
            return 16;
        case LengthModifier::none:
            return 32;
        default:
            return 64;
    }
}

// A field width or precision: absent, written as digits, or taken from an integer argument
// ("*", or "*n$" in a positional conversion).
struct FieldSize {
    enum class Source : std::uint8_t { none, written, argument };

    Source source = Source::none;
    std::size_t value = 0;                // when written
    std::optional<std::size_t> position;  // when taken from the argument at "*n$"

    bool fromArgument() const { return source == Source::argument; }
};

// One conversion as written in a text: "%", then an optional argument position ("%2$"), flags,
// width, precision, length modifier and the conversion character. Pure value; any thread.
struct FormatConversion {
    std::size_t offset = 0;  // where its "%" stands in the text
    std::size_t length = 0;  // bytes from the "%" through the conversion character
    ConversionType type = ConversionType::unsupported;
    // The 1-based argument position of "%n$": 0 when written as "%0$", and saturated at
    // maxPosition when too large to matter (the same holds for "*n$").
    std::optional<std::size_t> position;

    char letter = 0;  // the conversion character: d i D u U x X o O @
    LengthModifier lengthModifier = LengthModifier::none;
    bool leftAligned = false;  // "-"
    bool plusSign = false;     // "+"
    bool spaceSign = false;    // " "
    bool zeroPadded = false;   // "0"
    bool alternate = false;    // "#"
    FieldSize width;
    FieldSize precision;

    static constexpr std::size_t maxPosition = 1'000'000;
    // The largest width or precision; a conversion asking for more is unsupported.
    static constexpr std::size_t maxFieldSize = 4096;

    // Whether it stands for an argument (an integer or a string conversion).
    bool takesArgument() const {
        return type == ConversionType::signedInteger || type == ConversionType::unsignedInteger ||
               type == ConversionType::string;
    }

    // Whether its width or precision is taken from an argument.
    bool takesFieldSizeArgument() const { return width.fromArgument() || precision.fromArgument(); }
};

// Reads the conversion whose "%" is at `offset` of `text`. A "%" at the very end is an
// unsupported conversion of length 1. Flags the platform has but the formatter does not ("'"),
// other length modifiers ("j", "t", "L") and other letters make the conversion unsupported, as
// does a positional conversion that takes its width or precision by "*" (or the other way
// round) and a width or precision above maxFieldSize.
FormatConversion readConversion(std::string_view text, std::size_t offset);

// Every conversion of `text`, in order, "%%" included.
std::vector<FormatConversion> conversionsIn(std::string_view text);

}  // namespace tactora
