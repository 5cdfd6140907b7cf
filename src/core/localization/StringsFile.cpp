#include "core/localization/StringsFile.h"

#include <algorithm>
#include <utility>

#include "core/localization/DecodedText.h"
#include "core/support/FileContents.h"

namespace tactora {

namespace {

constexpr std::string_view whitespace = " \t\n\r\f\v";
constexpr std::string_view unquotedPunctuation = "_$+/:.-";

bool isAsciiAlphanumeric(char character) {
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9');
}

bool isUnquotedCharacter(char character) {
    return isAsciiAlphanumeric(character) ||
           unquotedPunctuation.find(character) != std::string_view::npos;
}

std::optional<unsigned> hexValue(char character) {
    if (character >= '0' && character <= '9') {
        return static_cast<unsigned>(character - '0');
    }
    if (character >= 'a' && character <= 'f') {
        return static_cast<unsigned>(character - 'a' + 10);
    }
    if (character >= 'A' && character <= 'F') {
        return static_cast<unsigned>(character - 'A' + 10);
    }
    return std::nullopt;
}

std::optional<char> simpleEscape(char character) {
    switch (character) {
        case 'n':
            return '\n';
        case 't':
            return '\t';
        case 'r':
            return '\r';
        case 'a':
            return '\a';
        case 'b':
            return '\b';
        case 'f':
            return '\f';
        case 'v':
            return '\v';
        default:
            return std::nullopt;
    }
}

bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

struct ParseFailure {
    std::size_t offset = 0;
    std::string message;
    // The text ended where more was needed; when decoding stopped early that is its fault.
    bool reachedEnd = false;
};

// Each reading step returns false once it has recorded the first failure; nothing is read
// after that.
class StringsParser {
  public:
    explicit StringsParser(std::string_view text) : text_(text) {}

    // Reads entries into `file` until the end or the first error, which it returns.
    std::optional<ParseFailure> parseInto(StringsFile& file) {
        while (skipSpaceAndComments() && !atEnd()) {
            if (!readEntry(file)) {
                break;
            }
        }
        return std::move(failure_);
    }

  private:
    bool atEnd() const { return cursor_ >= text_.size(); }
    char peek() const { return text_[cursor_]; }
    bool lookingAt(std::string_view token) const {
        return text_.substr(cursor_).starts_with(token);
    }

    bool fail(std::size_t offset, std::string message, bool reachedEnd) {
        failure_ =
            ParseFailure{.offset = offset, .message = std::move(message), .reachedEnd = reachedEnd};
        return false;
    }

    bool readEntry(StringsFile& file) {
        std::optional<std::string> key = readString("a key");
        if (!key || !skipSpaceAndComments()) {
            return false;
        }
        if (!atEnd() && peek() == ';') {
            ++cursor_;
            std::string value = *key;
            store(file, std::move(*key), std::move(value));
            return true;
        }
        if (!expect('=', "expected '=' after the key") || !skipSpaceAndComments()) {
            return false;
        }
        std::optional<std::string> value = readString("a value");
        if (!value || !skipSpaceAndComments() || !expect(';', "expected ';' after the value")) {
            return false;
        }
        store(file, std::move(*key), std::move(*value));
        return true;
    }

    static void store(StringsFile& file, std::string key, std::string value) {
        const auto [place, inserted] = file.entries.try_emplace(key, value);
        if (!inserted) {
            place->second = std::move(value);
            file.duplicateKeys.push_back(std::move(key));
        }
    }

    bool expect(char token, std::string_view message) {
        if (atEnd() || peek() != token) {
            return fail(cursor_, std::string(message), atEnd());
        }
        ++cursor_;
        return true;
    }

    bool skipSpaceAndComments() {
        while (!atEnd()) {
            if (whitespace.find(peek()) != std::string_view::npos) {
                ++cursor_;
            } else if (lookingAt("/*")) {
                const std::size_t end = text_.find("*/", cursor_ + 2);
                if (end == std::string_view::npos) {
                    return fail(cursor_, "unterminated comment", true);
                }
                cursor_ = end + 2;
            } else if (lookingAt("//")) {
                const std::size_t end = text_.find('\n', cursor_);
                cursor_ = end == std::string_view::npos ? text_.size() : end + 1;
            } else {
                break;
            }
        }
        return true;
    }

