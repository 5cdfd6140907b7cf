#include "core/gestures/GestureDispatchContext.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>

namespace tactora {
namespace {

class GestureDispatchContextTest : public testing::Test {
  protected:
    Uuid profile = Uuid::random();
    GestureDispatchContext context{3, profile, 42};
};

TEST_F(GestureDispatchContextTest, UnchangedWorldIsCurrent) {
    EXPECT_TRUE(context.isCurrent(3, profile, 42, true, false));
}

TEST_F(GestureDispatchContextTest, NewGenerationMakesItStale) {
    EXPECT_FALSE(context.isCurrent(4, profile, 42, true, false));
}

TEST_F(GestureDispatchContextTest, OtherProfileMakesItStale) {
    EXPECT_FALSE(context.isCurrent(3, Uuid::random(), 42, true, false));
}

TEST_F(GestureDispatchContextTest, OtherFrontmostProcessMakesItStale) {
    EXPECT_FALSE(context.isCurrent(3, profile, 99, true, false));
}

TEST_F(GestureDispatchContextTest, DisabledGesturesMakeItStale) {
    EXPECT_FALSE(context.isCurrent(3, profile, 42, false, false));
}

TEST_F(GestureDispatchContextTest, ConfiguringMakesItStale) {
    EXPECT_FALSE(context.isCurrent(3, profile, 42, true, true));
}

TEST_F(GestureDispatchContextTest, NoFrontmostProcessAtFiringIsNeverCurrent) {
    EXPECT_FALSE(context.isCurrent(3, profile, std::nullopt, true, false));
}

TEST(GestureDispatchContext, ContextWithoutTargetIsNeverCurrentWhateverTheArguments) {
    const Uuid profile = Uuid::random();
    const GestureDispatchContext context{3, profile, std::nullopt};
    const std::optional<std::int32_t> targets[] = {std::nullopt, 42, 0};
    for (const std::int64_t generation : {3, 4}) {
        for (const Uuid& current : {profile, Uuid::random()}) {
            for (const std::optional<std::int32_t> target : targets) {
                EXPECT_FALSE(context.isCurrent(generation, current, target, true, false));
            }
        }
    }
}

TEST(GestureDispatchContext, EqualityComparesAllFields) {
    const Uuid profile = Uuid::random();
    const GestureDispatchContext context{3, profile, 42};
    EXPECT_EQ(context, (GestureDispatchContext{3, profile, 42}));
    EXPECT_NE(context, (GestureDispatchContext{3, profile, std::nullopt}));
    EXPECT_NE(context, (GestureDispatchContext{2, profile, 42}));
}

}  // namespace
}  // namespace tactora
