#include "core/localization/BundleLocalization.h"

#include <gtest/gtest.h>

#include "localization/TemporaryDirectory.h"

namespace tactora {
namespace {

using Names = std::vector<std::string>;

class BundleLocalizationTest : public testing::Test {
  protected:
    BundleLocalizationTest() {
        resources_.write("en.lproj/Localizable.strings", "\"hero\" = \"Hello\";");
        resources_.write("pt-BR.lproj/Localizable.strings", "\"hero\" = \"Olá\";");
        resources_.write("Base.lproj/Main.strings", "");
        resources_.write("notes.lproj", "a file, not a folder");
        resources_.write("Tactora.icns", "");
    }

    TemporaryDirectory resources_;
};

TEST_F(BundleLocalizationTest, ListsTheLocalisationFolders) {
    EXPECT_EQ(availableLocalizations(resources_.path()), (Names{"en", "pt-BR"}));
}

TEST_F(BundleLocalizationTest, MissingResourcesOfferNothing) {
    EXPECT_EQ(availableLocalizations(resources_.path() / "absent"), Names{});
}

TEST_F(BundleLocalizationTest, LoadsThePreferredLanguagesTable) {
    const BundleLocalization loaded = loadBundleStringTable(resources_.path(), Names{"pt-PT"});
    EXPECT_EQ(loaded.localization, "pt-BR");
    ASSERT_NE(loaded.table, nullptr);
    EXPECT_EQ(loaded.table->lookup("hero"), "Olá");
}

TEST_F(BundleLocalizationTest, FallsBackToEnglish) {
    const BundleLocalization loaded = loadBundleStringTable(resources_.path(), Names{"ja"});
    EXPECT_EQ(loaded.localization, "en");
    ASSERT_NE(loaded.table, nullptr);
    EXPECT_EQ(loaded.table->lookup("hero"), "Hello");
}

TEST_F(BundleLocalizationTest, FolderWithoutTableGivesTheNameButNoTable) {
    std::filesystem::create_directory(resources_.path() / "de.lproj");
    const BundleLocalization loaded = loadBundleStringTable(resources_.path(), Names{"de"});
    EXPECT_EQ(loaded.localization, "de");
    EXPECT_EQ(loaded.table, nullptr);
}

TEST_F(BundleLocalizationTest, NoLocalisationsGiveNoNameAndNoTable) {
    const BundleLocalization loaded =
        loadBundleStringTable(resources_.path() / "absent", Names{"en"});
    EXPECT_EQ(loaded.localization, std::nullopt);
    EXPECT_EQ(loaded.table, nullptr);
}

}  // namespace
}  // namespace tactora
