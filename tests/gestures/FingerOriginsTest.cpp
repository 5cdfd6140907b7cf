#include "core/gestures/FingerOrigins.h"

#include <gtest/gtest.h>

namespace tactora {
namespace {

TEST(FingerOrigins, FindsOnlyInsertedIds) {
    FingerOrigins origins;
    EXPECT_EQ(origins.find(7), nullptr);
    origins.insert(7, {0.25, 0.75});
    ASSERT_NE(origins.find(7), nullptr);
    EXPECT_EQ(*origins.find(7), (FingerOrigins::Origin{0.25, 0.75}));
    EXPECT_EQ(origins.find(8), nullptr);
    EXPECT_EQ(origins.size(), 1U);
}

TEST(FingerOrigins, EqualityIgnoresInsertionOrder) {
    FingerOrigins first;
    first.insert(1, {0.1, 0.2});
    first.insert(2, {0.3, 0.4});
    FingerOrigins second;
    second.insert(2, {0.3, 0.4});
    second.insert(1, {0.1, 0.2});
    EXPECT_EQ(first, second);
}

TEST(FingerOrigins, EqualityComparesPositionsAndIds) {
    FingerOrigins first;
    first.insert(1, {0.1, 0.2});
    FingerOrigins otherPosition;
    otherPosition.insert(1, {0.1, 0.3});
    FingerOrigins otherID;
    otherID.insert(2, {0.1, 0.2});
    EXPECT_NE(first, otherPosition);
    EXPECT_NE(first, otherID);
    EXPECT_NE(first, FingerOrigins());
}

TEST(FingerOrigins, EqualityIgnoresReservedCapacity) {
    FingerOrigins used;
    for (int id = 0; id < 16; ++id) {
        used.insert(id, {});
    }
    used.clear();
    EXPECT_EQ(used, FingerOrigins());
}

}  // namespace
}  // namespace tactora
