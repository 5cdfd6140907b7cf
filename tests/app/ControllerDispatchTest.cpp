#include <gtest/gtest.h>

#include <functional>

#include "app/ControllerHarness.h"

namespace tactora::testing {
namespace {

class ControllerDispatchTest : public ::testing::Test {
  protected:
    void SetUp() override { h.launchAndSwitchOn(); }

    ControllerHarness h;
};

TEST_F(ControllerDispatchTest, ContextCapturesGenerationProfileAndFrontmostProcess) {
    h.c().cancelPendingActions();
    const GestureDispatchContext context = h.c().dispatchContext();

    EXPECT_EQ(context.generation, h.c().state().actionGeneration);
    EXPECT_EQ(context.profile, h.c().profiles().activeID());
    EXPECT_EQ(context.targetPID, 42);
}

TEST_F(ControllerDispatchTest, UnchangedWorldIsCurrent) {
    const GestureDispatchContext context = h.c().dispatchContext();
    EXPECT_TRUE(h.c().mayDispatch(context));
}

TEST_F(ControllerDispatchTest, CancellationMakesItStale) {
    const GestureDispatchContext context = h.c().dispatchContext();
    const std::int64_t before = h.c().state().actionGeneration;
    h.c().cancelPendingActions();

    EXPECT_EQ(h.c().state().actionGeneration, before + 1);
    EXPECT_FALSE(h.c().mayDispatch(context));
}

TEST_F(ControllerDispatchTest, AnotherProfileMakesItStale) {
    const GestureDispatchContext context = h.c().dispatchContext();
    h.c().profiles().add("Other", false);
    EXPECT_FALSE(h.c().mayDispatch(context));
}

TEST_F(ControllerDispatchTest, AnotherFrontmostProcessMakesItStale) {
    const GestureDispatchContext context = h.c().dispatchContext();
    h.workspace.frontmost = 99;
    EXPECT_FALSE(h.c().mayDispatch(context));
}

TEST_F(ControllerDispatchTest, SwitchOffMakesItStale) {
    const GestureDispatchContext context = h.c().dispatchContext();
    h.view.enabled = false;
    EXPECT_FALSE(h.c().mayDispatch(context));
}

TEST_F(ControllerDispatchTest, ConfiguringMakesItStale) {
    const GestureDispatchContext context = h.c().dispatchContext();
    h.workspace.active = true;
    EXPECT_FALSE(h.c().mayDispatch(context));
    h.workspace.active = false;

    bool duringRecording = true;
    h.dialogs.save = false;
    h.dialogs.whileOpen = [&] { duringRecording = h.c().mayDispatch(h.c().dispatchContext()); };
    h.c().beginRecording(0);
    EXPECT_FALSE(duringRecording);
}

TEST_F(ControllerDispatchTest, AbsentFrontmostProcessIsNeverCurrent) {
    h.workspace.frontmost.reset();
    const GestureDispatchContext context = h.c().dispatchContext();

    EXPECT_FALSE(context.targetPID.has_value());
    EXPECT_FALSE(h.c().mayDispatch(context));
}

TEST_F(ControllerDispatchTest, GesturesRunOnlyWithSwitchOnNoRecordingAndAnotherAppInFront) {
    EXPECT_TRUE(h.c().canRunGestures());
    h.workspace.active = true;
    EXPECT_FALSE(h.c().canRunGestures());
    h.workspace.active = false;
    h.view.enabled = false;
    EXPECT_FALSE(h.c().canRunGestures());
    h.view.enabled = true;

    bool duringRecording = true;
    h.dialogs.save = false;
    h.dialogs.whileOpen = [&] { duringRecording = h.c().canRunGestures(); };
    h.c().beginRecording(0);
    EXPECT_FALSE(duringRecording);
    EXPECT_TRUE(h.c().canRunGestures());
}

// Every operation that must cancel pending actions, and whether it also resets the recogniser.
struct Cancelling {
    const char* name;
    std::function<void(ControllerHarness&)> run;
    bool resetsRecogniser;
};

class CancellingOperationTest : public ::testing::TestWithParam<Cancelling> {};

TEST_P(CancellingOperationTest, BumpsTheGeneration) {
    ControllerHarness h;
    h.launchAndSwitchOn();
    h.dialogs.save = false;
    h.rest(2);
    const std::int64_t before = h.c().state().actionGeneration;
    GetParam().run(h);

    EXPECT_GT(h.c().state().actionGeneration, before);
    EXPECT_EQ(!h.c().state().gesture.began.has_value(), GetParam().resetsRecogniser);
}

INSTANTIATE_TEST_SUITE_P(
    Operations, CancellingOperationTest,
    ::testing::Values(
        Cancelling{"pause", [](ControllerHarness& h) { h.c().pause(); }, false},
        Cancelling{"toggle", [](ControllerHarness& h) { h.c().toggle(); }, false},
        Cancelling{"woke", [](ControllerHarness& h) { h.workspace.wake(); }, true},
        Cancelling{"changed",
                   [](ControllerHarness& h) {
                       h.view.actionChoice[0] = action::right;
                       h.c().changed(0);
                   },
                   false},
        Cancelling{"beginRecording", [](ControllerHarness& h) { h.c().beginRecording(0); }, true},
        Cancelling{"selectProfile", [](ControllerHarness& h) { h.c().selectProfile(); }, true},
        Cancelling{"nameProfile",
                   [](ControllerHarness& h) {
                       h.dialogs.name = "Work";
                       h.c().nameProfile(NamingMode::create);
                   },
                   true},
        Cancelling{"nameProfileCancelled",
                   [](ControllerHarness& h) {
                       h.dialogs.name.reset();
                       h.c().nameProfile(NamingMode::create);
                   },
                   true},
        Cancelling{"becomeActive", [](ControllerHarness& h) { h.c().applicationDidBecomeActive(); },
                   true},
        Cancelling{"resignActive", [](ControllerHarness& h) { h.c().applicationDidResignActive(); },
                   true}),
    [](const ::testing::TestParamInfo<Cancelling>& param) {
        return std::string(param.param.name);
    });

}  // namespace
}  // namespace tactora::testing
