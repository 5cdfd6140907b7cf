#include "core/localization/Formatter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>
#include <utility>
#include <variant>

#include "core/localization/FormatConversion.h"

namespace tactora {

namespace {

// Width and precision once "*" has been read from the arguments.
struct FieldSizes {
    bool leftAligned = false;
    std::optional<std::size_t> width;
    std::optional<std::size_t> precision;
};

std::int64_t signedValue(std::int64_t argument, unsigned bits) {
    switch (bits) {
        case 8:
            return static_cast<std::int8_t>(argument);
        case 16:
            return static_cast<std::int16_t>(argument);
        case 32:
            return static_cast<std::int32_t>(argument);
        default:
            return argument;
    }
}

std::uint64_t unsignedValue(std::int64_t argument, unsigned bits) {
    const auto value = static_cast<std::uint64_t>(argument);
    return bits >= 64 ? value : value & ((std::uint64_t{1} << bits) - 1);
}

unsigned baseOf(char letter) {
    switch (letter) {
        case 'x':
        case 'X':
            return 16;
        case 'o':
        case 'O':
            return 8;
        default:
            return 10;
    }
}

std::string digitsOf(std::uint64_t magnitude, char letter) {
    std::array<char, 24> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                      static_cast<int>(baseOf(letter)));
    std::string digits(buffer.data(), result.ptr);
    if (letter == 'X') {
        std::ranges::transform(digits, digits.begin(), [](char digit) {
            return digit >= 'a' && digit <= 'f' ? static_cast<char>(digit - 'a' + 'A') : digit;
        });
    }
    return digits;
}

std::string signOf(const FormatConversion& conversion, bool negative) {
    if (conversion.type != ConversionType::signedInteger) {
        return {};
    }
    if (negative) {
        return "-";
    }
    if (conversion.plusSign) {
        return "+";
    }
    return conversion.spaceSign ? " " : "";
}

std::string padded(std::string text, std::size_t length, const FieldSizes& sizes) {
    if (!sizes.width || length >= *sizes.width) {
        return text;
    }
    const std::string padding(*sizes.width - length, ' ');
    return sizes.leftAligned ? text + padding : padding + text;
}

// An integer as printf prints it: the length modifier's bits of the argument, the precision as
// the least number of digits, "#" for a leading 0 (octal) or 0x (hexadecimal), then the width,
// filled with zeros after the sign when "0" is given without a precision.
std::string renderInteger(const FormatConversion& conversion, const FieldSizes& sizes,
                          std::int64_t argument) {
    const unsigned bits = argumentBits(conversion.lengthModifier);
    bool negative = false;
    std::uint64_t magnitude = 0;
    if (conversion.type == ConversionType::signedInteger) {
        const std::int64_t value = signedValue(argument, bits);
        negative = value < 0;
        magnitude =
            negative ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    } else {
        magnitude = unsignedValue(argument, bits);
    }
    std::string digits = digitsOf(magnitude, conversion.letter);
    if (sizes.precision) {
        if (*sizes.precision == 0 && magnitude == 0) {
            digits.clear();
        }
        if (digits.size() < *sizes.precision) {
            digits.insert(0, *sizes.precision - digits.size(), '0');
        }
    }
    std::string prefix = signOf(conversion, negative);
    if (conversion.alternate && baseOf(conversion.letter) == 8 &&
        (digits.empty() || digits.front() != '0')) {
        digits.insert(0, 1, '0');
    }
    if (conversion.alternate && baseOf(conversion.letter) == 16 && magnitude != 0) {
        prefix += conversion.letter == 'X' ? "0X" : "0x";
    }
    const std::size_t length = prefix.size() + digits.size();
    if (conversion.zeroPadded && !sizes.leftAligned && !sizes.precision && sizes.width &&
        length < *sizes.width) {
        digits.insert(0, *sizes.width - length, '0');
    }
    return padded(prefix + digits, prefix.size() + digits.size(), sizes);
}

// Bytes of the UTF-8 sequence that starts with `lead`, and the UTF-16 code units it makes.
std::pair<std::size_t, std::size_t> sequenceSize(unsigned char lead) {
    if (lead >= 0xF0U) {
        return {4, 2};
    }
    if (lead >= 0xE0U) {
        return {3, 1};
    }
    if (lead >= 0xC0U) {
        return {2, 1};
    }
    return {1, 1};
}

// A string with the precision as the most and the width as the least number of characters,
// counted in UTF-16 code units as the platform's strings count them; never cut inside a
// character.
std::string renderString(const FieldSizes& sizes, const std::string& text) {
    std::size_t bytes = 0;
    std::size_t units = 0;
    while (bytes < text.size()) {
        const auto [sequenceBytes, sequenceUnits] =
            sequenceSize(static_cast<unsigned char>(text[bytes]));
        if (sizes.precision && units + sequenceUnits > *sizes.precision) {
            break;
        }
        bytes = std::min(bytes + sequenceBytes, text.size());
        units += sequenceUnits;
    }
    return padded(text.substr(0, bytes), units, sizes);
}

class TextFormatter {
  public:
    TextFormatter(std::string_view format, std::span<const FormatArgument> arguments)
        : format_(format), arguments_(arguments) {}

