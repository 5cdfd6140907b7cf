#include "core/profiles/Uuid.h"

#include <gtest/gtest.h>

#include <set>

namespace tactora {
namespace {

TEST(Uuid, RandomIsVersionFourWithTheStandardVariant) {
    for (int i = 0; i < 100; ++i) {
        const Uuid id = Uuid::random();
        EXPECT_EQ(id.bytes()[6] >> 4U, 4);
        EXPECT_EQ(id.bytes()[8] >> 6U, 2);
        EXPECT_EQ(id.text()[14], '4');
    }
}

TEST(Uuid, RandomIdentifiersDiffer) {
    std::set<Uuid> seen;
    for (int i = 0; i < 1000; ++i) {
        seen.insert(Uuid::random());
    }
    EXPECT_EQ(seen.size(), 1000U);
    EXPECT_EQ(seen.count(Uuid()), 0U);
}

TEST(Uuid, TextIsCanonicalUpperCase) {
    const Uuid id({0xE6, 0x21, 0xE1, 0xF8, 0xC3, 0x6C, 0x49, 0x5A, 0x93, 0xFC, 0x0C, 0x24, 0x7A,
                   0x3E, 0x6E, 0x5F});
    EXPECT_EQ(id.text(), "E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
    EXPECT_EQ(Uuid().text(), "00000000-0000-0000-0000-000000000000");
}

TEST(Uuid, ParseReadsBackItsText) {
    const Uuid id = Uuid::random();
    EXPECT_EQ(Uuid::parse(id.text()), id);
}

TEST(Uuid, ParseAcceptsEitherCase) {
    const auto upper = Uuid::parse("E621E1F8-C36C-495A-93FC-0C247A3E6E5F");
    ASSERT_TRUE(upper.has_value());
    EXPECT_EQ(Uuid::parse("e621e1f8-c36c-495a-93fc-0c247a3e6e5f"), upper);
    EXPECT_EQ(Uuid::parse("e621E1F8-c36C-495a-93Fc-0c247A3E6E5F"), upper);
}

TEST(Uuid, ParseRejectsAnythingButTheCanonicalForm) {
    for (const char* text : {
             "",
             "E621E1F8C36C495A93FC0C247A3E6E5F",
             "{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}",
             " E621E1F8-C36C-495A-93FC-0C247A3E6E5F",
             "E621E1F8-C36C-495A-93FC-0C247A3E6E5F ",
             "E621E1F8-C36C-495A-93FC-0C247A3E6E5",
             "E621E1F8-C36C-495A-93FC-0C247A3E6E5F0",
             "E621E1F8-C36C-495A-93FC0-C247A3E6E5F",
             "E621E1F8_C36C-495A-93FC-0C247A3E6E5F",
             "G621E1F8-C36C-495A-93FC-0C247A3E6E5F",
             "E621E1F8-C36C-495A-93FC-0C247A3E6E5\xC3",
             "+621E1F8-C36C-495A-93FC-0C247A3E6E5F",
         }) {
        SCOPED_TRACE(text);
        EXPECT_FALSE(Uuid::parse(text).has_value());
    }
}

TEST(Uuid, NilIsDefault) {
    EXPECT_EQ(Uuid::parse("00000000-0000-0000-0000-000000000000"), Uuid());
}

}  // namespace
}  // namespace tactora
