#include "core/app/ProfileName.h"

#include "core/text/TextHandling.h"

namespace tactora {

std::optional<std::string> profileName(std::string_view entered) {
    const TextHandling& text = textHandling();
    std::string name = text.leadingCharacters(text.trimmed(entered), maxProfileNameLength);
    if (name.empty()) {
        return std::nullopt;
    }
    return name;
}

}  // namespace tactora
