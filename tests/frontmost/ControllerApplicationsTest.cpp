#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/profiles/ProfileStore.h"

namespace tactora::testing {
namespace {

constexpr std::int32_t safariPID = 100;
constexpr std::int32_t mailPID = 101;
constexpr std::int32_t musicPID = 102;
const std::string safari = "com.apple.Safari";
const std::string mail = "com.apple.mail";
const std::string music = "com.apple.Music";

// Three profiles: Default (the user's choice), Video for Safari and Audio for Music; Mail has
// none.
class ControllerApplicationsTest : public ::testing::Test {
  protected:
    void SetUp() override {
        h.workspace.names = {{safari, "Safari"}, {mail, "Mail"}, {music, "Music"}};
        h.launchAndSwitchOn();
        ProfileStore& store = h.c().profiles();
        defaultID = store.activeID();
        store.add("Video", false);
        videoID = store.activeID();
        store.add("Audio", false);
        audioID = store.activeID();
        store.assign(safari, videoID);
        store.assign(music, audioID);
        store.select(defaultID);
        h.c().refreshProfileUI();
    }

    ProfileStore& store() { return h.c().profiles(); }
    std::string savedChoice() { return *h.defaults->string(ProfileStore::activeKey); }

    void choose(const Uuid& id) {
        h.view.profileChoice = id.text();
        h.c().selectProfile();
        h.view.profileChoice.reset();
    }

    std::string shownProfile() {
        return h.view.profileItems.at(h.view.selectedProfile.value()).title;
    }