    std::optional<std::string> readString(std::string_view what) {
        if (!atEnd() && peek() == '"') {
            return readQuoted();
        }
        if (!atEnd() && isUnquotedCharacter(peek())) {
            const std::size_t begin = cursor_;
            while (!atEnd() && isUnquotedCharacter(peek())) {
                ++cursor_;
            }
            return std::string(text_.substr(begin, cursor_ - begin));
        }
        fail(cursor_, "expected " + std::string(what), atEnd());
        return std::nullopt;
    }

    std::optional<std::string> readQuoted() {
        const std::size_t opening = cursor_++;
        std::string value;
        while (!atEnd()) {
            const char character = text_[cursor_++];
            if (character == '"') {
                return value;
            }
            if (character != '\\') {
                value.push_back(character);
            } else if (!readEscape(value)) {
                return std::nullopt;
            }
        }
        fail(opening, "unterminated string", true);
        return std::nullopt;
    }

    // After a backslash inside a quoted string.
    bool readEscape(std::string& value) {
        if (atEnd()) {
            return true;  // the missing closing quote is reported by the caller
        }
        const char escaped = text_[cursor_++];
        if (escaped == 'U') {
            const std::optional<char32_t> character = readUnicodeEscape();
            if (!character) {
                return false;
            }
            appendUtf8(value, *character);
        } else if (const std::optional<char> control = simpleEscape(escaped)) {
            value.push_back(*control);
        } else {
            value.push_back(escaped);
        }
        return true;
    }

    // After "\U": four hex digits; a high surrogate takes a following "\Uxxxx" low surrogate
    // with it.
    std::optional<char32_t> readUnicodeEscape() {
        const std::optional<char32_t> unit = readHexUnit();
        if (!unit || !isHighSurrogate(*unit) || !lookingAt("\\U")) {
            return unit;
        }
        const std::size_t afterHigh = cursor_;
        cursor_ += 2;
        const std::optional<char32_t> low = readHexUnit();
        if (!low) {
            return std::nullopt;
        }
        if (!isLowSurrogate(*low)) {
            cursor_ = afterHigh;
            return unit;
        }
        return 0x10000 + ((*unit - 0xD800) << 10U) + (*low - 0xDC00);
    }

    std::optional<char32_t> readHexUnit() {
        const std::size_t escape = cursor_ - 2;
        char32_t unit = 0;
        for (int digit = 0; digit < 4; ++digit) {
            const std::optional<unsigned> value = atEnd() ? std::nullopt : hexValue(text_[cursor_]);
            if (!value) {
                fail(escape, "\\U must be followed by four hexadecimal digits", atEnd());
                return std::nullopt;
            }
            unit = (unit << 4U) | *value;
            ++cursor_;
        }
        return unit;
    }

    std::string_view text_;
    std::size_t cursor_ = 0;
    std::optional<ParseFailure> failure_;
};

std::size_t lineAt(std::string_view text, std::size_t offset) {
    const std::string_view before = text.substr(0, std::min(offset, text.size()));
    return 1 + static_cast<std::size_t>(std::ranges::count(before, '\n'));
}

}  // namespace

StringsFile parseStringsFile(std::string_view bytes) {
    const DecodedText decoded = decodeText(bytes);
    StringsFile file;
    std::optional<ParseFailure> failure = StringsParser(decoded.utf8).parseInto(file);
    // Decoding stopped at its problem, so a token cut short there is the decoding problem
    // showing through.
    if (decoded.problem && (!failure || failure->reachedEnd)) {
        failure = ParseFailure{.offset = decoded.utf8.size(), .message = *decoded.problem};
    }
    if (failure) {
        file.error = StringsFile::Error{.line = lineAt(decoded.utf8, failure->offset),
                                        .message = std::move(failure->message)};
    }
    return file;
}

std::optional<StringsFile> readStringsFile(const std::filesystem::path& path) {
    const std::optional<std::string> bytes = readFileContents(path);
    if (!bytes) {
        return std::nullopt;
    }
    return parseStringsFile(*bytes);
}

}  // namespace tactora
