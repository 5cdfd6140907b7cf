#include "core/profiles/Base64.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace tactora {
namespace {

Bytes bytesOf(const std::string& text) {
    return {text.begin(), text.end()};
}

TEST(Base64, EncodesTheStandardTestVectors) {
    const std::vector<std::pair<std::string, std::string>> vectors{{"", ""},
                                                                   {"f", "Zg=="},
                                                                   {"fo", "Zm8="},
                                                                   {"foo", "Zm9v"},
                                                                   {"foob", "Zm9vYg=="},
                                                                   {"fooba", "Zm9vYmE="},
                                                                   {"foobar", "Zm9vYmFy"}};
    for (const auto& [plain, encoded] : vectors) {
        SCOPED_TRACE(plain);
        EXPECT_EQ(encodeBase64(bytesOf(plain)), encoded);
        EXPECT_EQ(decodeBase64(encoded), bytesOf(plain));
    }
}

TEST(Base64, RoundTripsEveryByteValue) {
    Bytes all;
    for (int b = 0; b < 256; ++b) {
        all.push_back(static_cast<std::uint8_t>(b));
    }
    const std::string text = encodeBase64(all);
    EXPECT_NE(text.find('+'), std::string::npos);
    EXPECT_NE(text.find('/'), std::string::npos);
    EXPECT_EQ(decodeBase64(text), all);
}

TEST(Base64, RejectsTextThatIsNotCanonical) {
    for (const char* text : {"Z", "Zg=", "Zg", "Zh==", "Zm9=", "Z===", "====", "Zg==Zg==", "Zm9v\n",
                             "Zm-v", "Zm_v", " Zm9v", "Zm8=Zm9v"}) {
        SCOPED_TRACE(text);
        EXPECT_EQ(decodeBase64(text), std::nullopt);
    }
}

}  // namespace
}  // namespace tactora
