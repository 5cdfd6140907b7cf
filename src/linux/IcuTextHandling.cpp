#include "linux/IcuTextHandling.h"

#include <unicode/ubrk.h>
#include <unicode/ucasemap.h>
#include <unicode/uchar.h>
#include <unicode/upluralrules.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <climits>
#include <memory>
#include <optional>

#include "core/support/Fatal.h"
#include "core/text/Utf8.h"

namespace tactora {

namespace {

struct CaseMapCloser {
    void operator()(UCaseMap* map) const { ucasemap_close(map); }
};
struct TextCloser {
    void operator()(UText* text) const { utext_close(text); }
};
struct BreakIteratorCloser {
    void operator()(UBreakIterator* iterator) const { ubrk_close(iterator); }
};
struct PluralRulesCloser {
    void operator()(UPluralRules* rules) const { uplrules_close(rules); }
};

void check(UErrorCode status, std::string_view what) {
    if (U_FAILURE(status)) {
        fatalError(std::string("ICU failed to ") + std::string(what) + ": " + u_errorName(status));
    }
}

int32_t icuLength(std::string_view text) {
    if (text.size() > static_cast<std::size_t>(INT32_MAX)) {
        fatalError("Text too long for ICU");
    }
    return static_cast<int32_t>(text.size());
}

// Walks the user-perceived characters of valid UTF-8 text; boundaries are byte offsets.
class CharacterBoundaries {
  public:
    explicit CharacterBoundaries(std::string_view text) {
        UErrorCode status = U_ZERO_ERROR;
        text_.reset(utext_openUTF8(nullptr, text.data(), icuLength(text), &status));
        check(status, "open text");
        iterator_.reset(ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status));
        check(status, "open a character break iterator");
        ubrk_setUText(iterator_.get(), text_.get(), &status);
        check(status, "set the break iterator's text");
    }

    // The byte offset after the next character, or nothing at the end.
    std::optional<std::size_t> next() {
        const int32_t boundary = ubrk_next(iterator_.get());
        if (boundary == UBRK_DONE) {
            return std::nullopt;
        }
        return static_cast<std::size_t>(boundary);
    }

  private:
    std::unique_ptr<UText, TextCloser> text_;
    std::unique_ptr<UBreakIterator, BreakIteratorCloser> iterator_;
};

// White space and line breaks as the platform's trimming knows them: the separators (Zs, Zl,
// Zp), tab, line feed, vertical tab, form feed, carriage return and next line.
bool isWhitespaceOrNewline(UChar32 codePoint) {
    if ((codePoint >= 0x09 && codePoint <= 0x0D) || codePoint == 0x85) {
        return true;
    }
    const auto type = static_cast<UCharCategory>(u_charType(codePoint));
    return type == U_SPACE_SEPARATOR || type == U_LINE_SEPARATOR || type == U_PARAGRAPH_SEPARATOR;
}

PluralCategory categoryOf(const char* keyword) {
    return pluralCategoryNamed(keyword).value_or(PluralCategory::other);
}

std::string icuLocale(std::string_view language) {
    std::string locale(language);
    std::ranges::replace(locale, '-', '_');
    return locale;
}

}  // namespace

std::string IcuTextHandling::upperCased(std::string_view input) const {
    const std::string text = utf8::repaired(input);
    UErrorCode status = U_ZERO_ERROR;
    // The root locale: the default mapping, the same for every user.
    const std::unique_ptr<UCaseMap, CaseMapCloser> map(
        ucasemap_open("", U_FOLD_CASE_DEFAULT, &status));
    check(status, "open a case map");
    const int32_t needed =
        ucasemap_utf8ToUpper(map.get(), nullptr, 0, text.data(), icuLength(text), &status);
    if (status != U_BUFFER_OVERFLOW_ERROR) {
        check(status, "measure upper case");
    }
    status = U_ZERO_ERROR;
    std::string result(static_cast<std::size_t>(needed), '\0');
    ucasemap_utf8ToUpper(map.get(), result.data(), needed, text.data(), icuLength(text), &status);
    if (status != U_STRING_NOT_TERMINATED_WARNING) {
        check(status, "upper-case text");
    }
    return result;
}

std::size_t IcuTextHandling::characterCount(std::string_view input) const {
    const std::string text = utf8::repaired(input);
    CharacterBoundaries boundaries(text);
    std::size_t count = 0;
    while (boundaries.next()) {
        ++count;
    }
    return count;
}

std::string IcuTextHandling::leadingCharacters(std::string_view input, std::size_t count) const {
    std::string text = utf8::repaired(input);
    CharacterBoundaries boundaries(text);
    std::size_t end = 0;
    for (std::size_t taken = 0; taken < count; ++taken) {
        const std::optional<std::size_t> boundary = boundaries.next();
        if (!boundary) {
            break;
        }
        end = *boundary;
    }
    text.resize(end);
    return text;
}

std::string IcuTextHandling::trimmed(std::string_view input) const {
    const std::string text = utf8::repaired(input);
    const auto* bytes = reinterpret_cast<const uint8_t*>(text.data());
    const int32_t length = icuLength(text);
    int32_t begin = 0;
    while (begin < length) {
        int32_t next = begin;
        UChar32 codePoint = 0;
        U8_NEXT(bytes, next, length, codePoint);
        if (!isWhitespaceOrNewline(codePoint)) {
            break;
        }
        begin = next;
    }
    int32_t end = length;
    while (end > begin) {
        int32_t previous = end;
        UChar32 codePoint = 0;
        U8_PREV(bytes, 0, previous, codePoint);
        if (!isWhitespaceOrNewline(codePoint)) {
            break;
        }
        end = previous;
    }
    return text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin));
}

PluralCategory IcuTextHandling::pluralCategory(std::string_view language,
                                               std::int64_t value) const {
    UErrorCode status = U_ZERO_ERROR;
    const std::unique_ptr<UPluralRules, PluralRulesCloser> rules(
        uplrules_open(icuLocale(language).c_str(), &status));
    if (U_FAILURE(status)) {
        return PluralCategory::other;
    }
    std::array<UChar, 16> keyword{};
    const int32_t length = uplrules_select(rules.get(), static_cast<double>(value), keyword.data(),
                                           static_cast<int32_t>(keyword.size()), &status);
    if (U_FAILURE(status) || length <= 0 || length >= static_cast<int32_t>(keyword.size())) {
        return PluralCategory::other;
    }
    std::array<char, 16> name{};
    u_UCharsToChars(keyword.data(), name.data(), length);
    return categoryOf(name.data());
}

std::shared_ptr<const TextHandling> makePlatformTextHandling() {
    return std::make_shared<const IcuTextHandling>();
}

}  // namespace tactora
