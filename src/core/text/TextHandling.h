#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "core/text/PluralCategory.h"

namespace tactora {

// The platform's own handling of Unicode text, so that every script and every emoji sequence
// is treated as the system treats it: Foundation on macOS, ICU elsewhere.
//
// Every text is UTF-8. Text that is not valid UTF-8 is first repaired (utf8::repaired: each
// malformed byte reads as U+FFFD), so both implementations see the same characters and every
// result is valid UTF-8. Implementations are immutable; any thread.
class TextHandling {
  public:
    TextHandling() = default;
    virtual ~TextHandling() = default;

    // `text` in upper case by the default, locale-independent rules: "ß" becomes "SS", and a
    // Turkish user's "i" still becomes "I".
    virtual std::string upperCased(std::string_view text) const = 0;

    // The number of user-perceived characters (extended grapheme clusters) of `text`.
    virtual std::size_t characterCount(std::string_view text) const = 0;

    // The first `count` user-perceived characters of `text`, all of it when it has no more;
    // never cuts inside one.
    virtual std::string leadingCharacters(std::string_view text, std::size_t count) const = 0;

    // `text` without white space and line breaks at either end (the Unicode space, line and
    // paragraph separators, tab, line feed, vertical tab, form feed, carriage return, next
    // line).
    virtual std::string trimmed(std::string_view text) const = 0;

    // The plural category of the integer `value` in `language` (a localisation's name, such as
    // "pt-BR"); "other" for a language the platform has no rules for.
    virtual PluralCategory pluralCategory(std::string_view language, std::int64_t value) const = 0;

  protected:
    TextHandling(const TextHandling&) = default;
    TextHandling& operator=(const TextHandling&) = default;
    TextHandling(TextHandling&&) = default;
    TextHandling& operator=(TextHandling&&) = default;
};

// The platform's implementation: Foundation's on macOS, ICU's elsewhere. Defined by the
// platform's text library, which every program and test program links.
std::shared_ptr<const TextHandling> makePlatformTextHandling();

// Installs the process-wide text handling that the core uses. Called at start-up, before any
// text is handled, and by tests. Main thread only.
void installTextHandling(std::shared_ptr<const TextHandling> handling);

// The installed text handling. Using text handling before installing one is a programming
// error and stops the program. Main thread only.
const TextHandling& textHandling();

}  // namespace tactora
