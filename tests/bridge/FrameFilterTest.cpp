#include "bridge/FrameFilter.h"

#include <gtest/gtest.h>

#include <vector>

#include "bridge/RawFrame.h"

namespace tactora::testing {
namespace {

struct Filtered {
    bool delivered;
    TAFrame frame;
};

Filtered filter(const void* contacts, std::int32_t count) {
    Filtered result{};
    result.frame.count = -1;
    result.delivered = TAFilterFrame(contacts, count, &result.frame);
    return result;
}

Filtered filter(const RawFrame& raw) {
    return filter(raw.data(), raw.count());
}

std::vector<std::int32_t> ids(const TAFrame& frame) {
    return {frame.ids, frame.ids + frame.count};
}

TEST(FrameFilter, FrameWith33ContactsIsIgnoredEntirely) {
    EXPECT_FALSE(filter(RawFrame(touchingContacts(33))).delivered);
}

TEST(FrameFilter, FrameWithExactly32ContactsIsProcessed) {
    std::vector<RawContact> contacts = touchingContacts(32, kHovering);
    contacts[31].state = kTouching;

    Filtered result = filter(RawFrame(contacts));

    ASSERT_TRUE(result.delivered);
    EXPECT_EQ(ids(result.frame), std::vector<std::int32_t>{31});
}

TEST(FrameFilter, OnlyTheFirst16TouchingContactsArePassedOnInRecordOrder) {
    std::vector<RawContact> contacts = touchingContacts(20);
    contacts[2].state = kLifting;
    contacts[5].state = kPressing;

    Filtered result = filter(RawFrame(contacts));

    ASSERT_TRUE(result.delivered);
    EXPECT_EQ(ids(result.frame),
              (std::vector<std::int32_t>{0, 1, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}));
}

TEST(FrameFilter, ContactsInStatesOtherThan3And4AreSkipped) {
    std::vector<RawContact> contacts;
    for (std::int32_t state = -1; state <= 8; ++state) {
        contacts.push_back({100 + state, state, 0.5f, 0.5f});
    }

    Filtered result = filter(RawFrame(contacts));

    ASSERT_TRUE(result.delivered);
    EXPECT_EQ(ids(result.frame), (std::vector<std::int32_t>{103, 104}));
}

TEST(FrameFilter, FrameWhoseContactsAllLiftIsDeliveredAsCountZero) {
    Filtered result = filter(RawFrame(touchingContacts(3, kLifting)));

    ASSERT_TRUE(result.delivered);
    EXPECT_EQ(result.frame.count, 0);
}

TEST(FrameFilter, NullContactsWithNonZeroCountIsDropped) {
    EXPECT_FALSE(filter(nullptr, 1).delivered);
    EXPECT_FALSE(filter(nullptr, -1).delivered);
}

TEST(FrameFilter, NullContactsWithZeroCountIsDeliveredAsCountZero) {
    Filtered result = filter(nullptr, 0);

    ASSERT_TRUE(result.delivered);
    EXPECT_EQ(result.frame.count, 0);
}

TEST(FrameFilter, NegativeCountCarriesNoContacts) {
    RawFrame raw(touchingContacts(2));

    Filtered result = filter(raw.data(), -5);

    ASSERT_TRUE(result.delivered);
    EXPECT_EQ(result.frame.count, 0);
}

TEST(FrameFilter, CopiesIdentifierAndPositionOfUnalignedRecords) {
    RawFrame raw({{7, kHovering, 0.9f, 0.9f}, {-42, kTouching, 0.25f, 0.75f}}, 3);

    Filtered result = filter(raw);

    ASSERT_TRUE(result.delivered);
    ASSERT_EQ(result.frame.count, 1);
    EXPECT_EQ(result.frame.ids[0], -42);
    EXPECT_FLOAT_EQ(result.frame.xs[0], 0.25f);
    EXPECT_FLOAT_EQ(result.frame.ys[0], 0.75f);
}

TEST(FrameFilter, CopiesEachTouchingContactsShapeBesideItsPosition) {
    RawContact palm{5, kPressing, 0.5f, 0.2f};
    palm.size = 4.5f;
    palm.angle = 1.25f;
    palm.majorAxis = 25.0f;
    palm.minorAxis = 16.0f;
    RawFrame raw({{1, kHovering, 0.1f, 0.1f}, palm}, 1);

    Filtered result = filter(raw);

    ASSERT_EQ(result.frame.count, 1);
    EXPECT_FLOAT_EQ(result.frame.shapes[0], 4.5f);
    EXPECT_FLOAT_EQ(result.frame.shapes[1], 1.25f);
    EXPECT_FLOAT_EQ(result.frame.shapes[2], 25.0f);
    EXPECT_FLOAT_EQ(result.frame.shapes[3], 16.0f);
}

}  // namespace
}  // namespace tactora::testing
