#include "core/localization/LanguagePreference.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace tactora {
namespace {

using Names = std::vector<std::string>;

EnvironmentLookup environmentOf(std::map<std::string, std::string, std::less<>> variables) {
    return [variables = std::move(variables)](std::string_view name) -> std::optional<std::string> {
        const auto found = variables.find(name);
        if (found == variables.end()) {
            return std::nullopt;
        }
        return found->second;
    };
}

TEST(LanguagePreferenceTest, NormalisesLocaleNames) {
    EXPECT_EQ(localizationName("pt_BR.UTF-8"), "pt-BR");
    EXPECT_EQ(localizationName("en_US"), "en-US");
    EXPECT_EQ(localizationName("de"), "de");
    EXPECT_EQ(localizationName("PT_br"), "pt-BR");
    EXPECT_EQ(localizationName("sr_RS@latin"), "sr-RS");
    EXPECT_EQ(localizationName("ca_ES.UTF-8@valencia"), "ca-ES");
    EXPECT_EQ(localizationName("zh_hant_tw"), "zh-Hant-TW");
    EXPECT_EQ(localizationName("es_419"), "es-419");
    EXPECT_EQ(localizationName("pt-BR"), "pt-BR");
}

TEST(LanguagePreferenceTest, IgnoresNamesThatAreNoLanguage) {
    EXPECT_EQ(localizationName("C"), std::nullopt);
    EXPECT_EQ(localizationName("POSIX"), std::nullopt);
    EXPECT_EQ(localizationName("C.UTF-8"), std::nullopt);
    EXPECT_EQ(localizationName(""), std::nullopt);
    EXPECT_EQ(localizationName(".UTF-8"), std::nullopt);
    EXPECT_EQ(localizationName("x"), std::nullopt);
    EXPECT_EQ(localizationName("english"), std::nullopt);
    EXPECT_EQ(localizationName("12_BR"), std::nullopt);
}

TEST(LanguagePreferenceTest, DropsSubtagsThatAreNeitherScriptNorRegion) {
    EXPECT_EQ(localizationName("de_DE_phonebook"), "de-DE");
}

TEST(LanguagePreferenceTest, LanguageListComesFirst) {
    const auto environment = environmentOf(
        {{"LANGUAGE", "pt_BR:pt:en"}, {"LC_ALL", "de_DE.UTF-8"}, {"LANG", "fr_FR.UTF-8"}});
    EXPECT_EQ(preferredLanguages(environment), (Names{"pt-BR", "pt", "en", "de-DE"}));
}

TEST(LanguagePreferenceTest, LcAllWinsOverLcMessagesAndLang) {
    const auto environment = environmentOf(
        {{"LC_ALL", "de_DE.UTF-8"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "pt_BR.UTF-8"}});
    EXPECT_EQ(preferredLanguages(environment), (Names{"de-DE"}));
}

TEST(LanguagePreferenceTest, LcMessagesWinsOverLang) {
    const auto environment = environmentOf({{"LC_MESSAGES", "fr_FR"}, {"LANG", "pt_BR.UTF-8"}});
    EXPECT_EQ(preferredLanguages(environment), (Names{"fr-FR"}));
}

TEST(LanguagePreferenceTest, EmptyVariablesCountAsUnset) {
    const auto environment =
        environmentOf({{"LANGUAGE", ""}, {"LC_ALL", ""}, {"LANG", "pt_BR.UTF-8"}});
    EXPECT_EQ(preferredLanguages(environment), (Names{"pt-BR"}));
}

TEST(LanguagePreferenceTest, CLocaleGivesNoPreference) {
    EXPECT_EQ(preferredLanguages(environmentOf({{"LANG", "C.UTF-8"}})), Names{});
    EXPECT_EQ(preferredLanguages(environmentOf({})), Names{});
}

TEST(LanguagePreferenceTest, RepeatsAndBadEntriesAreDropped) {
    const auto environment =
        environmentOf({{"LANGUAGE", "pt_BR::C:pt_BR.UTF-8:en"}, {"LANG", "en.UTF-8"}});
    EXPECT_EQ(preferredLanguages(environment), (Names{"pt-BR", "en"}));
}

const Names shipped = {"en", "pt-BR"};

TEST(LanguagePreferenceTest, ExactMatchIgnoresCase) {
    EXPECT_EQ(chooseLocalization(shipped, Names{"PT-br"}), "pt-BR");
}

TEST(LanguagePreferenceTest, UnderscoreMatchesHyphen) {
    EXPECT_EQ(chooseLocalization(Names{"en", "pt_BR"}, Names{"pt-BR"}), "pt_BR");
}

TEST(LanguagePreferenceTest, SameLanguageWithAnotherRegionMatches) {
    EXPECT_EQ(chooseLocalization(shipped, Names{"pt-PT"}), "pt-BR");
    EXPECT_EQ(chooseLocalization(shipped, Names{"pt"}), "pt-BR");
    EXPECT_EQ(chooseLocalization(shipped, Names{"en-GB"}), "en");
}

TEST(LanguagePreferenceTest, LanguageWithoutRegionIsPreferredOverAnotherRegion) {
    EXPECT_EQ(chooseLocalization(Names{"pt", "pt-BR"}, Names{"pt-PT"}), "pt");
}

TEST(LanguagePreferenceTest, EarlierPreferenceWinsEvenByLanguageOnly) {
    EXPECT_EQ(chooseLocalization(shipped, Names{"pt-PT", "en-US"}), "pt-BR");
}

TEST(LanguagePreferenceTest, UnmatchedPreferencesFallBackToTheDevelopmentLanguage) {
    EXPECT_EQ(chooseLocalization(shipped, Names{"de-DE", "fr"}), "en");
    EXPECT_EQ(chooseLocalization(shipped, Names{}), "en");
}

TEST(LanguagePreferenceTest, WithoutTheDevelopmentLanguageTheFirstAvailableIsTaken) {
    EXPECT_EQ(chooseLocalization(Names{"fr", "pt-BR"}, Names{"de"}), "fr");
}

const Names allShipped = {"de", "en", "es", "fr", "it", "ja", "pt-BR", "zh-Hans"};

std::optional<std::string> chosenFor(std::map<std::string, std::string, std::less<>> variables) {
    return chooseLocalization(allShipped, preferredLanguages(environmentOf(std::move(variables))));
}

TEST(LanguagePreferenceTest, EachShippedLanguageIsChosenFromItsLocaleNames) {
    EXPECT_EQ(chosenFor({{"LANG", "es_ES.UTF-8"}}), "es");
    EXPECT_EQ(chosenFor({{"LANG", "es_MX.UTF-8"}}), "es");
    EXPECT_EQ(chosenFor({{"LC_ALL", "fr_CA"}}), "fr");
    EXPECT_EQ(chosenFor({{"LANG", "fr_FR.UTF-8"}}), "fr");
    EXPECT_EQ(chosenFor({{"LANG", "de_AT"}}), "de");
    EXPECT_EQ(chosenFor({{"LANG", "de_DE.UTF-8"}}), "de");
    EXPECT_EQ(chosenFor({{"LANG", "it_IT"}}), "it");
    EXPECT_EQ(chosenFor({{"LANG", "ja_JP.UTF-8"}}), "ja");
    EXPECT_EQ(chosenFor({{"LANG", "pt_BR.UTF-8"}}), "pt-BR");
    EXPECT_EQ(chosenFor({{"LANG", "en_GB.UTF-8"}}), "en");
}

TEST(LanguagePreferenceTest, ChineseOfChinaAndSingaporeReadsSimplified) {
    EXPECT_EQ(chosenFor({{"LANG", "zh_CN.UTF-8"}}), "zh-Hans");
    EXPECT_EQ(chosenFor({{"LANG", "zh_SG.UTF-8"}}), "zh-Hans");
    EXPECT_EQ(chosenFor({{"LANG", "zh_Hans"}}), "zh-Hans");
    EXPECT_EQ(chosenFor({{"LANG", "zh_Hans_CN.UTF-8"}}), "zh-Hans");
    EXPECT_EQ(chosenFor({{"LANGUAGE", "zh"}}), "zh-Hans");
}

TEST(LanguagePreferenceTest, TraditionalChineseDoesNotGetSimplified) {
    EXPECT_EQ(chosenFor({{"LANG", "zh_TW.UTF-8"}}), "en");
    EXPECT_EQ(chosenFor({{"LANG", "zh_HK.UTF-8"}}), "en");
    EXPECT_EQ(chosenFor({{"LANG", "zh_MO"}}), "en");
    EXPECT_EQ(chosenFor({{"LANG", "zh_Hant_TW"}}), "en");
    EXPECT_EQ(chooseLocalization(Names{"en", "zh"}, Names{"zh-TW"}), "en");
}

TEST(LanguagePreferenceTest, TraditionalChineseFallsToTheNextPreference) {
    EXPECT_EQ(chosenFor({{"LANGUAGE", "zh_TW:ja"}}), "ja");
    EXPECT_EQ(chosenFor({{"LANGUAGE", "zh_TW"}, {"LANG", "zh_CN.UTF-8"}}), "zh-Hans");
}

TEST(LanguagePreferenceTest, TraditionalChineseGetsATraditionalTable) {
    EXPECT_EQ(chooseLocalization(Names{"en", "zh-Hans", "zh-Hant"}, Names{"zh-TW"}), "zh-Hant");
    EXPECT_EQ(chooseLocalization(Names{"en", "zh-Hans", "zh-Hant"}, Names{"zh-CN"}), "zh-Hans");
}

TEST(LanguagePreferenceTest, NothingAvailableChoosesNothing) {
    EXPECT_EQ(chooseLocalization(Names{}, Names{"en"}), std::nullopt);
}

}  // namespace
}  // namespace tactora
