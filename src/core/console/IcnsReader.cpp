#include "core/console/IcnsReader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>
#include <iterator>
#include <limits>
#include <string_view>
#include <system_error>

namespace tactora {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kHeaderSize = 8;

// An icon type with the width its name promises, and whether it may hold raw pixels (which
// carry no size of their own) instead of PNG or JPEG 2000.
struct ImageType {
    std::string_view code;
    std::int64_t width;
    bool rawAllowed;
};

constexpr auto kImageTypes = std::to_array<ImageType>({
    {"ics#", 16, true},   {"ics4", 16, true},   {"ics8", 16, true},    {"icm#", 16, true},
    {"icm4", 16, true},   {"icm8", 16, true},   {"ICN#", 32, true},    {"icl4", 32, true},
    {"icl8", 32, true},   {"ich#", 48, true},   {"ich4", 48, true},    {"ich8", 48, true},
    {"is32", 16, true},   {"il32", 32, true},   {"ih32", 48, true},    {"it32", 128, true},
    {"icp4", 16, true},   {"icp5", 32, true},   {"icp6", 64, false},   {"ic07", 128, false},
    {"ic08", 256, false}, {"ic09", 512, false}, {"ic10", 1024, false}, {"ic11", 32, false},
    {"ic12", 64, false},  {"ic13", 256, false}, {"ic14", 512, false},  {"ic04", 16, true},
    {"ic05", 32, true},   {"icsb", 18, true},   {"icsB", 36, false},   {"sb24", 24, false},
    {"SB24", 48, false},
});

constexpr std::array<std::uint8_t, 8> kPngSignature{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
constexpr std::array<std::uint8_t, 12> kJp2Signature{0,   0,   0,    12,   'j',  'P',
                                                     ' ', ' ', 0x0D, 0x0A, 0x87, 0x0A};
constexpr std::array<std::uint8_t, 4> kCodestreamStart{0xFF, 0x4F, 0xFF, 0x51};

std::uint64_t bigEndian(Bytes bytes, std::size_t offset, std::size_t width) {
    std::uint64_t value = 0;
    for (std::size_t index = 0; index < width; ++index) {
        value = (value << 8) | bytes[offset + index];
    }
    return value;
}

template <std::size_t N>
bool startsWith(Bytes bytes, const std::array<std::uint8_t, N>& prefix) {
    return bytes.size() >= N && std::equal(prefix.begin(), prefix.end(), bytes.begin());
}

std::string_view fourCharacterCode(Bytes bytes, std::size_t offset) {
    return {reinterpret_cast<const char*>(bytes.data() + offset), 4};
}

const ImageType* findImageType(std::string_view code) {
    for (const ImageType& type : kImageTypes) {
        if (type.code == code) {
            return &type;
        }
    }
    return nullptr;
}

// PNG: the IHDR chunk comes first; widths are 1 to 2^31 - 1.
std::optional<std::int64_t> pngWidth(Bytes png) {
    constexpr std::size_t kIhdrEnd = 8 + 8 + 13;
    if (png.size() < kIhdrEnd || bigEndian(png, 8, 4) != 13 ||
        fourCharacterCode(png, 12) != "IHDR") {
        return std::nullopt;
    }
    const std::uint64_t width = bigEndian(png, 16, 4);
    if (width == 0 || width > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(width);
}

// A JPEG 2000 codestream: the SIZ segment right after the start gives the reference grid's
// width and the image's offset in it.
std::optional<std::int64_t> codestreamWidth(Bytes codestream) {
    constexpr std::size_t kSizEnd = 24;
    if (!startsWith(codestream, kCodestreamStart) || codestream.size() < kSizEnd) {
        return std::nullopt;
    }
    const std::uint64_t gridWidth = bigEndian(codestream, 8, 4);
    const std::uint64_t offset = bigEndian(codestream, 16, 4);
    if (gridWidth <= offset) {
        return std::nullopt;
    }
    return static_cast<std::int64_t>(gridWidth - offset);
}

// The contents of the first box of type `code` among the boxes that fill `boxes`, or nothing
// when there is none or a box runs past the end.
std::optional<Bytes> findBox(Bytes boxes, std::string_view code) {
    std::size_t offset = 0;
    while (boxes.size() - offset >= kHeaderSize) {
        const std::uint64_t declared = bigEndian(boxes, offset, 4);
        std::size_t header = kHeaderSize;
        std::uint64_t length = declared;
        if (declared == 0) {
            length = boxes.size() - offset;
        } else if (declared == 1) {
            header = 16;
            if (boxes.size() - offset < header) {
                return std::nullopt;
            }
            length = bigEndian(boxes, offset + 8, 8);
        }
        if (length < header || length > boxes.size() - offset) {
            return std::nullopt;
        }
        if (fourCharacterCode(boxes, offset + 4) == code) {
            return boxes.subspan(offset + header, static_cast<std::size_t>(length) - header);
        }
        offset += static_cast<std::size_t>(length);
    }
    return std::nullopt;
}

// A JP2 file: the image header box inside the header box, or else the embedded codestream.
std::optional<std::int64_t> jp2Width(Bytes file) {
    const Bytes boxes = file.subspan(kJp2Signature.size());
    if (const auto header = findBox(boxes, "jp2h")) {
        const auto imageHeader = findBox(*header, "ihdr");
        if (imageHeader && imageHeader->size() >= 8) {
            const std::uint64_t width = bigEndian(*imageHeader, 4, 4);
            if (width == 0) {
                return std::nullopt;
            }
            return static_cast<std::int64_t>(width);
        }
    }
    if (const auto codestream = findBox(boxes, "jp2c")) {
        return codestreamWidth(*codestream);
    }
    return std::nullopt;
}

std::optional<std::int64_t> imageWidth(const ImageType& type, Bytes payload) {
    if (startsWith(payload, kPngSignature)) {
        return pngWidth(payload);
    }
    if (startsWith(payload, kJp2Signature)) {
        return jp2Width(payload);
    }
    if (startsWith(payload, kCodestreamStart)) {
        return codestreamWidth(payload);
    }
    if (type.rawAllowed) {
        return type.width;
    }
    return std::nullopt;
}

}  // namespace

std::optional<std::vector<std::int64_t>> icnsPixelWidths(Bytes bytes) {
    if (bytes.size() < kHeaderSize || fourCharacterCode(bytes, 0) != "icns" ||
        bigEndian(bytes, 4, 4) != bytes.size()) {
        return std::nullopt;
    }
    std::vector<std::int64_t> widths;
    std::size_t offset = kHeaderSize;
    while (offset < bytes.size()) {
        if (bytes.size() - offset < kHeaderSize) {
            return std::nullopt;
        }
        const std::uint64_t length = bigEndian(bytes, offset + 4, 4);
        if (length < kHeaderSize || length > bytes.size() - offset) {
            return std::nullopt;
        }
        const ImageType* type = findImageType(fourCharacterCode(bytes, offset));
        const Bytes payload =
            bytes.subspan(offset + kHeaderSize, static_cast<std::size_t>(length) - kHeaderSize);
        if (type != nullptr) {
            if (const auto width = imageWidth(*type, payload)) {
                widths.push_back(*width);
            }
        }
        offset += static_cast<std::size_t>(length);
    }
    return widths;
}

std::optional<std::vector<std::int64_t>> icnsFilePixelWidths(const std::filesystem::path& path) {
    std::error_code error;
    const auto size = std::filesystem::file_size(path, error);
    // The container's length field has 32 bits, so anything larger is not an icon file.
    if (error || !std::filesystem::is_regular_file(path, error) ||
        size > std::numeric_limits<std::uint32_t>::max()) {
        return std::nullopt;
    }
    std::ifstream file(path, std::ios::binary);
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (!file.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(size))) {
        return std::nullopt;
    }
    return icnsPixelWidths(bytes);
}

}  // namespace tactora
