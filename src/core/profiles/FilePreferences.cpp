#include "core/profiles/FilePreferences.h"

#include <fstream>
#include <limits>
#include <nlohmann/json.hpp>
#include <system_error>
#include <utility>

#include "core/profiles/Base64.h"
#include "core/profiles/Uuid.h"
#include "core/support/FileContents.h"

namespace tactora {

namespace fs = std::filesystem;

namespace {

using Json = nlohmann::json;

constexpr const char* dataTag = "data";
// Past this many set-aside copies something is badly wrong; stop rather than fill the disk.
constexpr int maxDamagedCopies = 100;

Json encodeValue(const PreferenceValue& value) {
    if (const auto* bytes = std::get_if<Bytes>(&value)) {
        return Json{{dataTag, encodeBase64(*bytes)}};
    }
    if (const auto* text = std::get_if<std::string>(&value)) {
        return *text;
    }
    return std::get<std::int64_t>(value);
}

std::string encodeFile(const PreferenceValues& values) {
    Json object = Json::object();
    for (const auto& [key, value] : values) {
        object[key] = encodeValue(value);
    }
    return object.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::optional<PreferenceValue> decodeValue(const Json& json) {
    if (json.is_string()) {
        return json.get<std::string>();
    }
    if (json.is_number_unsigned()) {
        const auto number = json.get<std::uint64_t>();
        if (number > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())) {
            return std::nullopt;
        }
        return static_cast<std::int64_t>(number);
    }
    if (json.is_number_integer()) {
        return json.get<std::int64_t>();
    }
    if (json.is_object() && json.size() == 1 && json.contains(dataTag) &&
        json[dataTag].is_string()) {
        std::optional<Bytes> bytes = decodeBase64(json[dataTag].get_ref<const std::string&>());
        if (bytes) {
            return std::move(*bytes);
        }
    }
    return std::nullopt;
}

// Nothing unless every entry is one this class writes; a file that says anything else is left
// for a person to look at rather than half read.
std::optional<PreferenceValues> decodeFile(const std::string& text) {
    const Json document = Json::parse(text, nullptr, false);
    if (document.is_discarded() || !document.is_object()) {
        return std::nullopt;
    }
    PreferenceValues values;
    for (const auto& [key, json] : document.items()) {
        std::optional<PreferenceValue> value = decodeValue(json);
        if (!value) {
            return std::nullopt;
        }
        values.emplace(key, std::move(*value));
    }
    return values;
}

bool writeFile(const fs::path& file, const std::string& text) {
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(text.data(), static_cast<std::streamsize>(text.size()));
    out.flush();
    out.close();
    return !out.fail();
}

std::optional<fs::path> freeDamagedName(const fs::path& file) {
    for (int n = 1; n <= maxDamagedCopies; ++n) {
        fs::path candidate = file;
        candidate += n == 1 ? ".damaged" : ".damaged." + std::to_string(n);
        std::error_code error;
        if (fs::symlink_status(candidate, error).type() == fs::file_type::not_found) {
            return candidate;
        }
    }
    return std::nullopt;
}

}  // namespace

FilePreferences::FilePreferences(fs::path file) : file_(std::move(file)) {
    load();
}

void FilePreferences::load() {
    std::error_code error;
    const fs::file_status status = fs::status(file_, error);
    if (status.type() == fs::file_type::not_found) {
        return;
    }
    std::optional<PreferenceValues> values;
    if (!error && fs::is_regular_file(status)) {
        if (const std::optional<std::string> text = readFileContents(file_)) {
            values = decodeFile(*text);
        }
    }
    if (!values) {
        setAside();
        return;
    }
    values_ = MemoryPreferences(std::move(*values));
}

void FilePreferences::setAside() {
    const std::optional<fs::path> target = freeDamagedName(file_);
    std::error_code error;
    if (target) {
        fs::rename(file_, *target, error);
    }
    writable_ = target.has_value() && !error;
}

void FilePreferences::persist() const {
    if (!writable_) {
        return;
    }
    std::error_code error;
    fs::create_directories(file_.parent_path(), error);
    fs::path temporary = file_;
    temporary += ".tmp-" + Uuid::random().text();
    if (writeFile(temporary, encodeFile(values_.values()))) {
        fs::rename(temporary, file_, error);
        if (!error) {
            return;
        }
    }
    fs::remove(temporary, error);
}

std::optional<Bytes> FilePreferences::data(const std::string& key) const {
    return values_.data(key);
}

std::optional<std::string> FilePreferences::string(const std::string& key) const {
    return values_.string(key);
}

std::optional<std::int64_t> FilePreferences::integer(const std::string& key) const {
    return values_.integer(key);
}

void FilePreferences::setData(const std::string& key, const Bytes& value) {
    values_.setData(key, value);
    persist();
}

void FilePreferences::setString(const std::string& key, const std::string& value) {
    values_.setString(key, value);
    persist();
}

void FilePreferences::setInteger(const std::string& key, std::int64_t value) {
    values_.setInteger(key, value);
    persist();
}

void FilePreferences::remove(const std::string& key) {
    values_.remove(key);
    persist();
}

void FilePreferences::removeAll() {
    values_.removeAll();
    if (!writable_) {
        return;
    }
    std::error_code error;
    fs::remove(file_, error);
}

}  // namespace tactora
