// Feeds arbitrary bytes to the .stringsdict reader, then audits what it read and resolves every
// entry for a few integer and string arguments. Beyond not crashing (however deep the nesting),
// every text it yields must be valid UTF-8, and an error must name a plausible line.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "core/localization/DecodedText.h"
#include "core/localization/Formatter.h"
#include "core/localization/LocalizationAudit.h"
#include "core/localization/PluralExpansion.h"
#include "core/localization/StringsDictFile.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

bool isValidUtf8(std::string_view text) {
    return tactora::validUtf8Length(text) == text.size();
}

tactora::PluralCategory categoryOf(std::int64_t value) {
    return static_cast<tactora::PluralCategory>(static_cast<std::uint64_t>(value) % 6);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const tactora::StringsDictFile file = tactora::parseStringsDictFile(bytes);
    if (file.error) {
        require(file.entries.empty());
        require(file.error->line >= 1 && file.error->line <= size + 1);
    }
    for (const std::string& problem : tactora::auditStringsDictFile(file)) {
        require(isValidUtf8(problem));
    }
    const std::vector<std::vector<tactora::FormatArgument>> argumentLists = {
        {std::int64_t{0}},
        {std::int64_t{1}, std::string("a"), std::string("b")},
        {std::string("x"), std::int64_t{-7}, std::int64_t{3}},
    };
    for (const auto& [key, plural] : file.entries) {
        require(isValidUtf8(key) && isValidUtf8(plural.format));
        for (const auto& arguments : argumentLists) {
            const auto expanded = tactora::expandPluralFormat(plural, arguments, categoryOf);
            if (expanded) {
                require(isValidUtf8(tactora::formatText(expanded->format, expanded->arguments)));
            }
        }
    }
    return 0;
}
