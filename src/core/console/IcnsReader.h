#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace tactora {

// The pixel width of every image in an Apple icon file ("icns"), read from the container and
// the images' headers without decoding any pixels, so that the icon check runs on every
// system. Pure; callable from any thread.
//
// The container must be intact: the magic "icns", a big-endian total length equal to the size
// of the data, and entries (4-byte type, big-endian length that counts its 8-byte header) that
// fill it exactly. Anything else is damage and yields nothing.
//
// Widths come one per image entry, in file order. A PNG payload gives the width in its IHDR
// chunk, a JPEG 2000 payload (JP2 file or bare codestream) the width in its image header; the
// legacy types that hold raw pixels (is32, il32, ih32, it32, ic04, ic05, icp4, icp5, the
// 1-, 4- and 8-bit types) give their fixed width. Types that are not images (table of contents,
// version, name, info, masks, unknown types) are skipped. An image whose payload can't be read
// (a damaged PNG header, or raw data where only PNG or JPEG 2000 may stand) is left out, and
// the other images still count.
std::optional<std::vector<std::int64_t>> icnsPixelWidths(std::span<const std::uint8_t> bytes);

// The same for the icon file at `path`; nothing when it can't be read.
std::optional<std::vector<std::int64_t>> icnsFilePixelWidths(const std::filesystem::path& path);

}  // namespace tactora
