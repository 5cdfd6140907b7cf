// Feeds arbitrary bytes to the .strings reader. Beyond not crashing, the reader must only ever
// produce valid UTF-8, report a plausible line, and read back what it read when its entries
// are written out again.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "core/localization/DecodedText.h"
#include "core/localization/StringsFile.h"

namespace {

void require(bool condition) {
    if (!condition) {
        std::abort();
    }
}

std::string inQuotes(std::string_view text) {
    std::string result = "\"";
    for (const char character : text) {
        if (character == '"' || character == '\\') {
            result.push_back('\\');
        }
        result.push_back(character);
    }
    result.push_back('"');
    return result;
}

bool isValidUtf8(std::string_view text) {
    return tactora::validUtf8Length(text) == text.size();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const tactora::StringsFile file = tactora::parseStringsFile(bytes);

    std::string written;
    for (const auto& [key, value] : file.entries) {
        require(isValidUtf8(key) && isValidUtf8(value));
        written += inQuotes(key) + " = " + inQuotes(value) + ";\n";
    }
    if (file.error) {
        require(file.error->line >= 1 && file.error->line <= size + 1);
        require(!file.error->message.empty());
    }

    const tactora::StringsFile reread = tactora::parseStringsFile(written);
    require(!reread.error);
    require(reread.entries == file.entries);
    return 0;
}
