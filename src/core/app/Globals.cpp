#include "core/app/Globals.h"

#include "core/localization/Localizer.h"

namespace tactora {

namespace {
std::vector<std::string>& mutableChoices() {
    static std::vector<std::string> names;
    return names;
}
}  // namespace

const std::vector<std::string>& choices() {
    return mutableChoices();
}

void initializeGlobals() {
    std::vector<std::string> names;
    names.reserve(actionKeys.size());
    for (const std::string_view key : actionKeys) {
        names.push_back(L(key));
    }
    mutableChoices() = std::move(names);
}

}  // namespace tactora
