#pragma once

#include <filesystem>

#include "core/profiles/MemoryPreferences.h"
#include "core/profiles/Preferences.h"

namespace tactora {

// A preferences domain kept in one JSON file, for systems without a user defaults database.
//
// The file is read once, on construction, and rewritten in full after every change: the new
// content goes to a temporary file in the same directory, which is then renamed over the old
// one, so a crash mid-save leaves either the old file or the new one, never a mix.
//
// A file that cannot be read or understood is moved aside as "<file>.damaged" (or
// "<file>.damaged.N" when that name is taken) and the domain starts empty. If it cannot be
// moved, the domain still works in memory but never writes, so the file is not overwritten.
//
// File format: one JSON object; a text is a JSON string, an integer a JSON integer, bytes an
// object {"data": "<base64>"}. Texts that are not valid UTF-8 are written with U+FFFD in place
// of the bad bytes. A failed write leaves the previous file in place; the values stay in
// memory and the next change tries again.
//
// Main thread only.
class FilePreferences : public Preferences {
  public:
    explicit FilePreferences(std::filesystem::path file);

    std::optional<Bytes> data(const std::string& key) const override;
    std::optional<std::string> string(const std::string& key) const override;
    std::optional<std::int64_t> integer(const std::string& key) const override;

    void setData(const std::string& key, const Bytes& value) override;
    void setString(const std::string& key, const std::string& value) override;
    void setInteger(const std::string& key, std::int64_t value) override;
    void remove(const std::string& key) override;

    // Forgets every value and deletes the file.
    void removeAll();

    const std::filesystem::path& file() const { return file_; }

    // False after a damaged file could not be moved aside.
    bool isWritable() const { return writable_; }

  private:
    void load();
    void setAside();
    void persist() const;

    std::filesystem::path file_;
    MemoryPreferences values_;
    bool writable_ = true;
};

}  // namespace tactora
