#include "core/localization/StringsFile.h"

#include <gtest/gtest.h>

#include <string>

#include "localization/TemporaryDirectory.h"

namespace tactora {
namespace {

using Entries = std::map<std::string, std::string, std::less<>>;

TEST(StringsFileTest, ReadsQuotedEntries) {
    const StringsFile file =
        parseStringsFile("\"ok\" = \"Granted\";\n\"pending\" = \"Not granted\";\n");
    EXPECT_EQ(file.entries, (Entries{{"ok", "Granted"}, {"pending", "Not granted"}}));
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, EmptyInputHasNoEntriesAndNoError) {
    const StringsFile file = parseStringsFile("");
    EXPECT_TRUE(file.entries.empty());
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, SkipsBlockAndLineComments) {
    const StringsFile file = parseStringsFile(
        "/* The menu.\n   Two lines. */\n"
        "\"a\" /* between */ = // to the end of the line\n"
        "  \"x\" ; // after\n"
        "/**/\"b\"=\"y\";/* last */");
    EXPECT_EQ(file.entries, (Entries{{"a", "x"}, {"b", "y"}}));
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, CommentMarkersInsideStringsAreText) {
    const StringsFile file = parseStringsFile(R"("url" = "http://a/*b*/";)");
    EXPECT_EQ(file.entries.at("url"), "http://a/*b*/");
}

TEST(StringsFileTest, WhitespaceMayStandAnywhereBetweenTokens) {
    const StringsFile file = parseStringsFile("\t\r\n \"k\"\n\t=\r\n\"v\"\f\v;\n\n");
    EXPECT_EQ(file.entries, (Entries{{"k", "v"}}));
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, DecodesTheSimpleEscapes) {
    const StringsFile file = parseStringsFile(R"("k" = "q\" b\\ n\n t\t r\r s\' x\z";)");
    EXPECT_EQ(file.entries.at("k"), "q\" b\\ n\n t\t r\r s' xz");
}

TEST(StringsFileTest, DecodesUnicodeEscapesToUtf8) {
    const StringsFile file = parseStringsFile(R"("k" = "\U00B7 \U2014 \U00e9";)");
    EXPECT_EQ(file.entries.at("k"), "· — é");
}

TEST(StringsFileTest, CombinesEscapedSurrogatePairs) {
    const StringsFile file = parseStringsFile(R"("k" = "\UD83D\UDDB1!";)");
    EXPECT_EQ(file.entries.at("k"), "🖱!");
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, UnpairedEscapedSurrogateBecomesReplacementCharacter) {
    const StringsFile file = parseStringsFile(R"("k" = "\UD83Dx \UDDB1 \UD83D\U0041";)");
    EXPECT_EQ(file.entries.at("k"), "\uFFFDx \uFFFD \uFFFDA");
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, ShortUnicodeEscapeIsAnError) {
    const StringsFile file =
        parseStringsFile("\"a\" = \"1\";\n\"k\" = \"\\U12G4\";\n\"b\" = \"2\";");
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error,
              (StringsFile::Error{2, "\\U must be followed by four hexadecimal digits"}));
}

TEST(StringsFileTest, ReadsUnquotedKeysAndValues) {
    const StringsFile file = parseStringsFile("menu.open = Open_Settings-1:/$+;\nkey = \"v\";");
    EXPECT_EQ(file.entries, (Entries{{"key", "v"}, {"menu.open", "Open_Settings-1:/$+"}}));
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, EntryWithoutValueMapsTheKeyToItself) {
    const StringsFile file = parseStringsFile("\"Cancel\";");
    EXPECT_EQ(file.entries, (Entries{{"Cancel", "Cancel"}}));
}

TEST(StringsFileTest, LaterDuplicateOverridesAndIsReported) {
    const StringsFile file = parseStringsFile("\"k\" = \"one\";\n\"k\" = \"two\";");
    EXPECT_EQ(file.entries.at("k"), "two");
    EXPECT_EQ(file.duplicateKeys, std::vector<std::string>{"k"});
}

TEST(StringsFileTest, StringsMaySpanLines) {
    const StringsFile file = parseStringsFile("\"k\" = \"one\ntwo\";\n\"x\" = y z;");
    EXPECT_EQ(file.entries.at("k"), "one\ntwo");
    EXPECT_EQ(file.error, (StringsFile::Error{3, "expected ';' after the value"}));
}

TEST(StringsFileTest, KeepsEntriesBeforeAMissingSemicolon) {
    const StringsFile file = parseStringsFile("\"a\" = \"1\";\n\"b\" = \"2\"\n\"c\" = \"3\";");
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error, (StringsFile::Error{3, "expected ';' after the value"}));
}

TEST(StringsFileTest, ReportsAMissingEqualsSign) {
    const StringsFile file = parseStringsFile("\"a\" \"1\";");
    EXPECT_TRUE(file.entries.empty());
    EXPECT_EQ(file.error, (StringsFile::Error{1, "expected '=' after the key"}));
}

TEST(StringsFileTest, ReportsAMissingValue) {
    const StringsFile file = parseStringsFile("\"a\" = ;");
    EXPECT_EQ(file.error, (StringsFile::Error{1, "expected a value"}));
}

TEST(StringsFileTest, ReportsAStrayCharacterWhereAKeyShouldBe) {
    const StringsFile file = parseStringsFile("\"a\" = \"1\";\n\n  { \"b\" = \"2\"; }");
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error, (StringsFile::Error{3, "expected a key"}));
}

