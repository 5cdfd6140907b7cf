#include "core/localization/FormatConversion.h"

#include <algorithm>

namespace tactora {

namespace {

constexpr std::string_view flagCharacters = "-+ #0'";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
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
        const bool decorated = skipFlagsWidthAndPrecision();
        const std::string_view lengthModifier = readLengthModifier();
        if (atEnd()) {
            conversion.length = cursor_ - start_;
            return conversion;
        }
        const char letter = text_[cursor_++];
        conversion.length = cursor_ - start_;
        if (!decorated) {
            conversion.type = classify(lengthModifier, letter);
        }
        return conversion;
    }

  private:
    bool atEnd() const { return cursor_ >= text_.size(); }
    char peek() const { return text_[cursor_]; }

    std::size_t skipDigits() {
        const std::size_t begin = cursor_;
        while (!atEnd() && isDigit(peek())) {
            ++cursor_;
        }
        return cursor_ - begin;
    }

    // "%n$": digits followed by a dollar sign. Digits without one are a field width and are
    // left for skipFlagsWidthAndPrecision.
    std::optional<std::size_t> readPosition() {
        const std::size_t begin = cursor_;
        std::size_t value = 0;
        while (!atEnd() && isDigit(peek())) {
            const auto digit = static_cast<std::size_t>(peek() - '0');
            value = value >= FormatConversion::maxPosition / 10 ? FormatConversion::maxPosition
                                                                : value * 10 + digit;
            ++cursor_;
        }
        if (cursor_ > begin && !atEnd() && peek() == '$') {
            ++cursor_;
            return std::min(value, FormatConversion::maxPosition);
        }
        cursor_ = begin;
        return std::nullopt;
    }

    // Returns whether any flag, width or precision was written; none of them is supported.
    bool skipFlagsWidthAndPrecision() {
        const std::size_t begin = cursor_;
        while (!atEnd() && flagCharacters.find(peek()) != std::string_view::npos) {
            ++cursor_;
        }
        skipNumberOrStar();
        if (!atEnd() && peek() == '.') {
            ++cursor_;
            skipNumberOrStar();
        }
        return cursor_ > begin;
    }

    void skipNumberOrStar() {
        if (!atEnd() && peek() == '*') {
            ++cursor_;
            return;
        }
        skipDigits();
    }

    std::string_view readLengthModifier() {
        const std::size_t begin = cursor_;
        if (!atEnd() && (peek() == 'h' || peek() == 'l')) {
            const char first = peek();
            ++cursor_;
            if (!atEnd() && peek() == first) {
                ++cursor_;
            }
        } else if (!atEnd() && std::string_view("qLzjt").find(peek()) != std::string_view::npos) {
            ++cursor_;
        }
        return text_.substr(begin, cursor_ - begin);
    }

    static ConversionType classify(std::string_view lengthModifier, char letter) {
        const bool integerLength =
            lengthModifier.empty() || lengthModifier == "l" || lengthModifier == "ll";
        if (letter == '@') {
            return lengthModifier.empty() ? ConversionType::string : ConversionType::unsupported;
        }
        if (!integerLength) {
            return ConversionType::unsupported;
        }
        if (letter == 'd' || letter == 'i') {
            return ConversionType::signedInteger;
        }
        if (letter == 'u') {
            return ConversionType::unsignedInteger;
        }
        return ConversionType::unsupported;
    }

    std::string_view text_;
    std::size_t start_ = 0;
    std::size_t cursor_ = 0;
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
