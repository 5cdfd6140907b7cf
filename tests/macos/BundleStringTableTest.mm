// The bundle's string tables as Foundation reads them.
#include <gtest/gtest.h>

#include <string>

#include "core/localization/LocalizationKeys.h"
#include "macos/AppBundle.h"
#include "macos/BundleStringTable.h"

namespace tactora::testing {
namespace {

TEST(BundleStringTableTest, EveryKeyHasATextInTheLanguageTheBundlePicks) {
    const macos::BundleStringTable table(appBundle());
    for (const LocalizationKey& key : localizationKeys) {
        const std::optional<std::string> text = table.lookup(key.key());
        ASSERT_TRUE(text.has_value()) << key.key();
        EXPECT_FALSE(text->empty()) << key.key();
    }
}

TEST(BundleStringTableTest, AKeyWithoutAnEntryIsNotFound) {
    const macos::BundleStringTable table(appBundle());
    EXPECT_FALSE(table.lookup("no.such.key").has_value());
}

TEST(BundleStringTableTest, FoundationReadsEveryShippedTableWithEveryKey) {
    const std::vector<std::string> languages = shippedLanguages();
    ASSERT_FALSE(languages.empty());
    for (const std::string& language : languages) {
        SCOPED_TRACE(language);
        NSDictionary* table = [NSDictionary dictionaryWithContentsOfFile:stringTablePath(language)];
        ASSERT_NE(table, nil);
        for (const LocalizationKey& key : localizationKeys) {
            NSString* name = [[NSString alloc] initWithBytes:key.key().data()
                                                      length:key.key().size()
                                                    encoding:NSUTF8StringEncoding];
            EXPECT_TRUE([table[name] isKindOfClass:NSString.class]) << key.key();
        }
    }
}

TEST(BundleStringTableTest, TheBundleListsEveryShippedLanguage) {
    NSArray<NSString*>* listed = appBundle().localizations;
    for (const std::string& language : shippedLanguages()) {
        EXPECT_TRUE([listed containsObject:@(language.c_str())]) << language;
    }
}

}  // namespace
}  // namespace tactora::testing
