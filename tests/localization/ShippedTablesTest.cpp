#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "core/localization/BundleLocalization.h"
#include "core/localization/LocalizationAudit.h"
#include "core/localization/LocalizationKeys.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsFile.h"
#include "core/localization/StringsTable.h"
#include "support/ShippedResources.h"

namespace tactora {
namespace {

using testing::shippedResourcesDirectory;

std::filesystem::path tablePath(const std::string& localization) {
    return shippedResourcesDirectory() / (localization + ".lproj") / "Localizable.strings";
}

TEST(ShippedTablesTest, EnglishAndBrazilianPortugueseShip) {
    const std::vector<std::string> available = availableLocalizations(shippedResourcesDirectory());
    EXPECT_NE(std::ranges::find(available, "en"), available.end());
    EXPECT_NE(std::ranges::find(available, "pt-BR"), available.end());
}

TEST(ShippedTablesTest, EveryTableHasExactlyTheKeysWithMatchingConversions) {
    const std::vector<std::string> available = availableLocalizations(shippedResourcesDirectory());
    ASSERT_FALSE(available.empty());
    for (const std::string& localization : available) {
        const std::optional<StringsFile> file = readStringsFile(tablePath(localization));
        ASSERT_TRUE(file) << localization;
        EXPECT_EQ(file->entries.size(), localizationKeys.size()) << localization;
        for (const std::string& problem : auditStringsFile(*file)) {
            ADD_FAILURE() << localization << ": " << problem;
        }
    }
}

TEST(ShippedTablesTest, EveryTextIsNonEmpty) {
    for (const std::string& localization : availableLocalizations(shippedResourcesDirectory())) {
        const std::optional<StringsFile> file = readStringsFile(tablePath(localization));
        ASSERT_TRUE(file) << localization;
        for (const auto& [key, text] : file->entries) {
            EXPECT_FALSE(text.empty()) << localization << ": " << key;
        }
    }
}

TEST(ShippedTablesTest, ActionNamesAreTranslatedAndDistinct) {
    for (const std::string& localization : availableLocalizations(shippedResourcesDirectory())) {
        const auto table = StringsTable::load(tablePath(localization));
        ASSERT_NE(table, nullptr) << localization;
        std::vector<std::string> names;
        for (std::size_t index = 0; index < 15; ++index) {
            const std::string_view key = localizationKeys.at(index).key();
            names.push_back(table->lookup(key).value_or(std::string(key)));
            EXPECT_NE(names.back(), key) << localization;
        }
        std::ranges::sort(names);
        EXPECT_EQ(std::ranges::adjacent_find(names), names.end()) << localization;
    }
}

class ShippedTablesLocalizerTest : public ::testing::Test {
  protected:
    ShippedTablesLocalizerTest() = default;
    ~ShippedTablesLocalizerTest() override { setStringTable(nullptr); }

    ShippedTablesLocalizerTest(const ShippedTablesLocalizerTest&) = delete;
    ShippedTablesLocalizerTest& operator=(const ShippedTablesLocalizerTest&) = delete;
    ShippedTablesLocalizerTest(ShippedTablesLocalizerTest&&) = delete;
    ShippedTablesLocalizerTest& operator=(ShippedTablesLocalizerTest&&) = delete;

    static void use(const std::string& language) {
        ASSERT_EQ(testing::useShippedStringTable(language), language);
    }
};

TEST_F(ShippedTablesLocalizerTest, EnglishLinesReadAsIntended) {
    use("en");
    EXPECT_EQ(L("live", 0, "—", "—"), "Fingers: 0 · Last gesture: — · Last action: —");
    EXPECT_EQ(L("permissions", L("ok"), L("pending")),
              "Accessibility: Granted · Input Monitoring: Not granted");
    EXPECT_EQ(L("sensor.blocked", 42), "Magic Mouse found, but it couldn’t be started (error 42).");
    EXPECT_EQ(L("sensor.connected", 0), "Magic Mouse connected.");
    EXPECT_EQ(L("finger.many", 3), "3 fingers");
    EXPECT_EQ(L("menu.quit"), "Quit Tactora");
    EXPECT_EQ(L("menu.open"), "Open Settings…");
}

TEST_F(ShippedTablesLocalizerTest, PortugueseLinesReadAsIntended) {
    use("pt-BR");
    EXPECT_EQ(L("permissions", L("ok"), L("pending")),
              "Acessibilidade: Permitido · Monitoramento de Entrada: Não permitido");
    EXPECT_EQ(L("sensor.blocked", 42),
              "Magic Mouse encontrado, mas não foi possível iniciá-lo (erro 42).");
    EXPECT_EQ(L("finger.many", 3), "3 dedos");
    EXPECT_EQ(L("action.desktop"), "Mostrar Mesa");
}

}  // namespace
}  // namespace tactora
