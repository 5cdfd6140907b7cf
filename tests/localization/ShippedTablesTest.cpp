#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "core/localization/BundleLocalization.h"
#include "core/localization/LocalizationAudit.h"
#include "core/localization/LocalizationKeys.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsDictFile.h"
#include "core/localization/StringsFile.h"
#include "core/localization/StringsTable.h"
#include "support/ShippedResources.h"

namespace tactora {
namespace {

using testing::shippedResourcesDirectory;

std::filesystem::path tablePath(const std::string& localization) {
    return shippedResourcesDirectory() / (localization + ".lproj") / "Localizable.strings";
}

TEST(ShippedTablesTest, EightLanguagesShip) {
    EXPECT_EQ(availableLocalizations(shippedResourcesDirectory()),
              (std::vector<std::string>{"de", "en", "es", "fr", "it", "ja", "pt-BR", "zh-Hans"}));
}

// The names macOS itself gives, in each language, to the places and features a text sends the
// user to, so that what the user reads is what they find.
struct SystemNames {
    std::string localization;
    std::string systemSettings;
    std::string accessibility;
    std::string inputMonitoring;
    std::string missionControl;
    std::string showDesktop;
};

TEST(ShippedTablesTest, TextsUseTheNamesMacOSUses) {
    const std::vector<SystemNames> languages = {
        {"de", "Systemeinstellungen", "Bedienungshilfen", "Eingabeüberwachung", "Mission Control",
         "Schreibtisch anzeigen"},
        {"es", "Ajustes del Sistema", "Accesibilidad", "Monitorización de entrada",
         "Mission Control", "Mostrar escritorio"},
        {"fr", "Réglages Système", "Accessibilité", "Surveillance de l’entrée", "Mission Control",
         "Afficher le bureau"},
        {"it", "Impostazioni di Sistema", "Accessibilità", "Monitoraggio input", "Mission Control",
         "Mostra scrivania"},
        {"ja", "システム設定", "アクセシビリティ", "入力監視", "Mission Control",
         "デスクトップを表示"},
        {"zh-Hans", "系统设置", "辅助功能", "输入监控", "调度中心", "显示桌面"},
    };
    for (const SystemNames& names : languages) {
        const auto table = StringsTable::load(tablePath(names.localization));
        ASSERT_NE(table, nullptr) << names.localization;
        const auto text = [&](std::string_view key) { return table->lookup(key).value_or(""); };
        EXPECT_EQ(text("action.mission"), names.missionControl) << names.localization;
        EXPECT_EQ(text("action.desktop"), names.showDesktop) << names.localization;
        EXPECT_NE(text("test.desktop").find(names.showDesktop), std::string::npos);
        for (const std::string& name :
             {names.systemSettings, names.accessibility, names.inputMonitoring}) {
            EXPECT_NE(text("error.enable").find(name), std::string::npos)
                << names.localization << ": " << name;
        }
        EXPECT_NE(text("permissions").find(names.accessibility), std::string::npos);
        EXPECT_NE(text("permissions").find(names.inputMonitoring), std::string::npos);
        EXPECT_NE(text("permission.access").find(names.accessibility), std::string::npos)
            << names.localization;
    }
}

// Buttons that other texts tell the user to click are named there exactly as they are labelled.
TEST(ShippedTablesTest, TextsNameTheButtonsAsTheyAreLabelled) {
    for (const std::string& localization : availableLocalizations(shippedResourcesDirectory())) {
        const auto table = StringsTable::load(tablePath(localization));
        ASSERT_NE(table, nullptr) << localization;
        const auto text = [&](std::string_view key) { return table->lookup(key).value_or(""); };
        EXPECT_NE(text("shortcut.missing").find(text("record.button")), std::string::npos)
            << localization;
        EXPECT_NE(text("record.hint").find(text("record.button")), std::string::npos)
            << localization;
        EXPECT_NE(text("record.hint").find(text("action.custom")), std::string::npos)
            << localization;
        EXPECT_NE(text("sensor.missing").find(text("reconnect")), std::string::npos)
            << localization;
    }
}

// The hint about a trackpad's own taps and clicks names the two settings as the conflict lines
// do; English writes them in running text, lower case.
TEST(ShippedTablesTest, TheTrackpadHintNamesTheSystemSettingsAsTheyAreCalled) {
    for (const std::string localization : {"de", "es", "fr", "it", "ja", "pt-BR", "zh-Hans"}) {
        const auto table = StringsTable::load(tablePath(localization));
        ASSERT_NE(table, nullptr) << localization;
        const auto text = [&](std::string_view key) { return table->lookup(key).value_or(""); };
        for (const std::string_view setting :
             {"devices.system.tap_to_click", "devices.system.secondary_click"}) {
            EXPECT_NE(text("devices.trackpad.hint").find(text(setting)), std::string::npos)
                << localization << " " << setting;
        }
    }
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

TEST(ShippedTablesTest, EveryPluralTableIsReadAndFitsItsKeys) {
    const std::filesystem::path resources = shippedResourcesDirectory();
    std::size_t tables = 0;
    for (const std::string& localization : availableLocalizations(resources)) {
        const std::optional<StringsDictFile> file =
            readStringsDictFile(resources / (localization + ".lproj") / "Localizable.stringsdict");
        if (!file) {
            continue;
        }
        ++tables;
        EXPECT_FALSE(file->entries.empty()) << localization;
        for (const std::string& problem : auditStringsDictFile(*file)) {
            ADD_FAILURE() << localization << ": " << problem;
        }
    }
    EXPECT_GE(tables, 2U);
}

// Through it the text handling on macOS learns each number's plural category: every form must
// be its own category's name.
TEST(ShippedTablesTest, ThePluralCategoryProbeNamesEveryCategory) {
    const std::optional<StringsDictFile> file =
        readStringsDictFile(shippedResourcesDirectory() / "PluralCategory.stringsdict");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->error, std::nullopt);
    ASSERT_TRUE(file->entries.contains("category"));
    const PluralFormat& probe = file->entries.at("category");
    EXPECT_EQ(probe.format, "%#@value@");
    const PluralFormat::Variable& value = probe.variables.at("value");
    EXPECT_EQ(value.valueType, "lld");
    ASSERT_EQ(value.forms.size(), 6U);
    for (const auto& [category, form] : value.forms) {
        EXPECT_EQ(form, pluralCategoryName(category));
    }
}

TEST(ShippedTablesTest, NoTextHedgesItsPluralWithParentheses) {
    const std::filesystem::path resources = shippedResourcesDirectory();
    for (const std::string& localization : availableLocalizations(resources)) {
        const std::optional<StringsFile> file = readStringsFile(tablePath(localization));
        ASSERT_TRUE(file) << localization;
        for (const auto& [key, text] : file->entries) {
            EXPECT_EQ(text.find("(s)"), std::string::npos) << localization << " " << key;
            EXPECT_EQ(text.find("(es)"), std::string::npos) << localization << " " << key;
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
    EXPECT_EQ(L("devices.entry", L("devices.kind.magic_trackpad"), L("devices.state.blocked", 5)),
              "Magic Trackpad (couldn’t be started (error 5))");
    EXPECT_EQ(L("devices.conflict", L("gesture.tap", 3), L("devices.system.look_up")),
              "The 3-finger tap competes with the system’s “Look up & data detectors”.");
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

TEST_F(ShippedTablesLocalizerTest, GermanLinesReadAsIntended) {
    use("de");
    EXPECT_EQ(L("permissions", L("ok"), L("pending")),
              "Bedienungshilfen: Erlaubt · Eingabeüberwachung: Nicht erlaubt");
    EXPECT_EQ(L("sensor.blocked", 42),
              "Magic Mouse gefunden, sie konnte aber nicht gestartet werden (Fehler 42).");
    EXPECT_EQ(L("finger.many", 3), "3 Finger");
    EXPECT_EQ(L("error.action", L("action.desktop"), 7),
              "„Schreibtisch anzeigen“ konnte nicht ausgeführt werden (Fehler 7).");
    EXPECT_EQ(
        L("devices.conflict", L("gesture.tap", 1), L("devices.system.tap_to_click")),
        "„Tippen mit 1 Finger“ konkurriert mit der Systemeinstellung „Klicken durch Tippen“.");
}

TEST_F(ShippedTablesLocalizerTest, SpanishLinesReadAsIntended) {
    use("es");
    EXPECT_EQ(L("permissions", L("ok"), L("pending")),
              "Accesibilidad: Permitido · Monitorización de entrada: No permitido");
    EXPECT_EQ(L("live", 2, L("gesture.tap", 2), L("action.copy")),
              "Dedos: 2 · Último gesto: Toque con 2 dedos · Última acción: Copiar");
    EXPECT_EQ(L("finger.many", 4), "4 dedos");
}

// French sets a no-break space before a colon and inside guillemets.
TEST_F(ShippedTablesLocalizerTest, FrenchLinesReadAsIntended) {
    use("fr");
    EXPECT_EQ(L("permissions", L("ok"), L("pending")),
              "Accessibilité\u00a0: Autorisé · Surveillance de l’entrée\u00a0: Non autorisé");
    EXPECT_EQ(L("error.action", L("action.mission"), 3),
              "Impossible d’exécuter «\u00a0Mission Control\u00a0» (erreur 3).");
    EXPECT_EQ(L("finger.many", 2), "2 doigts");
    EXPECT_EQ(L("devices.title"), "Surfaces tactiles\u00a0:");
    EXPECT_EQ(L("devices.conflict", L("gesture.click", 2), L("devices.system.secondary_click")),
              "Le geste «\u00a0Clic avec 2 doigts\u00a0» entre en concurrence avec le réglage "
              "«\u00a0Clic secondaire\u00a0» du système.");
}

TEST_F(ShippedTablesLocalizerTest, ItalianLinesReadAsIntended) {
    use("it");
    EXPECT_EQ(L("permissions", L("ok"), L("pending")),
              "Accessibilità: Consentito · Monitoraggio input: Non consentito");
    EXPECT_EQ(L("finger.many", 3), "3 dita");
    EXPECT_EQ(L("gesture.click", 4), "Clic con 4 dita");
}

TEST_F(ShippedTablesLocalizerTest, JapaneseLinesReadAsIntended) {
    use("ja");
    EXPECT_EQ(L("permissions", L("ok"), L("pending")),
              "アクセシビリティ：許可済み · 入力監視：未許可");
    EXPECT_EQ(L("gesture.tap", 1), "1本指でタップ");
    EXPECT_EQ(L("finger.many", 3), "3本指");
    EXPECT_EQ(L("sensor.blocked", 42),
              "Magic Mouseが見つかりましたが、開始できませんでした（エラー 42）。");
    EXPECT_EQ(L("devices.entry", L("devices.kind.built_in_trackpad"), L("devices.state.connected")),
              "内蔵トラックパッド（接続済み）");
    EXPECT_EQ(L("devices.conflict", L("gesture.tap", 3), L("devices.system.look_up")),
              "「3本指でタップ」は、システムの「調べる＆データ検出」と競合します。");
}

TEST_F(ShippedTablesLocalizerTest, SimplifiedChineseLinesReadAsIntended) {
    use("zh-Hans");
    EXPECT_EQ(L("permissions", L("ok"), L("pending")), "辅助功能：已允许 · 输入监控：未允许");
    EXPECT_EQ(L("gesture.click", 2), "2 指点按");
    EXPECT_EQ(L("finger.many", 4), "4 个手指");
    EXPECT_EQ(L("menu.quit"), "退出 Tactora");
    EXPECT_EQ(L("devices.entry", L("devices.kind.magic_mouse"), L("devices.state.missing")),
              "妙控鼠标（未连接）");
}

TEST_F(ShippedTablesLocalizerTest, EnglishCountsReadNaturallyFromOneToFourFingers) {
    use("en");
    EXPECT_EQ(L("gesture.tap", 1), "1-finger tap");
    EXPECT_EQ(L("gesture.click", 4), "4-finger click");
    EXPECT_EQ(L("finger.many", 1), "1 finger");
    EXPECT_EQ(L("finger.many", 2), "2 fingers");
}

TEST_F(ShippedTablesLocalizerTest, PortugueseCountsReadNaturallyFromOneToFourFingers) {
    use("pt-BR");
    EXPECT_EQ(L("gesture.tap", 1), "Toque com 1 dedo");
    EXPECT_EQ(L("gesture.click", 1), "Clique com 1 dedo");
    for (const int fingers : {2, 3, 4}) {
        const std::string count = std::to_string(fingers);
        EXPECT_EQ(L("gesture.tap", fingers), "Toque com " + count + " dedos");
        EXPECT_EQ(L("gesture.click", fingers), "Clique com " + count + " dedos");
        EXPECT_EQ(L("finger.many", fingers), count + " dedos");
    }
}

}  // namespace
}  // namespace tactora
