#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/profiles/ProfileFile.h"
#include "core/profiles/ProfileJson.h"

namespace tactora::testing {
namespace {

const std::string exportPath = "/Users/me/Profiles.json";
const std::string importPath = "/Users/me/Other.json";

class ControllerProfileFilesTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.launchAndSwitchOn();
        ProfileStore& store = h.c().profiles();
        defaultID = store.activeID();
        store.add("Video", false);
        videoID = store.activeID();
        store.setAction(action::copy, 4);
        store.assign("com.apple.Safari", videoID);
        store.select(defaultID);
        h.c().refreshProfileUI();
    }

    void importFile(const std::string& bytes) {
        h.files.importPath = importPath;
        h.files.files[importPath] = bytes;
        h.a().profileFiles().importProfiles();
    }

    ProfileStore& store() { return h.c().profiles(); }

    ControllerHarness h;
    Uuid defaultID;
    Uuid videoID;
};

TEST_F(ControllerProfileFilesTest, ExportWritesEveryProfileWithItsApplications) {
    h.files.exportPath = exportPath;
    h.a().profileFiles().exportProfiles();

    EXPECT_EQ(h.files.suggested, "export.file.json");
    const auto written = decodeProfiles(h.files.files.at(exportPath));
    ASSERT_TRUE(written);
    EXPECT_EQ(*written, store().profiles());
    EXPECT_EQ(written->at(1).apps, std::vector<std::string>{"com.apple.Safari"});
    EXPECT_EQ(h.view.status, "export.done");
    EXPECT_TRUE(h.dialogs.messages.empty());
}

TEST_F(ControllerProfileFilesTest, ExportWritesOnlyOnceTheSheetCloses) {
    h.files.holdPanels = true;
    h.a().profileFiles().exportProfiles();
    EXPECT_TRUE(h.files.files.empty());
    // The sheet leaves the window usable: a profile added meanwhile is written too.
    store().add("Late", false);
    ASSERT_TRUE(h.files.closePanel(exportPath));
    const auto written = decodeProfiles(h.files.files.at(exportPath));
    ASSERT_TRUE(written);
    EXPECT_EQ(written->size(), 3U);
    EXPECT_EQ(h.view.status, "export.done");
}

TEST_F(ControllerProfileFilesTest, ImportReadsOnlyOnceTheSheetCloses) {
    h.files.holdPanels = true;
    h.files.files[importPath] = *encodeProfiles(store().profiles());
    h.a().profileFiles().importProfiles();
    EXPECT_EQ(store().profiles().size(), 2U);
    ASSERT_TRUE(h.files.closePanel(importPath));
    EXPECT_EQ(store().profiles().size(), 4U);
}

TEST_F(ControllerProfileFilesTest, AnImportSheetCancelledChangesNothing) {
    h.files.holdPanels = true;
    h.a().profileFiles().importProfiles();
    ASSERT_TRUE(h.files.closePanel(std::nullopt));
    EXPECT_EQ(store().profiles().size(), 2U);
    EXPECT_TRUE(h.dialogs.messages.empty());
}

TEST_F(ControllerProfileFilesTest, CancelledExportWritesNothing) {
    h.a().profileFiles().exportProfiles();
    EXPECT_EQ(h.log.count("files.chooseExportPath"), 1);
    EXPECT_TRUE(h.files.files.empty());
}

TEST_F(ControllerProfileFilesTest, ExportThatCannotBeWrittenSaysSo) {
    h.files.exportPath = h.files.unwritable;
    h.a().profileFiles().exportProfiles();
    ASSERT_EQ(h.dialogs.messages.size(), 1U);
    EXPECT_EQ(h.dialogs.messages[0], (MessageTexts{"export.failed", "export.write"}));
}

TEST_F(ControllerProfileFilesTest,
       ExportedFileImportedAgainDoublesTheListWithoutTakingApplications) {
    h.files.exportPath = exportPath;
    h.a().profileFiles().exportProfiles();
    importFile(h.files.files.at(exportPath));

    const auto& all = store().profiles();
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[2].name, "Default");
    EXPECT_EQ(all[3].name, "Video");
    EXPECT_NE(all[2].id, defaultID);
    EXPECT_NE(all[3].id, videoID);
    EXPECT_EQ(all[3].actions.at(4), action::copy);
    EXPECT_TRUE(all[3].apps.empty());
    EXPECT_EQ(store().profileFor("com.apple.Safari"), videoID);
    EXPECT_EQ(store().activeID(), defaultID);
    EXPECT_EQ(h.view.profileItems.size(), 4U);
    EXPECT_EQ(h.view.status, "import.done");
}

