#include "core/text/UpperCase.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(UpperCaseTest, BasicLatin) {
    EXPECT_EQ(upperCased("az AZ 09 [;]"), "AZ AZ 09 [;]");
}

TEST(UpperCaseTest, LatinLettersOfEuropeanLayouts) {
    EXPECT_EQ(upperCased("àéîõüçñøåæþÿ"), "ÀÉÎÕÜÇÑØÅÆÞŸ");
    EXPECT_EQ(upperCased("ß"), "SS");
    EXPECT_EQ(upperCased("÷"), "÷");
    EXPECT_EQ(upperCased("ąčęłńőśźżğı"), "ĄČĘŁŃŐŚŹŻĞI");
}

TEST(UpperCaseTest, GreekCyrillicAndArmenian) {
    EXPECT_EQ(upperCased("αβγςάώ"), "ΑΒΓΣΆΏ");
    EXPECT_EQ(upperCased("яжёї"), "ЯЖЁЇ");
    EXPECT_EQ(upperCased("աբ"), "ԱԲ");
}

TEST(UpperCaseTest, OtherScriptsAndSymbolsStay) {
    EXPECT_EQ(upperCased("日本\U0001F600€"), "日本\U0001F600€");
}

}  // namespace
}  // namespace tactora
