#include "core/app/ProfileName.h"

#include "core/text/GraphemeClusters.h"
#include "core/text/Whitespace.h"

namespace tactora {

std::optional<std::string> profileName(std::string_view entered) {
    const std::string_view name =
        graphemes::prefix(trimWhitespaceAndNewlines(entered), maxProfileNameLength);
    if (name.empty()) {
        return std::nullopt;
    }
    return std::string(name);
}

}  // namespace tactora
