#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "core/platform/TraceSink.h"
#include "core/trace/TraceFormat.h"
#include "core/trace/TraceRecorder.h"

namespace tactora {
namespace {

// Counts what it is given instead of keeping it.
class CountingSink final : public TraceSink {
  public:
    TraceSinkStart begin() override { return {"trace", {}}; }
    void write(std::string text) override {
        bytes += text.size();
        ++writes;
        last = std::move(text);
    }
    void end() override { ++ends; }

    std::size_t bytes = 0;
    std::size_t writes = 0;
    std::size_t ends = 0;
    std::string last;
};

// A line of about a megabyte.
TraceLine longLine(double time) {
    return {time, TraceFrontApplication{1, std::string(std::size_t{1} << 20U, 'x')}};
}

TEST(TraceRecorder, IdleItWritesNothing) {
    TraceRecorder recorder;
    EXPECT_FALSE(recorder.isRecording());
    EXPECT_FALSE(recorder.note({1.0, TraceFrame{}}));
    EXPECT_FALSE(recorder.expired(1e9));
    recorder.stop();
}

TEST(TraceRecorder, WritesTheHeaderThenOneLineAtATime) {
    CountingSink sink;
    TraceRecorder recorder;
    recorder.start(sink, 5.0);
    EXPECT_EQ(sink.last, "tactora-trace 3\n");
    EXPECT_TRUE(recorder.note({5.5, TraceGestures{true}}));
    EXPECT_EQ(sink.last, "5.5 gestures on\n");
    EXPECT_EQ(recorder.size(), sink.bytes);
    recorder.stop();
    EXPECT_EQ(sink.ends, 1U);
    EXPECT_FALSE(recorder.isRecording());
}

TEST(TraceRecorder, ALineStampedBeforeTheLastIsWrittenAtTheLastOnesTime) {
    CountingSink sink;
    TraceRecorder recorder;
    recorder.start(sink, 5.0);
    EXPECT_TRUE(recorder.note({6.25, TraceGestures{true}}));

    // The event tap's decision, stamped when it was made, told after a later frame.
    EXPECT_TRUE(recorder.note({6.0, TraceGestures{false}}));
    EXPECT_EQ(sink.last, "6.25 gestures off\n");
    EXPECT_TRUE(recorder.note({6.5, TraceGestures{true}}));
    EXPECT_EQ(sink.last, "6.5 gestures on\n");
}

TEST(TraceRecorder, RefusesLinesFromTenMinutesOn) {
    CountingSink sink;
    TraceRecorder recorder;
    recorder.start(sink, 100.0);
    EXPECT_TRUE(recorder.note({699.9, TraceFrame{}}));
    EXPECT_FALSE(recorder.expired(699.9));
    EXPECT_TRUE(recorder.expired(700.0));
    EXPECT_FALSE(recorder.note({700.0, TraceFrame{}}));
    EXPECT_EQ(sink.writes, 2U);
}

TEST(TraceRecorder, NeverGrowsPastFiftyMegabytes) {
    CountingSink sink;
    TraceRecorder recorder;
    recorder.start(sink, 0.0);
    double time = 0;
    while (recorder.note(longLine(time))) {
        time += 0.001;
    }
    EXPECT_LE(sink.bytes, TraceRecorder::largest);
    EXPECT_GT(sink.bytes + (std::size_t{1} << 20U) + 64, TraceRecorder::largest);
    EXPECT_TRUE(recorder.isRecording());  // the caller stops it
}

TEST(TraceRecorder, ASecondRecordingCountsFromItsOwnHeader) {
    CountingSink first;
    TraceRecorder recorder;
    recorder.start(first, 0.0);
    ASSERT_TRUE(recorder.note(longLine(1.0)));
    recorder.stop();
    CountingSink second;
    recorder.start(second, 10.0);
    EXPECT_EQ(recorder.size(), second.bytes);
    EXPECT_EQ(recorder.size(), std::string("tactora-trace 1\n").size());
    EXPECT_TRUE(recorder.note({10.5, TraceGestures{true}}));
    EXPECT_EQ(recorder.size(), second.bytes);
}

TEST(TraceRecorder, ALineThatEndsExactlyAtTheSizeCapIsKept) {
    CountingSink sink;
    TraceRecorder recorder;
    recorder.start(sink, 0.0);
    const std::size_t header = sink.bytes;
    // The line without its name, plus the name, plus the newline fill the file to the byte.
    // (A one-letter name's line is as long as the bare line with its newline.)
    const std::size_t frame = trace::formatLine({0.0, TraceFrontApplication{1, "x"}}).size();
    const std::size_t name = TraceRecorder::largest - header - frame;
    const TraceLine fits{0.0, TraceFrontApplication{1, std::string(name, 'x')}};
    ASSERT_TRUE(recorder.note(fits));
    EXPECT_EQ(sink.bytes, TraceRecorder::largest);
    EXPECT_EQ(sink.last.size(), frame + name);
    EXPECT_FALSE(recorder.note({0.0, TraceGestures{true}}));
    EXPECT_EQ(sink.bytes, TraceRecorder::largest);
}

}  // namespace
}  // namespace tactora