TEST_F(ControllerProfileFilesTest, ImportingAFileWithCollidingIdsAndApplications) {
    WorkProfile colliding(videoID, "Video from elsewhere", {1, 1, 1, 1, 1, 1, 1, 1},
                          std::vector<std::optional<SavedShortcut>>(8));
    colliding.apps = {"com.apple.Safari", "com.apple.mail"};
    WorkProfile music("Music");
    music.apps = {"com.apple.Music"};
    importFile(*encodeProfiles({colliding, music}));

    const auto& all = store().profiles();
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all[1].id, videoID);
    EXPECT_EQ(all[1].name, "Video");
    EXPECT_EQ(all[2].name, "Video from elsewhere");
    EXPECT_NE(all[2].id, videoID);
    EXPECT_EQ(all[2].apps, std::vector<std::string>{"com.apple.mail"});
    EXPECT_EQ(all[3].id, music.id);
    EXPECT_EQ(store().profileFor("com.apple.Safari"), videoID);
    EXPECT_EQ(store().profileFor("com.apple.Music"), music.id);
}

TEST_F(ControllerProfileFilesTest, ImportedProfileForTheApplicationInFrontBecomesActive) {
    h.workspace.bringToFront(101, "com.apple.mail");
    WorkProfile mail("Mail");
    mail.apps = {"com.apple.mail"};
    importFile(*encodeProfiles({mail}));
    EXPECT_EQ(store().activeID(), mail.id);
    EXPECT_EQ(store().chosenID(), defaultID);
}

TEST_F(ControllerProfileFilesTest, CancelledImportChangesNothing) {
    const auto before = store().profiles();
    h.a().profileFiles().importProfiles();
    EXPECT_EQ(store().profiles(), before);
    EXPECT_TRUE(h.dialogs.messages.empty());
}

struct MalformedFile {
    std::string name;
    std::string bytes;
    std::string problem;
};

TEST_F(ControllerProfileFilesTest, EveryMalformedFileChangesNothingAndSaysWhatIsWrong) {
    const std::string list = *encodeProfiles({WorkProfile("Big")});
    const WorkProfile twin("Twin");
    const std::vector<MalformedFile> files{
        {"blank", " \n", "import.blank"},
        {"nothing", "", "import.blank"},
        {"not JSON", "name,actions\nVideo,5\n", "import.json"},
        {"cut short", list.substr(0, list.size() / 2), "import.json"},
        {"an object", R"({"profiles":[]})", "import.shape"},
        {"a profile without actions",
         R"([{"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","name":"P",)"
         R"("shortcuts":[]}])",
         "import.shape"},
        {"empty", "[]", "import.empty"},
        {"duplicate ids", *encodeProfiles({twin, twin}), "import.duplicates"},
        {"larger than 1 MiB", list + std::string(maxProfileFileBytes, ' '), "import.large"},
    };
    const auto before = store().profiles();
    const auto saved = h.defaults->values();
    for (const MalformedFile& file : files) {
        h.dialogs.messages.clear();
        importFile(file.bytes);
        ASSERT_EQ(h.dialogs.messages.size(), 1U) << file.name;
        EXPECT_EQ(h.dialogs.messages[0], (MessageTexts{"import.failed", file.problem}))
            << file.name;
        EXPECT_EQ(store().profiles(), before) << file.name;
        EXPECT_EQ(h.defaults->values(), saved) << file.name;
    }
}

TEST_F(ControllerProfileFilesTest, FileIsReadOnlyUpToOneByteBeyondTheLimit) {
    importFile("[]");
    EXPECT_EQ(h.files.lastLimit, maxProfileFileBytes + 1);
}

TEST_F(ControllerProfileFilesTest, UnreadableFileChangesNothingAndSaysSo) {
    h.files.importPath = "/nowhere.json";
    const auto before = store().profiles();
    h.a().profileFiles().importProfiles();
    ASSERT_EQ(h.dialogs.messages.size(), 1U);
    EXPECT_EQ(h.dialogs.messages[0], (MessageTexts{"import.failed", "import.unreadable"}));
    EXPECT_EQ(store().profiles(), before);
}

}  // namespace
}  // namespace tactora::testing
