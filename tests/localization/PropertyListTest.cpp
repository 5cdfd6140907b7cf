#include "core/localization/PropertyList.h"

#include <gtest/gtest.h>

#include <string>

namespace tactora {
namespace {

constexpr std::string_view header =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n";

PropertyListDocument parse(std::string_view body) {
    return parsePropertyListXml(std::string(header) + "<plist version=\"1.0\">" +
                                std::string(body) + "</plist>\n");
}

TEST(PropertyListTest, ReadsDictionariesArraysAndStrings) {
    const PropertyListDocument document = parse(
        "<dict>\n  <!-- a comment -->\n  <key>a</key><string>x</string>\n"
        "  <key>b</key><array><string>1</string><string/><integer>3</integer></array>\n"
        "  <key>c</key><dict/>\n</dict>");
    ASSERT_EQ(document.error, std::nullopt);
    ASSERT_TRUE(document.root);
    const PropertyList& root = *document.root;
    EXPECT_EQ(root.kind, PropertyList::Kind::dictionary);
    EXPECT_EQ(root.string("a"), "x");
    const PropertyList* array = root.find("b");
    ASSERT_NE(array, nullptr);
    ASSERT_EQ(array->items.size(), 3U);
    EXPECT_EQ(array->items[1].kind, PropertyList::Kind::string);
    EXPECT_EQ(array->items[1].text, "");
    EXPECT_EQ(array->items[2].kind, PropertyList::Kind::other);
    EXPECT_EQ(array->items[2].text, "integer");
    EXPECT_EQ(root.find("c")->kind, PropertyList::Kind::dictionary);
    EXPECT_EQ(root.find("d"), nullptr);
    EXPECT_EQ(root.string("b"), std::nullopt);
}

TEST(PropertyListTest, StringsKeepTheirSpacesAndDecodeEntities) {
    const PropertyListDocument document = parse(
        "<dict><key>k&amp;</key><string> a &lt;b&gt; &quot;c&quot; &apos;d&apos; &#233;&#x1F44D; "
        "<![CDATA[<raw> & ]]></string></dict>");
    ASSERT_TRUE(document.root);
    EXPECT_EQ(document.root->string("k&"), " a <b> \"c\" 'd' é\U0001F44D <raw> & ");
}

TEST(PropertyListTest, MalformedDocumentsReportTheirLine) {
    const PropertyListDocument unclosed = parse("<dict>\n<key>a</key>\n<string>x</dict>");
    EXPECT_EQ(unclosed.root, std::nullopt);
    ASSERT_TRUE(unclosed.error);
    EXPECT_EQ(unclosed.error->line, 5U);
    EXPECT_EQ(unclosed.error->message, "expected </string>");

    EXPECT_TRUE(parse("<dict><string>x</string></dict>").error);
    EXPECT_TRUE(parse("<dict><key>a</key><string>&bogus;</string></dict>").error);
    EXPECT_TRUE(parse("<dict><key>a</key><string>&#xD800;</string></dict>").error);
    EXPECT_TRUE(parsePropertyListXml("<html></html>").error);
    EXPECT_TRUE(parsePropertyListXml("").error);
    EXPECT_TRUE(parse("<dict></dict>trailing").error);
}

TEST(PropertyListTest, DeepNestingIsAnErrorNotACrash) {
    std::string deep;
    for (int level = 0; level < 10'000; ++level) {
        deep += "<array>";
    }
    const PropertyListDocument document = parse(deep);
    EXPECT_EQ(document.root, std::nullopt);
    ASSERT_TRUE(document.error);
    EXPECT_EQ(document.error->message, "values nested too deeply");
}

TEST(PropertyListTest, EmptyPlistHasNoRootAndNoError) {
    const PropertyListDocument document = parsePropertyListXml("<plist/>");
    EXPECT_EQ(document.error, std::nullopt);
    EXPECT_EQ(document.root, std::nullopt);
}

}  // namespace
}  // namespace tactora
