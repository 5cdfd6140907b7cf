#include "core/localization/DecodedText.h"

#include <gtest/gtest.h>

#include <string>

namespace tactora {
namespace {

std::string utf16le(std::u16string_view text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<char>(unit & 0xFFU));
        bytes.push_back(static_cast<char>(unit >> 8U));
    }
    return bytes;
}

std::string utf16be(std::u16string_view text) {
    std::string bytes = "\xFE\xFF";
    for (const char16_t unit : text) {
        bytes.push_back(static_cast<char>(unit >> 8U));
        bytes.push_back(static_cast<char>(unit & 0xFFU));
    }
    return bytes;
}

TEST(DecodedTextTest, PlainUtf8PassesThrough) {
    const DecodedText decoded = decodeText("Ação · —");
    EXPECT_EQ(decoded.utf8, "Ação · —");
    EXPECT_FALSE(decoded.problem);
}

TEST(DecodedTextTest, Utf8ByteOrderMarkIsDropped) {
    EXPECT_EQ(decodeText("\xEF\xBB\xBFok").utf8, "ok");
}

TEST(DecodedTextTest, Utf16LittleEndianBecomesUtf8) {
    const DecodedText decoded = decodeText(utf16le(u"Mesa · 🖱"));
    EXPECT_EQ(decoded.utf8, "Mesa · 🖱");
    EXPECT_FALSE(decoded.problem);
}

TEST(DecodedTextTest, Utf16BigEndianBecomesUtf8) {
    EXPECT_EQ(decodeText(utf16be(u"é—")).utf8, "é—");
}

TEST(DecodedTextTest, UnpairedSurrogateStopsUtf16) {
    const DecodedText decoded = decodeText(utf16le(u"ab\xD800z"));
    EXPECT_EQ(decoded.utf8, "ab");
    EXPECT_EQ(decoded.problem, "invalid UTF-16 (unpaired surrogate)");
}

TEST(DecodedTextTest, OddByteCountStopsUtf16) {
    const DecodedText decoded = decodeText(utf16le(u"ab") + "x");
    EXPECT_EQ(decoded.utf8, "ab");
    EXPECT_EQ(decoded.problem, "invalid UTF-16 (odd number of bytes)");
}

TEST(DecodedTextTest, InvalidUtf8StopsAtTheBadByte) {
    const DecodedText decoded = decodeText("ok\xC3(");
    EXPECT_EQ(decoded.utf8, "ok");
    EXPECT_EQ(decoded.problem, "invalid UTF-8");
}

TEST(DecodedTextTest, RejectsOverlongSurrogateAndTooLargeForms) {
    EXPECT_EQ(validUtf8Length("\xC0\xAF"), 0U);
    EXPECT_EQ(validUtf8Length("\xE0\x80\xAF"), 0U);
    EXPECT_EQ(validUtf8Length("\xED\xA0\x80"), 0U);
    EXPECT_EQ(validUtf8Length("\xF4\x90\x80\x80"), 0U);
    EXPECT_EQ(validUtf8Length("\xF0\x9F\x96\xB1"), 4U);
    EXPECT_EQ(validUtf8Length("a\xF0\x9F\x96"), 1U);
}

TEST(DecodedTextTest, AppendUtf8ReplacesWhatIsNotACharacter) {
    std::string output;
    appendUtf8(output, U'é');
    appendUtf8(output, 0xD800);
    appendUtf8(output, 0x110000);
    appendUtf8(output, 0x1F5B1);
    EXPECT_EQ(output, "é\uFFFD\uFFFD🖱");
}

}  // namespace
}  // namespace tactora
