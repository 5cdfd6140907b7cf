#include "core/console/IcnsReader.h"

#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "support/ShippedResources.h"

namespace tactora {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Widths = std::vector<std::int64_t>;

void appendBigEndian(Bytes& bytes, std::uint64_t value, int width) {
    for (int shift = (width - 1) * 8; shift >= 0; shift -= 8) {
        bytes.push_back(static_cast<std::uint8_t>(value >> shift));
    }
}

void appendCode(Bytes& bytes, std::string_view code) {
    bytes.insert(bytes.end(), code.begin(), code.end());
}

// A JPEG 2000 box: length first, then the type.
Bytes box(std::string_view code, const Bytes& contents) {
    Bytes bytes;
    appendBigEndian(bytes, 8 + contents.size(), 4);
    appendCode(bytes, code);
    bytes.insert(bytes.end(), contents.begin(), contents.end());
    return bytes;
}

// An icon entry: type first, then the length, which counts the 8-byte header.
Bytes entry(std::string_view type, const Bytes& payload) {
    Bytes bytes;
    appendCode(bytes, type);
    appendBigEndian(bytes, 8 + payload.size(), 4);
    bytes.insert(bytes.end(), payload.begin(), payload.end());
    return bytes;
}

Bytes concat(const std::vector<Bytes>& parts) {
    Bytes bytes;
    for (const Bytes& part : parts) {
        bytes.insert(bytes.end(), part.begin(), part.end());
    }
    return bytes;
}

// The start of a PNG file: signature and IHDR chunk, which is all the reader looks at.
Bytes png(std::uint32_t width, std::uint32_t height) {
    Bytes bytes{0x89, 'P', 'N', 'G', 0x0D, 0x0A, 0x1A, 0x0A};
    appendBigEndian(bytes, 13, 4);
    appendCode(bytes, "IHDR");
    appendBigEndian(bytes, width, 4);
    appendBigEndian(bytes, height, 4);
    bytes.insert(bytes.end(), {8, 6, 0, 0, 0});
    appendBigEndian(bytes, 0, 4);  // CRC, not checked
    return bytes;
}

// A JPEG 2000 codestream's start and SIZ segment.
Bytes codestream(std::uint32_t gridWidth, std::uint32_t xOffset) {
    Bytes bytes{0xFF, 0x4F, 0xFF, 0x51};
    appendBigEndian(bytes, 41, 2);  // Lsiz
    appendBigEndian(bytes, 0, 2);   // Rsiz
    appendBigEndian(bytes, gridWidth, 4);
    appendBigEndian(bytes, gridWidth, 4);
    appendBigEndian(bytes, xOffset, 4);
    appendBigEndian(bytes, 0, 4);
    return bytes;
}

Bytes jp2Signature() {
    return {0, 0, 0, 12, 'j', 'P', ' ', ' ', 0x0D, 0x0A, 0x87, 0x0A};
}

Bytes jp2WithImageHeader(std::uint32_t width, std::uint32_t height) {
    Bytes imageHeader;
    appendBigEndian(imageHeader, height, 4);
    appendBigEndian(imageHeader, width, 4);
    imageHeader.insert(imageHeader.end(), {0, 4, 7, 7, 0, 0});
    return concat({jp2Signature(), box("ftyp", {'j', 'p', '2', ' '}),
                   box("jp2h", box("ihdr", imageHeader)), box("jp2c", codestream(1, 0))});
}

Bytes icns(const std::vector<Bytes>& entries) {
    const Bytes body = concat(entries);
    Bytes bytes;
    appendCode(bytes, "icns");
    appendBigEndian(bytes, 8 + body.size(), 4);
    bytes.insert(bytes.end(), body.begin(), body.end());
    return bytes;
}

std::optional<Widths> widthsOf(const Bytes& bytes) {
    return icnsPixelWidths(bytes);
}

bool contains(const Widths& widths, std::int64_t width) {
    return std::find(widths.begin(), widths.end(), width) != widths.end();
}

// A file under the system's temporary directory, removed at the end of the test.
class TemporaryFile {
  public:
    explicit TemporaryFile(const Bytes& bytes)
        : path_(std::filesystem::temp_directory_path() /
                ("tactora-icns-" + std::to_string(::getpid()) + ".icns")) {
        std::ofstream file(path_, std::ios::binary);
        file.write(reinterpret_cast<const char*>(bytes.data()),
                   static_cast<std::streamsize>(bytes.size()));
    }
    ~TemporaryFile() { std::filesystem::remove(path_); }
    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

TEST(IcnsReader, TheBundledIconHasEveryRequiredWidth) {
    const auto widths = icnsFilePixelWidths(testing::shippedResourcesDirectory() / "Tactora.icns");

    ASSERT_TRUE(widths.has_value());
    for (std::int64_t required : {16, 32, 64, 128, 256, 512, 1024}) {
        EXPECT_TRUE(contains(*widths, required)) << required;
    }
}

TEST(IcnsReader, AFileWithoutThe64PixelImageLacksThatWidth) {
    TemporaryFile file(icns({entry("ic10", png(1024, 1024)), entry("ic09", png(512, 512)),
                             entry("ic08", png(256, 256)), entry("ic07", png(128, 128)),
                             entry("icp5", png(32, 32)), entry("icp4", png(16, 16))}));

    const auto widths = icnsFilePixelWidths(file.path());

    ASSERT_TRUE(widths.has_value());
    EXPECT_EQ(*widths, (Widths{1024, 512, 256, 128, 32, 16}));
    EXPECT_FALSE(contains(*widths, 64));
}

TEST(IcnsReader, ListsOneWidthPerImageInFileOrder) {
    const auto widths =
        widthsOf(icns({entry("icp4", png(16, 16)), entry("ic11", png(32, 32)),
                       entry("icp5", png(32, 32)), entry("ic10", png(1024, 1024))}));

    EXPECT_EQ(widths, (Widths{16, 32, 32, 1024}));
}

TEST(IcnsReader, TakesThePngWidthFromItsHeaderRatherThanFromTheType) {
    EXPECT_EQ(widthsOf(icns({entry("ic07", png(100, 80))})), Widths{100});
}

TEST(IcnsReader, ReadsTheWidthFromAJp2ImageHeader) {
    EXPECT_EQ(widthsOf(icns({entry("ic08", jp2WithImageHeader(256, 200))})), Widths{256});
}

TEST(IcnsReader, ReadsTheWidthFromTheCodestreamOfAJp2WithoutImageHeader) {
    const Bytes jp2 = concat({jp2Signature(), box("jp2c", codestream(520, 8))});

    EXPECT_EQ(widthsOf(icns({entry("ic09", jp2)})), Widths{512});
}

TEST(IcnsReader, ReadsTheWidthOfABareCodestream) {
    EXPECT_EQ(widthsOf(icns({entry("ic09", codestream(512, 0))})), Widths{512});
}

TEST(IcnsReader, GivesLegacyRawTypesTheirFixedWidths) {
    const Bytes raw{0x01, 0x02, 0x03, 0x04};
    const Bytes argb{'A', 'R', 'G', 'B', 0xFF, 0x00};

    const auto widths =
        widthsOf(icns({entry("is32", raw), entry("il32", raw), entry("ih32", raw),
                       entry("it32", raw), entry("ic04", argb), entry("ic05", argb),
                       entry("icp4", raw), entry("icp5", raw), entry("ICN#", raw)}));

    EXPECT_EQ(widths, (Widths{16, 32, 48, 128, 16, 32, 16, 32, 32}));
}

TEST(IcnsReader, SkipsEntriesThatAreNotImages) {
    const Bytes data{0, 0, 0, 1};

    const auto widths = widthsOf(
        icns({entry("TOC ", data), entry("icnV", data), entry("name", data), entry("info", data),
              entry("s8mk", data), entry("l8mk", data), entry("h8mk", data), entry("t8mk", data),
              entry("zzzz", png(64, 64)), entry("ic12", png(64, 64))}));

    EXPECT_EQ(widths, Widths{64});
}

TEST(IcnsReader, AContainerWithoutEntriesHasNoImages) {
    EXPECT_EQ(widthsOf(icns({})), Widths{});
}

TEST(IcnsReader, LeavesOutUnreadableImagesOfAnIntactContainer) {
    Bytes truncatedPng = png(128, 128);
    truncatedPng.resize(20);
    Bytes zeroWidthPng = png(0, 16);

    const auto widths = widthsOf(
        icns({entry("icp4", png(16, 16)), entry("ic07", truncatedPng),
              entry("ic08", {'n', 'o', 't', ' ', 'p', 'n', 'g'}), entry("icp6", zeroWidthPng),
              entry("ic09", concat({jp2Signature(), box("jp2c", codestream(8, 8))})),
              entry("ic10", png(1024, 1024))}));

    EXPECT_EQ(widths, (Widths{16, 1024}));
}

TEST(IcnsReader, RejectsAWrongMagic) {
    Bytes bytes = icns({entry("icp4", png(16, 16))});
    bytes[0] = 'I';

    EXPECT_EQ(widthsOf(bytes), std::nullopt);
}

TEST(IcnsReader, RejectsDataShorterThanTheContainerHeader) {
    EXPECT_EQ(widthsOf({}), std::nullopt);
    EXPECT_EQ(widthsOf({'i', 'c', 'n', 's', 0, 0, 0}), std::nullopt);
}

TEST(IcnsReader, RejectsATotalLengthBeyondTheData) {
    Bytes bytes = icns({entry("icp4", png(16, 16))});
    bytes.pop_back();

    EXPECT_EQ(widthsOf(bytes), std::nullopt);
}

TEST(IcnsReader, RejectsDataBeyondTheTotalLength) {
    Bytes bytes = icns({entry("icp4", png(16, 16))});
    bytes.push_back(0);

    EXPECT_EQ(widthsOf(bytes), std::nullopt);
}

TEST(IcnsReader, RejectsAnEntryShorterThanItsOwnHeader) {
    Bytes damaged;
    appendCode(damaged, "icp4");
    appendBigEndian(damaged, 4, 4);

    EXPECT_EQ(widthsOf(icns({damaged, entry("ic07", png(128, 128))})), std::nullopt);
}

TEST(IcnsReader, RejectsAnEntryRunningPastTheEnd) {
    Bytes overlong;
    appendCode(overlong, "ic07");
    appendBigEndian(overlong, 0xFFFFFFFF, 4);
    const Bytes payload = png(128, 128);
    overlong.insert(overlong.end(), payload.begin(), payload.end());

    EXPECT_EQ(widthsOf(icns({entry("icp4", png(16, 16)), overlong})), std::nullopt);
}

TEST(IcnsReader, RejectsStrayBytesAfterTheLastEntry) {
    EXPECT_EQ(widthsOf(icns({entry("icp4", png(16, 16)), Bytes{'i', 'c', 'p'}})), std::nullopt);
}

TEST(IcnsReader, AMissingFileYieldsNothing) {
    EXPECT_EQ(icnsFilePixelWidths("/nonexistent/Tactora.icns"), std::nullopt);
}

TEST(IcnsReader, ADirectoryYieldsNothing) {
    EXPECT_EQ(icnsFilePixelWidths(std::filesystem::temp_directory_path()), std::nullopt);
}

}  // namespace
}  // namespace tactora
