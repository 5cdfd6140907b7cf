#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "core/score/LabelFile.h"

namespace tactora {
namespace {

TEST(LabelFile, WritesEveryMeaningAsDocumented) {
    EXPECT_EQ(labels::formatLine({1.5, 1.625, TouchIntent::tap, 2}), "1.5 1.625 tap 2");
    EXPECT_EQ(labels::formatLine({3.0, 3.5, TouchIntent::click, 1}), "3.0 3.5 click 1");
    EXPECT_EQ(labels::formatLine({4.0, 4.25, TouchIntent::accident, 0, AccidentKind::clickLift}),
              "4.0 4.25 accident click-lift");
}

TEST(LabelFile, ReadsWhatItWrites) {
    std::vector<TouchLabel> written = {{1.5, 1.625, TouchIntent::tap, 4},
                                       {3.0, 3.5, TouchIntent::click, 3}};
    for (const AccidentKind kind :
         {AccidentKind::palm, AccidentKind::thumb, AccidentKind::scroll, AccidentKind::scrollGraze,
          AccidentKind::reposition, AccidentKind::clickLift, AccidentKind::drumming,
          AccidentKind::pickUp}) {
        written.push_back({5.0, 6.0, TouchIntent::accident, 0, kind});
    }
    const labels::Reading reading = labels::read(labels::write(written));
    EXPECT_FALSE(reading.errorLine);
    EXPECT_EQ(reading.labels, written);
}

TEST(LabelFile, ReadsAndWritesTheFurtherGesturesByTheirSlotsNames) {
    TouchLabel swipe{1.5, 1.75, TouchIntent::gesture};
    swipe.slot = MoreGestureSlot::swipe2Up;
    EXPECT_EQ(labels::formatLine(swipe), "1.5 1.75 gesture swipe.2.up");
    std::vector<TouchLabel> written;
    for (std::size_t index = 0; index < moreslot::count; ++index) {
        TouchLabel label{2.0, 2.5, TouchIntent::gesture};
        label.slot = static_cast<MoreGestureSlot>(index);
        written.push_back(label);
    }
    for (const AccidentKind kind :
         {AccidentKind::shortScroll, AccidentKind::restingFinger, AccidentKind::restAfterTap}) {
        written.push_back({5.0, 6.0, TouchIntent::accident, 0, kind});
    }
    const labels::Reading reading = labels::read(labels::write(written));
    EXPECT_FALSE(reading.errorLine);
    EXPECT_EQ(reading.labels, written);
    EXPECT_EQ(labels::read("tactora-labels 1\n1.0 2.0 accident resting-finger\n").labels,
              (std::vector<TouchLabel>{
                  {1.0, 2.0, TouchIntent::accident, 0, AccidentKind::restingFinger}}));
}

TEST(LabelFile, RefusesAFurtherGestureItDoesNotKnow) {
    for (const char* line : {"1.0 2.0 gesture swipe.4.up", "1.0 2.0 gesture", "1.0 2.0 gesture 1",
                             "1.0 2.0 gesture tapHold 1", "1.0 2.0 gesture Tap.Left",
                             "1.0 2.0 accident short-scrolls", "1.0 2.0 gestures tap.left"}) {
        const labels::Reading reading =
            labels::read(std::string("tactora-labels 1\n1.0 1.5 tap 1\n") + line + "\n");
        EXPECT_EQ(reading.errorLine, 3U) << line;
        EXPECT_TRUE(reading.labels.empty()) << line;
    }
}

TEST(LabelFile, SkipsCommentsAndBlankLines) {
    const labels::Reading reading =
        labels::read("tactora-labels 1\r\n# what the hand meant\n\n  2.0  2.1  tap 1\n");
    ASSERT_FALSE(reading.errorLine);
    EXPECT_EQ(reading.labels, (std::vector<TouchLabel>{{2.0, 2.1, TouchIntent::tap, 1}}));
}

TEST(LabelFile, NamesTheFirstWrongLine) {
    EXPECT_EQ(labels::read("").errorLine, 1U);
    EXPECT_EQ(labels::read("tactora-trace 2\n").errorLine, 1U);
    for (const char* line :
         {"1.0 2.0 tap 5", "1.0 2.0 tap 0", "1.0 2.0 tap", "2.0 1.0 tap 1", "1.0 2.0 swipe 1",
          "1.0 2.0 accident sneeze", "1.0 2.0 click 1 extra", "x 2.0 click 1", "1.0 2.0 tap +1"}) {
        const labels::Reading reading =
            labels::read(std::string("tactora-labels 1\n1.0 1.5 tap 1\n") + line + "\n");
        EXPECT_EQ(reading.errorLine, 3U) << line;
        EXPECT_TRUE(reading.labels.empty()) << line;
    }
}

}  // namespace
}  // namespace tactora
