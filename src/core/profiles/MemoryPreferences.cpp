#include "core/profiles/MemoryPreferences.h"

namespace tactora {

template <typename T>
std::optional<T> MemoryPreferences::read(const std::string& key) const {
    const auto found = values_.find(key);
    if (found == values_.end()) {
        return std::nullopt;
    }
    const T* value = std::get_if<T>(&found->second);
    return value == nullptr ? std::nullopt : std::optional<T>(*value);
}

std::optional<Bytes> MemoryPreferences::data(const std::string& key) const {
    return read<Bytes>(key);
}

std::optional<std::string> MemoryPreferences::string(const std::string& key) const {
    return read<std::string>(key);
}

std::optional<std::int64_t> MemoryPreferences::integer(const std::string& key) const {
    return read<std::int64_t>(key);
}

void MemoryPreferences::setData(const std::string& key, const Bytes& value) {
    values_.insert_or_assign(key, value);
}

void MemoryPreferences::setString(const std::string& key, const std::string& value) {
    values_.insert_or_assign(key, value);
}

void MemoryPreferences::setInteger(const std::string& key, std::int64_t value) {
    values_.insert_or_assign(key, value);
}

void MemoryPreferences::remove(const std::string& key) {
    values_.erase(key);
}

}  // namespace tactora
