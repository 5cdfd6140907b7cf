#include "core/localization/StringsDictFile.h"

#include <gtest/gtest.h>

#include <string>

#include "core/localization/LocalizationAudit.h"

namespace tactora {
namespace {

std::string document(std::string_view entries) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n" +
           std::string(entries) + "</dict>\n</plist>\n";
}

std::string entry(std::string_view key, std::string_view format, std::string_view variable) {
    return "<key>" + std::string(key) +
           "</key><dict><key>NSStringLocalizedFormatKey</key><string>" + std::string(format) +
           "</string>" + std::string(variable) + "</dict>\n";
}

std::string plural(std::string_view name, std::string_view valueType, std::string_view forms) {
    return "<key>" + std::string(name) +
           "</key><dict><key>NSStringFormatSpecTypeKey</key><string>NSStringPluralRuleType</string>"
           "<key>NSStringFormatValueTypeKey</key><string>" +
           std::string(valueType) + "</string>" + std::string(forms) + "</dict>";
}

constexpr std::string_view oneAndOther =
    "<key>one</key><string>%lld dedo</string><key>other</key><string>%lld dedos</string>";

TEST(StringsDictFileTest, ReadsPluralEntries) {
    const StringsDictFile file = parseStringsDictFile(
        document(entry("finger.many", "%#@n@", plural("n", "lld", oneAndOther))));
    EXPECT_EQ(file.error, std::nullopt);
    EXPECT_TRUE(file.problems.empty());
    ASSERT_TRUE(file.entries.contains("finger.many"));
    const PluralFormat& format = file.entries.at("finger.many");
    EXPECT_EQ(format.format, "%#@n@");
    ASSERT_TRUE(format.variables.contains("n"));
    EXPECT_EQ(format.variables.at("n").valueType, "lld");
    EXPECT_EQ(format.variables.at("n").forms,
              (std::map<PluralCategory, std::string>{{PluralCategory::one, "%lld dedo"},
                                                     {PluralCategory::other, "%lld dedos"}}));
}

TEST(StringsDictFileTest, LeavesOutWhatItDoesNotUnderstand) {
    const std::string width =
        "<key>w</key><dict><key>NSStringFormatSpecTypeKey</key>"
        "<string>NSStringVariableWidthRuleType</string></dict>";
    const StringsDictFile file = parseStringsDictFile(document(
        entry("a", "%#@w@", width) + "<key>b</key><string>x</string>" + "<key>c</key><dict/>" +
        entry("d", "%#@n@",
              plural("n", "lld",
                     std::string(oneAndOther) + "<key>several</key><string>x</string>"))));
    EXPECT_FALSE(file.entries.contains("a"));
    EXPECT_FALSE(file.entries.contains("b"));
    EXPECT_FALSE(file.entries.contains("c"));
    EXPECT_TRUE(file.entries.contains("d"));
    EXPECT_EQ(file.problems,
              (std::vector<std::string>{
                  "\"a\" variable \"w\" is not a plural rule (NSStringPluralRuleType)",
                  "\"b\" is not a dictionary", "\"c\" has no NSStringLocalizedFormatKey string",
                  "\"d\" variable \"n\" has the unknown entry \"several\""}));
}

TEST(StringsDictFileTest, UnreadableDocumentHasOnlyItsError) {
    const StringsDictFile file = parseStringsDictFile("<plist><dict><key>x</key>");
    EXPECT_TRUE(file.entries.empty());
    ASSERT_TRUE(file.error);
}

TEST(StringsDictFileTest, AuditAcceptsAGoodTable) {
    const StringsDictFile file = parseStringsDictFile(
        document(entry("gesture.tap", "%#@n@", plural("n", "lld", oneAndOther)) +
                 entry("live", "%#@n@ · %@ · %@",
                       plural("n", "lld",
                              "<key>one</key><string>one finger</string>"
                              "<key>other</key><string>%lld fingers</string>"))));
    EXPECT_EQ(auditStringsDictFile(file), std::vector<std::string>{});
}

TEST(StringsDictFileTest, AuditReportsEveryProblem) {
    const StringsDictFile file = parseStringsDictFile(document(
        entry("no.such.key", "%#@n@", plural("n", "lld", oneAndOther)) +
        entry("ok", "%#@n@", plural("n", "lld", oneAndOther)) +
        entry("gesture.tap", "%#@m@", plural("n", "hd", "<key>one</key><string>%@ dedo</string>")) +
        entry("live", "%@ %#@n@ %@", plural("n", "lld", oneAndOther))));
    EXPECT_EQ(auditStringsDictFile(file),
              (std::vector<std::string>{
                  "\"gesture.tap\" uses the undefined variable \"m\"",
                  "\"gesture.tap\" variable \"n\" has the value type \"hd\"; a signed integer "
                  "(lld) is needed",
                  "\"gesture.tap\" variable \"n\" has no \"other\" form",
                  "\"gesture.tap\" variable \"n\" form \"one\" \"%@\" does not fit argument 1, a "
                  "signed integer (%lld)",
                  "\"live\" \"%@\" does not fit argument 1, a signed integer (%lld)",
                  "unknown key \"no.such.key\"",
                  "\"ok\" takes no arguments, so its plural entry is never used"}));
}

}  // namespace
}  // namespace tactora
