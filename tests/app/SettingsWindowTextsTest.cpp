#include "core/app/SettingsWindowTexts.h"

#include <gtest/gtest.h>

#include <string>

#include "core/app/Globals.h"
#include "core/localization/Localizer.h"
#include "support/ShippedResources.h"

namespace tactora {
namespace {

// The window's texts with the shipped table of `language` installed, as at start-up.
class SettingsWindowTextsTest : public ::testing::Test {
  protected:
    SettingsWindowTextsTest() = default;
    ~SettingsWindowTextsTest() override {
        setStringTable(nullptr);
        initializeGlobals();
    }

    SettingsWindowTextsTest(const SettingsWindowTextsTest&) = delete;
    SettingsWindowTextsTest& operator=(const SettingsWindowTextsTest&) = delete;
    SettingsWindowTextsTest(SettingsWindowTextsTest&&) = delete;
    SettingsWindowTextsTest& operator=(SettingsWindowTextsTest&&) = delete;

    static SettingsWindowTexts textsIn(const std::string& language) {
        EXPECT_EQ(testing::useShippedStringTable(language), language);
        initializeGlobals();
        return settingsWindowTexts();
    }
};

TEST_F(SettingsWindowTextsTest, English) {
    const SettingsWindowTexts texts = textsIn("en");

    EXPECT_EQ(texts.title, "Tactora 0.2.1 · Magic Mouse");
    EXPECT_EQ(texts.hero, "Gestures for your Magic Mouse");
    EXPECT_EQ(texts.intro,
              "Tap with one to four fingers, or click while fingers rest on the mouse, to run the "
              "action you choose. Each profile keeps its own set.");
    EXPECT_EQ(texts.allowAccessibility, "Allow Accessibility…");
    EXPECT_EQ(texts.allowInputMonitoring, "Allow Input Monitoring…");
    EXPECT_EQ(texts.reconnect, "Reconnect");
    EXPECT_EQ(texts.profileLabel, "Profile:");
    EXPECT_EQ(texts.newProfile, "New Profile");
    EXPECT_EQ(texts.renameProfile, "Rename Profile");
    EXPECT_EQ(texts.duplicateProfile, "Duplicate Profile");
    EXPECT_EQ(texts.enableSwitch, "Enable gestures");
    EXPECT_EQ(texts.recordButton, "Record Shortcut…");
    EXPECT_EQ(texts.recordHint,
              "To use a keyboard shortcut, choose Custom shortcut for a gesture, click Record "
              "Shortcut…, and press the keys.");
    EXPECT_EQ(texts.testDesktop, "Test Show Desktop");
    EXPECT_EQ(texts.moreGestures, "More Gestures…");
    EXPECT_EQ(texts.footer,
              "Gestures don’t act while Tactora is the frontmost app. Profiles are saved "
              "automatically.");

    ASSERT_EQ(texts.gestureRows.size(), 8U);
    EXPECT_EQ(texts.gestureRows[0], (GestureRow{"Clicks with resting fingers", "1 finger", 0}));
    EXPECT_EQ(texts.gestureRows[2], (GestureRow{std::nullopt, "3 fingers", 2}));
    EXPECT_EQ(texts.gestureRows[4], (GestureRow{"Taps", "1 finger", 4}));
    EXPECT_EQ(texts.gestureRows[7], (GestureRow{std::nullopt, "4 fingers", 7}));

    ASSERT_EQ(texts.actionNames.size(), 15U);
    EXPECT_EQ(texts.actionNames.front(), "System default");
    EXPECT_EQ(texts.actionNames[9], "Redo");
    EXPECT_EQ(texts.actionNames.back(), "Custom shortcut");
}

TEST_F(SettingsWindowTextsTest, BrazilianPortuguese) {
    const SettingsWindowTexts texts = textsIn("pt-BR");

    EXPECT_EQ(texts.title, "Tactora 0.2.1 · Magic Mouse");
    EXPECT_EQ(texts.hero, "Gestos para o seu Magic Mouse");
    EXPECT_EQ(texts.intro,
              "Toque com um a quatro dedos, ou clique com os dedos apoiados no mouse, para "
              "executar a ação que você escolher. Cada perfil guarda a sua própria configuração.");
    EXPECT_EQ(texts.allowAccessibility, "Permitir Acessibilidade…");
    EXPECT_EQ(texts.allowInputMonitoring, "Permitir Monitoramento de Entrada…");
    EXPECT_EQ(texts.reconnect, "Reconectar");
    EXPECT_EQ(texts.profileLabel, "Perfil:");
    EXPECT_EQ(texts.newProfile, "Novo Perfil");
    EXPECT_EQ(texts.renameProfile, "Renomear Perfil");
    EXPECT_EQ(texts.duplicateProfile, "Duplicar Perfil");
    EXPECT_EQ(texts.enableSwitch, "Ativar gestos");
    EXPECT_EQ(texts.recordButton, "Gravar Atalho…");
    EXPECT_EQ(texts.recordHint,
              "Para usar um atalho de teclado, escolha Atalho personalizado em um gesto, clique "
              "em Gravar Atalho… e pressione as teclas.");
    EXPECT_EQ(texts.testDesktop, "Testar Mostrar Mesa");
    EXPECT_EQ(texts.moreGestures, "Mais Gestos…");
    EXPECT_EQ(texts.footer,
              "Os gestos não atuam enquanto o Tactora está em primeiro plano. Os perfis são "
              "salvos automaticamente.");

    ASSERT_EQ(texts.gestureRows.size(), 8U);
    EXPECT_EQ(texts.gestureRows[0], (GestureRow{"Cliques com dedos apoiados", "1 dedo", 0}));
    EXPECT_EQ(texts.gestureRows[1], (GestureRow{std::nullopt, "2 dedos", 1}));
    EXPECT_EQ(texts.gestureRows[4], (GestureRow{"Toques", "1 dedo", 4}));
    EXPECT_EQ(texts.gestureRows[7], (GestureRow{std::nullopt, "4 dedos", 7}));

    ASSERT_EQ(texts.actionNames.size(), 15U);
    EXPECT_EQ(texts.actionNames.front(), "Padrão do sistema");
    EXPECT_EQ(texts.actionNames[13], "Mostrar Mesa");
    EXPECT_EQ(texts.actionNames.back(), "Atalho personalizado");
}

TEST_F(SettingsWindowTextsTest, TheControlsThatKeepGesturesGoingInBothLanguages) {
    const SettingsWindowTexts english = textsIn("en");
    EXPECT_EQ(english.keepGesturesOn, "Keep gestures on");
    EXPECT_EQ(english.openAtLogin, "Open at login");
    EXPECT_EQ(english.resetPermissions, "Reset Permissions…");
    EXPECT_EQ(english.openLoginItems, "Open Login Items Settings…");
    const SettingsWindowTexts portuguese = textsIn("pt-BR");
    EXPECT_EQ(portuguese.keepGesturesOn, "Manter gestos ativos");
    EXPECT_EQ(portuguese.openAtLogin, "Abrir ao iniciar sessão");
    EXPECT_EQ(portuguese.resetPermissions, "Redefinir Permissões…");
    EXPECT_EQ(portuguese.openLoginItems, "Abrir Itens de Início…");
}

TEST_F(SettingsWindowTextsTest, TitleIsNotTranslated) {
    EXPECT_EQ(textsIn("pt-BR").title, textsIn("en").title);
}

TEST_F(SettingsWindowTextsTest, TitleNamesTheProjectVersion) {
    EXPECT_EQ(textsIn("en").title, "Tactora " TACTORA_PROJECT_VERSION " · Magic Mouse");
}

TEST_F(SettingsWindowTextsTest, WithoutATableEveryTextIsItsKey) {
    setStringTable(nullptr);
    initializeGlobals();
    const SettingsWindowTexts texts = settingsWindowTexts();

    EXPECT_EQ(texts.hero, "hero");
    EXPECT_EQ(texts.allowAccessibility, "permission.access");
    EXPECT_EQ(texts.allowInputMonitoring, "permission.monitor");
    EXPECT_EQ(texts.profileLabel, "profile.label");
    EXPECT_EQ(texts.enableSwitch, "enable");
    EXPECT_EQ(texts.recordButton, "record.button");
    EXPECT_EQ(texts.testDesktop, "test.desktop");
    EXPECT_EQ(texts.moreGestures, "more.button");
    EXPECT_EQ(texts.footer, "footer");
    EXPECT_EQ(texts.actionNames.front(), "action.default");
}

TEST_F(SettingsWindowTextsTest, ProfileActionsInEnglish) {
    const SettingsWindowTexts texts = textsIn("en");
    EXPECT_EQ(texts.profileActions, "Profile Actions");
    EXPECT_EQ(texts.profileApplications, "Applications…");
    EXPECT_EQ(texts.deleteProfile, "Delete Profile…");
    EXPECT_EQ(texts.importProfiles, "Import Profiles…");
    EXPECT_EQ(texts.exportProfiles, "Export Profiles…");
}

TEST_F(SettingsWindowTextsTest, ProfileActionsInBrazilianPortuguese) {
    const SettingsWindowTexts texts = textsIn("pt-BR");
    EXPECT_EQ(texts.profileActions, "Ações do Perfil");
    EXPECT_EQ(texts.profileApplications, "Aplicativos…");
    EXPECT_EQ(texts.deleteProfile, "Apagar Perfil…");
    EXPECT_EQ(texts.importProfiles, "Importar Perfis…");
    EXPECT_EQ(texts.exportProfiles, "Exportar Perfis…");
}

}  // namespace
}  // namespace tactora
