#include "core/localization/FormatConversion.h"

#include <algorithm>

namespace tactora {

namespace {

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

// value * 10 + digit, or `limit` when that would exceed it.
std::size_t saturatedAppend(std::size_t value, char digit, std::size_t limit) {
    const auto digitValue = static_cast<std::size_t>(digit - '0');
    if (value > (limit - digitValue) / 10) {
        return limit;
    }
    return value * 10 + digitValue;
}

class ConversionReader {
  public:
    ConversionReader(std::string_view text, std::size_t offset)
        : text_(text), start_(offset), cursor_(offset + 1) {}

    FormatConversion read() {
        FormatConversion conversion;
        conversion.offset = start_;
        if (atEnd()) {
            conversion.length = 1;
            return conversion;
        }
        if (peek() == '%') {
            ++cursor_;
            conversion.type = ConversionType::percent;
            conversion.length = cursor_ - start_;
            return conversion;
        }
        conversion.position = readPosition();
        readFlags(conversion);
        conversion.width = readFieldSize();
        if (!atEnd() && peek() == '.') {
            ++cursor_;
            conversion.precision = readFieldSize();
            if (conversion.precision.source == FieldSize::Source::none) {
                conversion.precision.source = FieldSize::Source::written;  // "." alone is 0
            }
        }
        const std::optional<LengthModifier> lengthModifier = readLengthModifier();
        if (atEnd()) {
            conversion.length = cursor_ - start_;
            return conversion;
        }
        conversion.letter = text_[cursor_++];
        conversion.length = cursor_ - start_;
        if (lengthModifier && supported_ && consistentStyle(conversion)) {
            conversion.lengthModifier = *lengthModifier;
            conversion.type = classify(*lengthModifier, conversion.letter);
        }
        return conversion;
    }

  private:
    bool atEnd() const { return cursor_ >= text_.size(); }
    char peek() const { return text_[cursor_]; }

    // "n$": digits followed by a dollar sign. Digits without one are left unread.
    std::optional<std::size_t> readPosition() {
        const std::size_t begin = cursor_;
        std::size_t value = 0;
        while (!atEnd() && isDigit(peek())) {
            value = saturatedAppend(value, peek(), FormatConversion::maxPosition);
            ++cursor_;
        }
        if (cursor_ > begin && !atEnd() && peek() == '$') {
            ++cursor_;
            return value;
        }
        cursor_ = begin;
        return std::nullopt;
    }

    void readFlags(FormatConversion& conversion) {
        for (; !atEnd(); ++cursor_) {
            switch (peek()) {
                case '-':
                    conversion.leftAligned = true;
                    break;
                case '+':
                    conversion.plusSign = true;
                    break;
                case ' ':
                    conversion.spaceSign = true;
                    break;
                case '0':
                    conversion.zeroPadded = true;
                    break;
                case '#':
                    conversion.alternate = true;
                    break;
                case '\'':
                    supported_ = false;  // grouping depends on the locale
                    break;
                default:
                    return;
            }
        }
    }

    FieldSize readFieldSize() {
        FieldSize size;
        if (!atEnd() && peek() == '*') {
            ++cursor_;
            size.source = FieldSize::Source::argument;
            size.position = readPosition();
            return size;
        }
        if (atEnd() || !isDigit(peek())) {
            return size;
        }
        size.source = FieldSize::Source::written;
        while (!atEnd() && isDigit(peek())) {
            size.value = saturatedAppend(size.value, peek(), FormatConversion::maxFieldSize + 1);
            ++cursor_;
        }
        if (size.value > FormatConversion::maxFieldSize) {
            supported_ = false;
        }
        return size;
    }

    // Nothing for a length modifier the formatter does not know ("j", "t", "L"); those are read
    // over all the same, so the conversion's letter is found.
    std::optional<LengthModifier> readLengthModifier() {
        if (atEnd()) {
            return LengthModifier::none;
        }
        const char first = peek();
        if (first == 'h' || first == 'l') {
            ++cursor_;
            const bool doubled = !atEnd() && peek() == first;
            cursor_ += doubled ? 1 : 0;
            if (first == 'h') {
                return doubled ? LengthModifier::hh : LengthModifier::h;
            }
            return doubled ? LengthModifier::ll : LengthModifier::l;
        }
        switch (first) {
            case 'q':
                ++cursor_;
                return LengthModifier::q;
            case 'z':
                ++cursor_;
                return LengthModifier::z;
            case 'j':
            case 't':
            case 'L':
                ++cursor_;
                return std::nullopt;
            default:
                return LengthModifier::none;
        }
    }

    // A positional conversion takes its width and precision by position too, and a
    // sequential one in sequence.
    static bool consistentStyle(const FormatConversion& conversion) {
        const bool positional = conversion.position.has_value();
        const auto consistent = [positional](const FieldSize& size) {
            return !size.fromArgument() || size.position.has_value() == positional;
        };
        return consistent(conversion.width) && consistent(conversion.precision);
    }

    static ConversionType classify(LengthModifier lengthModifier, char letter) {
        switch (letter) {
            case '@':
                return lengthModifier == LengthModifier::none ? ConversionType::string
                                                              : ConversionType::unsupported;
            case 'd':
            case 'i':
            case 'D':
                return ConversionType::signedInteger;
            case 'u':
            case 'U':
            case 'x':
            case 'X':
            case 'o':
            case 'O':
                return ConversionType::unsignedInteger;
            default:
                return ConversionType::unsupported;
        }
    }

    std::string_view text_;
    std::size_t start_ = 0;
    std::size_t cursor_ = 0;
    bool supported_ = true;
};

}  // namespace

FormatConversion readConversion(std::string_view text, std::size_t offset) {
    return ConversionReader(text, offset).read();
}

std::vector<FormatConversion> conversionsIn(std::string_view text) {
    std::vector<FormatConversion> conversions;
    std::size_t offset = text.find('%');
    while (offset != std::string_view::npos) {
        conversions.push_back(readConversion(text, offset));
        offset = text.find('%', offset + conversions.back().length);
    }
    return conversions;
}

}  // namespace tactora
