#include "core/gestures/FingerOrigins.h"

#include <gtest/gtest.h>

#include <cstdint>

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

TEST(FingerOrigins, IdsBeyondTheListAreFoundAndComparedAlike) {
    FingerOrigins origins;
    const auto count = static_cast<std::int64_t>(FingerOrigins::listed) * 3;
    for (std::int64_t id = 0; id < count; ++id) {
        origins.insert(id * 1000, {static_cast<double>(id), 0.5});
    }
    EXPECT_EQ(origins.size(), static_cast<std::size_t>(count));
    EXPECT_EQ(origins.listedSize(), FingerOrigins::listed);
    for (std::int64_t id = 0; id < count; ++id) {
        ASSERT_NE(origins.find(id * 1000), nullptr) << id;
        EXPECT_EQ(origins.find(id * 1000)->x, static_cast<double>(id));
    }
    EXPECT_EQ(origins.find(1), nullptr);

    // The same set inserted the other way round holds other ids in its list.
    FingerOrigins reversed;
    for (std::int64_t id = count - 1; id >= 0; --id) {
        reversed.insert(id * 1000, {static_cast<double>(id), 0.5});
    }
    EXPECT_EQ(origins, reversed);
    reversed.clear();
    EXPECT_TRUE(reversed.empty());
    EXPECT_EQ(reversed.size(), 0U);
    EXPECT_EQ(reversed.find(0), nullptr);
}

}  // namespace
}  // namespace tactora
