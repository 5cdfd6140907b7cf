#include "core/profiles/MemoryPreferenceSuites.h"

namespace tactora {

std::shared_ptr<Preferences> MemoryPreferenceSuites::suite(const std::string& name) {
    auto& domain = suites_[name];
    if (!domain) {
        domain = std::make_shared<MemoryPreferences>();
    }
    return domain;
}

void MemoryPreferenceSuites::removeSuite(const std::string& name) {
    const auto found = suites_.find(name);
    if (found == suites_.end()) {
        return;
    }
    // Someone may still hold the domain; it must read as empty from now on.
    found->second->removeAll();
    suites_.erase(found);
}

}  // namespace tactora
