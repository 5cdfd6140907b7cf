#include "core/app/ApplicationController.h"

#include <gtest/gtest.h>

#include "app/ControllerHarness.h"

namespace tactora::testing {
namespace {

TEST(ApplicationControllerTest, TheHarnessControllerIsTheApplicationControllerUntilCleared) {
    {
        ControllerHarness h;
        EXPECT_EQ(applicationController(), h.controller.get());
    }
    EXPECT_EQ(applicationController(), nullptr);
}

TEST(ApplicationControllerTest, TapEventsGoToTheApplicationController) {
    ControllerHarness h;
    h.launchAndSwitchOn();
    FakeTapEvent notice(event::tapDisabledByTimeout, 0, 0);

    EXPECT_EQ(handleTapEvent(notice.type, notice), EventDisposition::pass);
    EXPECT_FALSE(h.view.enabled);
}

TEST(ApplicationControllerDeathTest, TapEventWithoutAControllerStopsTheProgram) {
    FakeTapEvent event(event::leftMouseDown, 0, mouseSender);
    EXPECT_DEATH(handleTapEvent(event.type, event), "Event tap without a controller");
}

TEST(ApplicationControllerTest, TheControllerLivesOnWhileSetAfterItsMakerLetsGo) {
    ControllerHarness h;
    const std::weak_ptr<Controller> made = h.controller;
    h.app.reset();
    h.controller.reset();
    ASSERT_FALSE(made.expired());

    const std::int32_t ids[] = {1, 2};
    const float xs[] = {0.4F, 0.6F};
    const float ys[] = {0.5F, 0.5F};
    Controller::frameCallback(2, ids, xs, ys, nullptr);
    h.queue.runReady();
    EXPECT_EQ(applicationController()->state().gesture.count, 2);

    clearApplicationController();
    EXPECT_TRUE(made.expired());
}

TEST(ApplicationControllerTest, FramesWithoutAControllerAreDropped) {
    const std::int32_t ids[] = {1};
    const float xs[] = {0.5F};
    Controller::frameCallback(1, ids, xs, xs, nullptr);
    SUCCEED();
}

}  // namespace
}  // namespace tactora::testing
