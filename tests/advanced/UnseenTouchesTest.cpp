#include "core/advanced/UnseenTouches.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace tactora {
namespace {

using Shapes = std::vector<std::optional<ContactShape>>;

MisfireOptions withEdgeBands() {
    MisfireOptions options;
    options.edgeBands = MisfireOptions::defaultEdgeBands;
    return options;
}

TEST(UnseenTouchesTest, WithoutOptionsEveryTouchIsSeen) {
    UnseenTouches unseen;
    const std::vector<Finger> edge{Finger(1, 0.01, 0.5)};

    EXPECT_FALSE(unseen.frame(edge, {}, MisfireOptions::none()));
    EXPECT_FALSE(unseen.frame({}, {}, MisfireOptions::none()));
}

TEST(UnseenTouchesTest, ATouchOnlyInAnEdgeBandIsUnseenForThatReason) {
    UnseenTouches unseen;
    const std::vector<Finger> edge{Finger(1, 0.01, 0.5)};

    EXPECT_FALSE(unseen.frame(edge, {}, withEdgeBands()));
    EXPECT_FALSE(unseen.frame(edge, {}, withEdgeBands()));
    EXPECT_EQ(unseen.frame({}, {}, withEdgeBands()), DropReason::edgeBand);
}

TEST(UnseenTouchesTest, AContactKeptBesideItMakesTheTouchSeen) {
    UnseenTouches unseen;
    const std::vector<Finger> both{Finger(1, 0.01, 0.5), Finger(2, 0.5, 0.5)};

    (void)unseen.frame(both, {}, withEdgeBands());

    EXPECT_FALSE(unseen.frame({}, {}, withEdgeBands()));
}

TEST(UnseenTouchesTest, AContactIsJudgedWhereItLandedNotWhereItWent) {
    UnseenTouches unseen;

    (void)unseen.frame(std::vector{Finger(1, 0.5, 0.5)}, {}, withEdgeBands());
    (void)unseen.frame(std::vector{Finger(1, 0.01, 0.5)}, {}, withEdgeBands());

    EXPECT_FALSE(unseen.frame({}, {}, withEdgeBands()));
}

TEST(UnseenTouchesTest, APalmAloneIsUnseenWhileOnlyFingertipsCount) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    UnseenTouches unseen;
    const std::vector<Finger> palm{Finger(1, 0.5, 0.2)};

    (void)unseen.frame(palm, Shapes{ContactShape{.size = 4.0F}}, options);

    EXPECT_EQ(unseen.frame({}, {}, options), DropReason::largeContact);
}

TEST(UnseenTouchesTest, AFingertipIsSeenWhileOnlyFingertipsCount) {
    MisfireOptions options;
    options.fingertipsOnly = true;
    UnseenTouches unseen;

    (void)unseen.frame(std::vector{Finger(1, 0.5, 0.5)}, Shapes{ContactShape{.size = 0.9F}},
                       options);

    EXPECT_FALSE(unseen.frame({}, {}, options));
}

}  // namespace
}  // namespace tactora
