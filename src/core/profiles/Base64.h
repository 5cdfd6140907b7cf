#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/profiles/Preferences.h"

namespace tactora {

// Standard base64 (RFC 4648 alphabet, with padding), used to keep byte values in text files.
// Pure functions; callable from any thread.
std::string encodeBase64(const Bytes& bytes);

// Nothing unless `text` is canonical padded base64: length a multiple of four, only alphabet
// characters, padding only at the end and unused bits zero.
std::optional<Bytes> decodeBase64(std::string_view text);

}  // namespace tactora