    std::string run() {
        std::size_t cursor = 0;
        while (cursor < format_.size()) {
            const std::size_t percent = format_.find('%', cursor);
            if (percent == std::string_view::npos) {
                break;
            }
            output_.append(format_.substr(cursor, percent - cursor));
            const FormatConversion conversion = readConversion(format_, percent);
            append(conversion);
            cursor = percent + conversion.length;
        }
        if (cursor < format_.size()) {
            output_.append(format_.substr(cursor));
        }
        return std::move(output_);
    }

  private:
    void append(const FormatConversion& conversion) {
        if (conversion.type == ConversionType::percent) {
            output_.push_back('%');
            return;
        }
        const std::optional<std::string> rendered = fill(conversion);
        output_.append(rendered ? *rendered : format_.substr(conversion.offset, conversion.length));
    }

    std::optional<std::string> fill(const FormatConversion& conversion) {
        if (!conversion.takesArgument()) {
            return std::nullopt;
        }
        const bool positional = conversion.position.has_value();
        if (!positionalStyle_) {
            positionalStyle_ = positional;
        }
        if (*positionalStyle_ != positional) {
            return std::nullopt;
        }
        // Every argument the conversion names is taken, in order, before any can fail.
        const std::optional<std::int64_t> width = sizeArgument(conversion.width);
        const std::optional<std::int64_t> precision = sizeArgument(conversion.precision);
        const FormatArgument* argument = valueArgument(conversion.position);
        const std::optional<FieldSizes> sizes = fieldSizes(conversion, width, precision);
        if (argument == nullptr || !sizes) {
            return std::nullopt;
        }
        return render(conversion, *sizes, *argument);
    }

    static std::optional<std::string> render(const FormatConversion& conversion,
                                             const FieldSizes& sizes,
                                             const FormatArgument& argument) {
        if (conversion.type == ConversionType::string) {
            const auto* text = std::get_if<std::string>(&argument);
            return text != nullptr ? std::optional(renderString(sizes, *text)) : std::nullopt;
        }
        const auto* number = std::get_if<std::int64_t>(&argument);
        return number != nullptr ? std::optional(renderInteger(conversion, sizes, *number))
                                 : std::nullopt;
    }

    // The width and precision as written or as read from their arguments ("*" reads an int);
    // nothing when an argument for them is missing or too large. A negative width read from
    // an argument aligns left; a negative precision counts as none.
    static std::optional<FieldSizes> fieldSizes(const FormatConversion& conversion,
                                                std::optional<std::int64_t> width,
                                                std::optional<std::int64_t> precision) {
        FieldSizes sizes;
        sizes.leftAligned = conversion.leftAligned;
        if (conversion.width.fromArgument()) {
            if (!width) {
                return std::nullopt;
            }
            sizes.leftAligned = sizes.leftAligned || *width < 0;
            sizes.width = static_cast<std::size_t>(*width < 0 ? -*width : *width);
        } else if (conversion.width.source == FieldSize::Source::written) {
            sizes.width = conversion.width.value;
        }
        if (conversion.precision.fromArgument()) {
            if (!precision) {
                return std::nullopt;
            }
            if (*precision >= 0) {
                sizes.precision = static_cast<std::size_t>(*precision);
            }
        } else if (conversion.precision.source == FieldSize::Source::written) {
            sizes.precision = conversion.precision.value;
        }
        const auto tooLarge = [](std::optional<std::size_t> size) {
            return size && *size > FormatConversion::maxFieldSize;
        };
        if (tooLarge(sizes.width) || tooLarge(sizes.precision)) {
            return std::nullopt;
        }
        return sizes;
    }

    // The int a "*" reads; nothing for no "*", and for a missing or string argument.
    std::optional<std::int64_t> sizeArgument(const FieldSize& size) {
        if (!size.fromArgument()) {
            return std::nullopt;
        }
        const FormatArgument* argument = valueArgument(size.position);
        const auto* number = argument != nullptr ? std::get_if<std::int64_t>(argument) : nullptr;
        if (number == nullptr) {
            return std::nullopt;
        }
        return signedValue(*number, 32);
    }

    // The argument at `position` (1-based), or the next one in sequence when there is none.
    const FormatArgument* valueArgument(std::optional<std::size_t> position) {
        std::size_t index = 0;
        if (!position) {
            index = nextSequential_++;
        } else if (*position == 0) {
            return nullptr;
        } else {
            index = *position - 1;
        }
        return index < arguments_.size() ? &arguments_[index] : nullptr;
    }

    std::string_view format_;
    std::span<const FormatArgument> arguments_;
    std::string output_;
    std::optional<bool> positionalStyle_;
    std::size_t nextSequential_ = 0;
};

}  // namespace

std::string formatText(std::string_view format, std::span<const FormatArgument> arguments) {
    return TextFormatter(format, arguments).run();
}

}  // namespace tactora
