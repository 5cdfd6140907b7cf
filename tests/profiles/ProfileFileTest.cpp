#include "core/profiles/ProfileFile.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

#include "core/profiles/ProfileJson.h"

namespace tactora {
namespace {

std::optional<ProfileFileError> errorOf(const std::string& bytes) {
    const auto outcome = readProfileFile(bytes);
    if (const auto* error = std::get_if<ProfileFileError>(&outcome)) {
        return *error;
    }
    return std::nullopt;
}

TEST(ProfileFileTest, ExportedListIsReadBack) {
    WorkProfile video("Video", {1, 2, 3});
    video.apps = {"com.apple.Safari"};
    const WorkProfile audio("Audio");
    const auto outcome = readProfileFile(*encodeProfiles({video, audio}));
    ASSERT_TRUE(std::holds_alternative<std::vector<WorkProfile>>(outcome));
    EXPECT_EQ(std::get<std::vector<WorkProfile>>(outcome),
              (std::vector<WorkProfile>{video, audio}));
}

TEST(ProfileFileTest, AFileWithNothingButWhiteSpaceIsSaidToHoldNoProfiles) {
    EXPECT_EQ(errorOf(""), ProfileFileError::blank);
    EXPECT_EQ(errorOf(" "), ProfileFileError::blank);
    EXPECT_EQ(errorOf("\n\n"), ProfileFileError::blank);
    EXPECT_EQ(errorOf(" \t\r\n "), ProfileFileError::blank);
    EXPECT_EQ(profileFileErrorKey(ProfileFileError::blank), std::string("import.blank"));
}

TEST(ProfileFileTest, WhiteSpaceAroundSomethingElseIsNotBlank) {
    EXPECT_EQ(errorOf(" x "), ProfileFileError::notJson);
    EXPECT_EQ(errorOf(std::string(" \0 ", 3)), ProfileFileError::notJson);
    EXPECT_EQ(errorOf("\f"), ProfileFileError::notJson);
}

TEST(ProfileFileTest, EveryErrorHasItsOwnSentence) {
    EXPECT_EQ(profileFileErrorKey(ProfileFileError::tooLarge), std::string("import.large"));
    EXPECT_EQ(profileFileErrorKey(ProfileFileError::notJson), std::string("import.json"));
    EXPECT_EQ(profileFileErrorKey(ProfileFileError::wrongShape), std::string("import.shape"));
    EXPECT_EQ(profileFileErrorKey(ProfileFileError::empty), std::string("import.empty"));
    EXPECT_EQ(profileFileErrorKey(ProfileFileError::duplicateIDs),
              std::string("import.duplicates"));
    EXPECT_EQ(describeProfileFileError(ProfileFileError::blank), "import.blank");
}

TEST(ProfileFileTest, TextThatIsNotJsonIsSaidToBeSo) {
    EXPECT_EQ(errorOf("hello"), ProfileFileError::notJson);
    EXPECT_EQ(errorOf("[{\"id\":"), ProfileFileError::notJson);
    EXPECT_EQ(errorOf("[] trailing"), ProfileFileError::notJson);
    EXPECT_EQ(errorOf(std::string("[]\0[]", 5)), ProfileFileError::notJson);
    EXPECT_EQ(errorOf("\xff\xfe[]"), ProfileFileError::notJson);
}

TEST(ProfileFileTest, JsonOfAnotherShapeIsSaidToBeSo) {
    EXPECT_EQ(errorOf("{}"), ProfileFileError::wrongShape);
    EXPECT_EQ(errorOf("42"), ProfileFileError::wrongShape);
    EXPECT_EQ(errorOf("[1,2]"), ProfileFileError::wrongShape);
    EXPECT_EQ(errorOf(R"([{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","name":"P"}])"),
              ProfileFileError::wrongShape);
    EXPECT_EQ(errorOf(R"([{"id":"nope","name":"P","actions":[],"shortcuts":[]}])"),
              ProfileFileError::wrongShape);
}

TEST(ProfileFileTest, EmptyListIsSaidToBeEmpty) {
    EXPECT_EQ(errorOf("[]"), ProfileFileError::empty);
    EXPECT_EQ(errorOf(" [ ] \n"), ProfileFileError::empty);
}

TEST(ProfileFileTest, DuplicateIdsInsideTheFileAreSaidToBeSo) {
    const WorkProfile profile("Twin");
    EXPECT_EQ(errorOf(*encodeProfiles({profile, profile})), ProfileFileError::duplicateIDs);
}

TEST(ProfileFileTest, FileLargerThanOneMebibyteIsRefusedUnread) {
    const std::string list = *encodeProfiles({WorkProfile("Big")});
    std::string padded = list + std::string(maxProfileFileBytes - list.size(), ' ');
    EXPECT_EQ(padded.size(), maxProfileFileBytes);
    EXPECT_EQ(errorOf(padded), std::nullopt);
    padded += ' ';
    EXPECT_EQ(errorOf(padded), ProfileFileError::tooLarge);
}

}  // namespace
}  // namespace tactora