    ControllerHarness h;
    Uuid defaultID;
    Uuid videoID;
    Uuid audioID;
};

TEST_F(ControllerApplicationsTest, SwitchingAmongThreeApplicationsWithAndWithoutProfiles) {
    h.workspace.bringToFront(safariPID, safari);
    EXPECT_EQ(store().activeID(), videoID);
    EXPECT_EQ(shownProfile(), "Video (for Safari)");

    h.workspace.bringToFront(mailPID, mail);
    EXPECT_EQ(store().activeID(), defaultID);
    EXPECT_EQ(shownProfile(), "Default");

    h.workspace.bringToFront(musicPID, music);
    EXPECT_EQ(store().activeID(), audioID);
    EXPECT_EQ(shownProfile(), "Audio (for Music)");

    h.workspace.bringToFront(safariPID, safari);
    EXPECT_EQ(store().activeID(), videoID);

    EXPECT_EQ(store().chosenID(), defaultID);
    EXPECT_EQ(savedChoice(), defaultID.text());
}

TEST_F(ControllerApplicationsTest, AutomaticSwitchUsesTheProfilesMapping) {
    h.assign(4, action::showDesktop);  // Default's one-finger tap
    h.workspace.bringToFront(safariPID, safari);
    h.assign(4, action::missionControl);  // Video's
    h.tap(1);
    h.queue.advance(Controller::tapDelay);
    ASSERT_EQ(h.poster.dockRequests.size(), 1U);
    EXPECT_FALSE(h.poster.dockRequests.front());  // Mission Control, not Show Desktop
}

TEST_F(ControllerApplicationsTest, EverySwitchGoesThroughTheStepsOfSelectingAProfile) {
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    h.send(down);
    ASSERT_FALSE(h.c().state().presses.empty());
    const std::int64_t before = h.c().state().actionGeneration;

    h.workspace.bringToFront(safariPID, safari);
    // The held press finishes first, at its physical release; then the switch happens.
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(up);
    h.queue.runReady();

    EXPECT_GT(h.c().state().actionGeneration, before);
    EXPECT_TRUE(h.c().state().presses.empty());
    EXPECT_EQ(h.c().state().gesture.count, 0);
    EXPECT_EQ(h.c().state().lastGesture, "—");
    EXPECT_EQ(h.c().state().lastAction, "");
    EXPECT_EQ(h.view.live, "0 | — | ");
}

TEST_F(ControllerApplicationsTest, ApplicationWithoutAProfileAfterAnotherOneChangesNothing) {
    h.workspace.bringToFront(mailPID, mail);
    h.c().perform(action::showDesktop, std::nullopt);
    const std::int64_t before = h.c().state().actionGeneration;
    h.workspace.bringToFront(200, "com.apple.Notes");
    EXPECT_EQ(store().activeID(), defaultID);
    EXPECT_EQ(h.c().state().actionGeneration, before);
    EXPECT_NE(h.c().state().lastAction, "");
}

TEST_F(ControllerApplicationsTest, ThisApplicationComingToTheFrontChangesNothing) {
    h.workspace.bringToFront(safariPID, safari);
    const std::int64_t before = h.c().state().actionGeneration;
    h.workspace.bringToFront(h.workspace.own, "app.tactora.Tactora");
    EXPECT_EQ(store().activeID(), videoID);
    EXPECT_EQ(h.a().frontmost().frontmostBundleID(), safari);
    EXPECT_EQ(h.c().state().actionGeneration, before);
}

TEST_F(ControllerApplicationsTest, NoApplicationInFrontBringsBackTheChoice) {
    h.workspace.bringToFront(safariPID, safari);
    h.workspace.bringToFront(std::nullopt, "");
    EXPECT_EQ(store().activeID(), defaultID);
}

TEST_F(ControllerApplicationsTest, UserChoosingAProfileByHandWhileAnAssignedApplicationIsInFront) {
    h.workspace.bringToFront(safariPID, safari);
    ASSERT_EQ(store().activeID(), videoID);

    choose(audioID);
    EXPECT_EQ(store().activeID(), audioID);
    EXPECT_EQ(store().chosenID(), audioID);
    EXPECT_EQ(savedChoice(), audioID.text());
    EXPECT_EQ(shownProfile(), "Audio");
    EXPECT_FALSE(h.a().frontmost().profileFollowsApplication());

    h.workspace.bringToFront(mailPID, mail);
    EXPECT_EQ(store().activeID(), audioID);
    h.workspace.bringToFront(safariPID, safari);
    EXPECT_EQ(store().activeID(), videoID);
    h.workspace.bringToFront(mailPID, mail);
    EXPECT_EQ(store().activeID(), audioID);
}

TEST_F(ControllerApplicationsTest, ATapPendingWhenTheApplicationChangesIsDropped) {
    h.assign(4, action::showDesktop);
    h.tap(1);
    h.workspace.bringToFront(safariPID, safari);
    h.queue.advance(Controller::tapDelay);
    EXPECT_EQ(h.performedCount(), 0U);
}

TEST_F(ControllerApplicationsTest, ATapPendingWhenTheApplicationChangesWithoutAProfileIsDropped) {
    h.workspace.bringToFront(mailPID, mail);
    h.assign(4, action::showDesktop);
    h.tap(1);
    h.workspace.bringToFront(200, "com.apple.Notes");
    h.queue.advance(Controller::tapDelay);
    EXPECT_EQ(h.performedCount(), 0U);

    h.tap(1);
    h.queue.advance(Controller::tapDelay);
    EXPECT_EQ(h.performedCount(), 1U);
}

TEST_F(ControllerApplicationsTest, RestartingWithAnAutomaticProfileActiveRestoresTheChoice) {
    h.workspace.bringToFront(safariPID, safari);
    h.assign(0, action::copy);  // an edit of Video saves the whole list
    ASSERT_EQ(store().activeID(), videoID);

    const ProfileStore restarted(h.defaults, "Default");
    EXPECT_EQ(restarted.activeID(), defaultID);
    EXPECT_EQ(restarted.current().name, "Default");
    EXPECT_EQ(restarted.profiles().size(), 3U);
}

TEST_F(ControllerApplicationsTest, LaunchingWithAnAssignedApplicationInFrontUsesItsProfile) {
    ControllerHarness other;
    other.c().profiles().add("Video", false);
    const Uuid video = other.c().profiles().activeID();
    other.c().profiles().assign(safari, video);
    other.c().profiles().select(other.c().profiles().profiles().front().id);
    other.workspace.frontmost = safariPID;
    other.workspace.frontmostBundle = safari;
    other.c().applicationDidFinishLaunching();
    EXPECT_EQ(other.c().profiles().activeID(), video);
    EXPECT_NE(other.c().profiles().chosenID(), video);
}

TEST_F(ControllerApplicationsTest, StatusItemTooltipSaysWhichApplicationChoseTheProfile) {
    h.workspace.bringToFront(safariPID, safari);
    h.c().refresh();
    EXPECT_EQ(h.view.statusItem->toolTip, "Tactora · menu.active · Video (for Safari)");
    h.workspace.bringToFront(mailPID, mail);
    h.c().refresh();
    EXPECT_EQ(h.view.statusItem->toolTip, "Tactora · menu.active · Default");
}

TEST_F(ControllerApplicationsTest, ApplicationWithoutAKnownNameIsShownByItsBundleId) {
    store().assign("org.example.Unknown", videoID);
    h.workspace.bringToFront(300, "org.example.Unknown");
    EXPECT_EQ(shownProfile(), "Video (for org.example.Unknown)");
}

TEST_F(ControllerApplicationsTest, DeletingTheProfileOfTheFrontmostApplication) {
    h.workspace.bringToFront(safariPID, safari);
    const std::int64_t before = h.c().state().actionGeneration;
    h.a().profileFiles().deleteProfile();

    EXPECT_EQ(h.dialogs.confirmationTexts->message, "delete Video");
    ASSERT_EQ(store().profiles().size(), 2U);
    EXPECT_EQ(store().profileFor(safari), std::nullopt);
    EXPECT_EQ(store().activeID(), defaultID);
    EXPECT_EQ(shownProfile(), "Default");
    EXPECT_EQ(h.view.profileItems.size(), 2U);
    EXPECT_GT(h.c().state().actionGeneration, before);
    EXPECT_EQ(savedChoice(), defaultID.text());
}

TEST_F(ControllerApplicationsTest, DeletingTheChosenProfileMakesTheFirstRemainingActive) {
    choose(audioID);
    h.a().profileFiles().deleteProfile();
    EXPECT_EQ(store().activeID(), defaultID);
    EXPECT_EQ(savedChoice(), defaultID.text());
    EXPECT_EQ(h.c().state().lastGesture, "—");
}

TEST_F(ControllerApplicationsTest, DeletingTheFirstProfileMakesTheNextOneActive) {
    h.a().profileFiles().deleteProfile();
    EXPECT_EQ(store().activeID(), videoID);
    EXPECT_EQ(store().chosenID(), videoID);
}

TEST_F(ControllerApplicationsTest, DeletingTheChoiceWhileAnotherApplicationHasItsProfile) {
    h.workspace.bringToFront(safariPID, safari);
    choose(defaultID);
    h.workspace.bringToFront(musicPID, music);
    choose(defaultID);  // Music in front, Default chosen by hand and shown
    h.a().profileFiles().deleteProfile();
    // Video is the first remaining and becomes the choice; Music still has Audio.
    EXPECT_EQ(store().chosenID(), videoID);
    EXPECT_EQ(store().activeID(), audioID);
}

TEST_F(ControllerApplicationsTest, DeletingTheChoiceShowsTheApplicationsProfileAsItsOwn) {
    h.workspace.bringToFront(musicPID, music);
    choose(defaultID);
    h.a().profileFiles().deleteProfile();
    ASSERT_EQ(store().chosenID(), videoID);
    ASSERT_EQ(store().activeID(), audioID);
    // The pop-up and the tooltip both name Music's profile as the one in front.
    EXPECT_EQ(shownProfile(), "Audio (for Music)");
    h.c().refresh();
    EXPECT_EQ(h.view.statusItem->toolTip, "Tactora · menu.active · Audio (for Music)");
    EXPECT_EQ(savedChoice(), videoID.text());
    // Music leaving brings the new choice.
    h.workspace.bringToFront(mailPID, mail);
    EXPECT_EQ(store().activeID(), videoID);
    EXPECT_EQ(shownProfile(), "Video");
}

TEST_F(ControllerApplicationsTest, AddingTheApplicationInFrontToTheEditedProfileSwitchesAtOnce) {
    h.workspace.bringToFront(musicPID, music);
    h.a().frontmost().editApplications();
    h.a().frontmost().removeApplication(music);
    ASSERT_EQ(store().activeID(), defaultID);
    h.a().frontmost().addApplication(music);
    EXPECT_EQ(store().activeID(), audioID);
    EXPECT_EQ(shownProfile(), "Audio (for Music)");
}

TEST_F(ControllerApplicationsTest, AHeldPressFinishesBeforeTheApplicationsProfileTakesOver) {
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    ASSERT_EQ(h.send(down), EventDisposition::pass);
    ASSERT_EQ(down.type, event::rightMouseDown);
    // Dragged into Safari's window: Safari comes to the front while the press is held.
    h.workspace.bringToFront(safariPID, safari);
    EXPECT_EQ(store().activeID(), defaultID);
    FakeTapEvent drag = h.mouseEvent(event::leftMouseDragged);
    h.send(drag);
    EXPECT_EQ(drag.type, event::rightMouseDragged);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    ASSERT_EQ(h.send(up), EventDisposition::pass);
    // One press, one matching up, at the physical release; nothing posted of its own.
    EXPECT_EQ(up.type, event::rightMouseUp);
    EXPECT_TRUE(h.poster.posted.empty());
    h.queue.runReady();
    EXPECT_EQ(store().activeID(), videoID);
    EXPECT_EQ(shownProfile(), "Video (for Safari)");
}

TEST_F(ControllerApplicationsTest, AProfileChosenByHandWhileAPressIsHeldReplacesTheWaitingSwitch) {
    h.assign(1, action::right);
    h.rest(2);
    FakeTapEvent down = h.mouseEvent(event::leftMouseDown);
    ASSERT_EQ(h.send(down), EventDisposition::pass);
    h.workspace.bringToFront(safariPID, safari);
    choose(audioID);
    FakeTapEvent up = h.mouseEvent(event::leftMouseUp);
    h.send(up);
    h.queue.advance(1);
    EXPECT_EQ(store().activeID(), audioID);
}

TEST_F(ControllerApplicationsTest, CancellingTheDeletionChangesNothing) {
    h.dialogs.confirm = false;
    const auto before = store().profiles();
    h.a().profileFiles().deleteProfile();
    EXPECT_EQ(h.log.count("dialogs.confirmation"), 1);
    EXPECT_EQ(store().profiles(), before);
}

TEST_F(ControllerApplicationsTest, LastProfileCannotBeDeleted) {
    EXPECT_EQ(h.view.deleteEnabled, true);
    h.a().profileFiles().deleteProfile();
    h.a().profileFiles().deleteProfile();
    EXPECT_EQ(store().profiles().size(), 1U);
    EXPECT_EQ(h.view.deleteEnabled, false);
    h.a().profileFiles().deleteProfile();
    EXPECT_EQ(h.log.count("dialogs.confirmation"), 2);
    EXPECT_EQ(store().profiles().size(), 1U);
}

TEST_F(ControllerApplicationsTest, SheetListsTheProfilesApplicationsAndTheRunningOthers) {
    h.workspace.running = {{safariPID, safari, "Safari"},
                           {mailPID, mail, "Mail"},
                           {h.workspace.own, "app.tactora.Tactora", "Tactora"},
                           {400, mail, "Mail"},
                           {musicPID, music, "Music"}};
    choose(videoID);
    h.a().frontmost().editApplications();
    ASSERT_TRUE(h.view.applications);
    EXPECT_EQ(h.view.applications->title, "apps of Video");
    EXPECT_EQ(h.view.applications->applications, (std::vector<ApplicationRow>{{safari, "Safari"}}));
    EXPECT_EQ(h.view.applications->running,
              (std::vector<ApplicationRow>{{mail, "Mail"}, {music, "Music"}}));
}

TEST_F(ControllerApplicationsTest, SheetAddsMovesAndRemovesApplicationsOfItsProfile) {
    choose(videoID);
    h.a().frontmost().editApplications();
    h.a().frontmost().addApplication(music);
    EXPECT_EQ(store().profileFor(music), videoID);
    EXPECT_EQ(h.view.applications->applications.size(), 2U);

    h.a().frontmost().removeApplication(safari);
    EXPECT_EQ(store().profileFor(safari), std::nullopt);
    EXPECT_EQ(h.view.applications->applications, (std::vector<ApplicationRow>{{music, "Music"}}));

    h.a().frontmost().closeApplications();
    h.a().frontmost().addApplication(mail);
    EXPECT_EQ(store().profileFor(mail), std::nullopt);
}

TEST_F(ControllerApplicationsTest, SheetDoesNotRemoveAnotherProfilesApplication) {
    h.a().frontmost().editApplications();  // Default's
    h.a().frontmost().removeApplication(safari);
    EXPECT_EQ(store().profileFor(safari), videoID);
}

TEST_F(ControllerApplicationsTest, RemovingTheApplicationInFrontFromItsProfileBringsBackTheChoice) {
    h.workspace.bringToFront(safariPID, safari);
    h.a().frontmost().editApplications();  // Video's, active for Safari
    h.a().frontmost().removeApplication(safari);
    EXPECT_EQ(store().activeID(), defaultID);
}

}  // namespace
}  // namespace tactora::testing