TEST(StringsFileTest, ReportsAnUnterminatedStringAtItsOpeningLine) {
    const StringsFile file = parseStringsFile("\"a\" = \"1\";\n\"b\" = \"2;\n\n");
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error, (StringsFile::Error{2, "unterminated string"}));
}

TEST(StringsFileTest, ReportsABackslashAtTheVeryEnd) {
    const StringsFile file = parseStringsFile("\"a\" = \"1\\");
    EXPECT_EQ(file.error, (StringsFile::Error{1, "unterminated string"}));
}

TEST(StringsFileTest, ReportsAnUnterminatedComment) {
    const StringsFile file = parseStringsFile("\"a\" = \"1\";\n/* never closed\n\"b\" = \"2\";");
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error, (StringsFile::Error{2, "unterminated comment"}));
}

TEST(StringsFileTest, ReportsTheEndOfInputInsideAnEntry) {
    const StringsFile file = parseStringsFile("\"a\" =");
    EXPECT_EQ(file.error, (StringsFile::Error{1, "expected a value"}));
}

TEST(StringsFileTest, ReadsUtf8WithAByteOrderMark) {
    const StringsFile file = parseStringsFile("\xEF\xBB\xBF\"k\" = \"Ação\";");
    EXPECT_EQ(file.entries, (Entries{{"k", "Ação"}}));
    EXPECT_FALSE(file.error);
}

std::string utf16(std::u16string_view text, bool bigEndian) {
    std::string bytes = bigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char16_t unit : text) {
        const auto high = static_cast<char>(unit >> 8U);
        const auto low = static_cast<char>(unit & 0xFFU);
        bytes.push_back(bigEndian ? high : low);
        bytes.push_back(bigEndian ? low : high);
    }
    return bytes;
}

TEST(StringsFileTest, ReadsUtf16LittleEndianWithAByteOrderMark) {
    const StringsFile file =
        parseStringsFile(utf16(u"/* c */\n\"k\" = \"Mesa · 🖱\";\n", false));
    EXPECT_EQ(file.entries, (Entries{{"k", "Mesa · 🖱"}}));
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, ReadsUtf16BigEndianWithAByteOrderMark) {
    const StringsFile file = parseStringsFile(utf16(u"\"k\" = \"—\";", true));
    EXPECT_EQ(file.entries, (Entries{{"k", "—"}}));
    EXPECT_FALSE(file.error);
}

TEST(StringsFileTest, InvalidUtf8IsReportedAtItsLine) {
    const StringsFile file = parseStringsFile("\"a\" = \"1\";\n\"b\" = \"\xFF\";\n\"c\" = \"3\";");
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error, (StringsFile::Error{2, "invalid UTF-8"}));
}

TEST(StringsFileTest, InvalidUtf8BetweenEntriesIsReported) {
    const StringsFile file = parseStringsFile("\"a\" = \"1\";\n\n\xC3");
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error, (StringsFile::Error{3, "invalid UTF-8"}));
}

TEST(StringsFileTest, EarlierSyntaxErrorWinsOverLaterBadEncoding) {
    const StringsFile file = parseStringsFile("\"a\" = \"1\"\n\"b\" = \"\xFF\";");
    EXPECT_EQ(file.error, (StringsFile::Error{2, "expected ';' after the value"}));
}

TEST(StringsFileTest, UnpairedSurrogateInUtf16IsReportedAtItsLine) {
    const StringsFile file = parseStringsFile(utf16(u"\"a\" = \"1\";\n\"b\" = \"\xDC00\";", false));
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error, (StringsFile::Error{2, "invalid UTF-16 (unpaired surrogate)"}));
}

TEST(StringsFileTest, NulBytesOutsideStringsAreAnError) {
    const StringsFile file = parseStringsFile(std::string("\"a\" = \"1\";\0", 11));
    EXPECT_EQ(file.entries, (Entries{{"a", "1"}}));
    EXPECT_EQ(file.error, (StringsFile::Error{1, "expected a key"}));
}

TEST(StringsFileTest, ReadsAFileFromDisk) {
    const TemporaryDirectory directory;
    const auto path = directory.write("Localizable.strings", "\"k\" = \"v\";");
    const std::optional<StringsFile> file = readStringsFile(path);
    ASSERT_TRUE(file);
    EXPECT_EQ(file->entries, (Entries{{"k", "v"}}));
}

TEST(StringsFileTest, MissingFileReadsAsNothing) {
    const TemporaryDirectory directory;
    EXPECT_FALSE(readStringsFile(directory.path() / "absent.strings"));
}

TEST(StringsFileTest, DirectoryReadsAsNothing) {
    const TemporaryDirectory directory;
    EXPECT_FALSE(readStringsFile(directory.path()));
}

}  // namespace
}  // namespace tactora
