#include "core/gestures/GestureSelfTest.h"

#include <gtest/gtest.h>

#include <string>

namespace tactora {
namespace {

TEST(GestureSelfTest, RecogniserScenariosPassAndPrintTheirLine) {
    testing::internal::CaptureStdout();
    runTests();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "PASS: taps de 1–4 dedos, clique sem tap duplicado, movimento, duração, excesso de "
              "dedos, soltura gradual e ruído.\n");
}

TEST(GestureSelfTest, DispatchScenariosPassAndPrintTheirLine) {
    testing::internal::CaptureStdout();
    dispatchTests();
    EXPECT_EQ(testing::internal::GetCapturedStdout(),
              "PASS: pending gestures cancel on pause, profile changes, focus changes and "
              "configuration.\n");
}

}  // namespace
}  // namespace tactora
