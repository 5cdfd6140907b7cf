#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "core/trace/TraceFormat.h"
#include "core/trace/TraceNumbers.h"
#include "core/trace/TraceReader.h"

namespace tactora {
namespace {

TraceReading read(const std::string& body) {
    return readTrace("tactora-trace 1\n" + body);
}

TraceError errorOf(const std::string& body) {
    const TraceReading reading = read(body);
    EXPECT_TRUE(reading.lines.empty());
    return reading.error.value_or(TraceError{0, TraceProblem::header});
}

TEST(TraceFormat, WritesEveryEventAsDocumented) {
    EXPECT_EQ(trace::header(), "tactora-trace 3");
    EXPECT_EQ(trace::formatLine({1042.5, TraceFrame{{Finger(3, 0.5, 0.25), Finger(-1, 1, 0)}}}),
              "1042.5 frame 3:0.5,0.25 -1:1,0");
    EXPECT_EQ(trace::formatLine({1.0, TraceFrame{}}), "1.0 frame");
    EXPECT_EQ(trace::formatLine({2.25, TraceMouseEvent{event::rightMouseDragged, 1, false}}),
              "2.25 right-drag 1 other");
    EXPECT_EQ(trace::formatLine({2.25, TraceMouseEvent{event::scrollWheel, 0, true}}),
              "2.25 scroll mouse");
    EXPECT_EQ(
        trace::formatLine({3.0, TraceProfileSelected{"6F1C2A10-0000-4000-8000-00000000000A"}}),
        "3.0 profile 6F1C2A10-0000-4000-8000-00000000000A");
    EXPECT_EQ(trace::formatLine({4.0, TraceFrontApplication{812, "com.example.Editor"}}),
              "4.0 front 812 com.example.Editor");
    EXPECT_EQ(trace::formatLine({4.0, TraceFrontApplication{812, ""}}), "4.0 front 812 -");
    EXPECT_EQ(trace::formatLine({4.0, TraceFrontApplication{}}), "4.0 front none");
    EXPECT_EQ(trace::formatLine({5.0, TraceGestures{true}}), "5.0 gestures on");
    EXPECT_EQ(trace::formatLine({5.0, TraceActive{false}}), "5.0 active off");
    EXPECT_EQ(trace::formatLine({6.0, TraceDeviceUse{9, false}}), "6.0 use @9 off");
    EXPECT_EQ(trace::formatLine({6.0, TraceDeviceUse{9, true}}), "6.0 use @9 on");
}

TEST(TraceFormat, TimesAndPositionsReadBackExactly) {
    for (const double time : {0.0, 0.1, 1234.56789, 98765.123456789012, 1.0 / 3.0}) {
        const std::string text = trace::formatSeconds(time);
        EXPECT_EQ(text.find('e'), std::string::npos) << text;
        EXPECT_EQ(trace::parseSeconds(text), time) << text;
    }
    for (const float position : {0.0F, 0.1F, 0.123456789F, 1e-7F, -0.5F, 3.4e38F}) {
        EXPECT_EQ(trace::parsePosition(trace::formatPosition(position)), position);
    }
    EXPECT_EQ(trace::formatPosition(0.1F), "0.1");
    EXPECT_EQ(trace::formatPosition(std::numeric_limits<float>::infinity()), "inf");
    EXPECT_TRUE(std::isnan(*trace::parsePosition(trace::formatPosition(std::nanf("")))));
}

TEST(TraceFormat, RejectsNumbersNotWrittenAsTheFormatWritesThem) {
    for (const char* text : {"", "-1.0", "1e3", "0x10", "1.", ".5", "1.5.2", " 1", "inf", "nan"}) {
        EXPECT_FALSE(trace::parseSeconds(text)) << text;
    }
    for (const char* text : {"", "0x1p3", "1.", "+1", "1e", "infinity", "NaN", "0,5"}) {
        EXPECT_FALSE(trace::parsePosition(text)) << text;
    }
}

TEST(TraceReader, ReadsWhatTheWriterWrites) {
    const std::vector<TraceLine> lines = {
        {10.0, TraceGestures{true}},
        {10.0, TraceActive{false}},
        {10.0, TraceProfileSelected{"6F1C2A10-0000-4000-8000-00000000000A"}},
        {10.0, TraceFrontApplication{42, "com.example.Editor"}},
        {10.0111, TraceFrame{{Finger(1, 0.5, 0.5), Finger(2, 0.25F, 0.75F)}}},
        {10.02, TraceMouseEvent{event::leftMouseDown, 0, true}},
        {10.03, TraceMouseEvent{event::leftMouseDragged, 0, true}},
        {10.04, TraceMouseEvent{event::leftMouseUp, 0, true}},
        {10.05, TraceMouseEvent{event::rightMouseDown, 1, false}},
        {10.05, TraceMouseEvent{event::scrollWheel, 0, false}},
        {10.1, TraceFrame{}},
        {10.2, TraceFrontApplication{}},
    };
    std::string text = trace::header() + "\n";
    for (const TraceLine& line : lines) {
        text += trace::formatLine(line) + "\n";
    }
    const TraceReading reading = readTrace(text);
    EXPECT_FALSE(reading.error);
    EXPECT_EQ(reading.lines, lines);
}

TEST(TraceReader, SkipsCommentsAndBlankLinesAndTakesWindowsLineEnds) {
    const TraceReading reading =
        readTrace("tactora-trace 1\r\n# a comment\r\n\r\n   # indented\r\n1.5  frame   1:0.5,0.5");
    ASSERT_FALSE(reading.error);
    ASSERT_EQ(reading.lines.size(), 1U);
    EXPECT_EQ(reading.lines[0], (TraceLine{1.5, TraceFrame{{Finger(1, 0.5, 0.5)}}}));
}

TEST(TraceReader, SkipsAByteOrderMark) {
    const TraceReading reading = readTrace("\xEF\xBB\xBFtactora-trace 1\n1.0 frame\n");
    EXPECT_FALSE(reading.error);
    EXPECT_EQ(reading.lines.size(), 1U);
}

TEST(TraceReader, AnEmptyTraceIsOnlyItsHeader) {
    const TraceReading reading = readTrace("tactora-trace 1\n");
    EXPECT_FALSE(reading.error);
    EXPECT_TRUE(reading.lines.empty());
}

TEST(TraceReader, NamesTheHeaderWhenItIsMissingOrWrong) {
    for (const char* text :
         {"", "\n1.0 frame\n", "tactora-trace\n", "tactora-trace one\n", "tactora-trace 0\n",
          "tactora-trace 1 extra\n", "other-trace 1\n", "# tactora-trace 1\n"}) {
        const TraceReading reading = readTrace(text);
        EXPECT_EQ(reading.error, (TraceError{1, TraceProblem::header})) << text;
    }
}

TEST(TraceReader, RefusesAVersionNewerThanItKnows) {
    EXPECT_EQ(readTrace("tactora-trace 4\n1.0 frame\n").error,
              (TraceError{1, TraceProblem::version}));
}

TEST(TraceReader, ReadsTheUseOfADeviceBackAsWritten) {
    const std::vector<TraceLine> lines = {
        {1.0, TraceDevice{9, TraceDeviceKind::magicTrackpad, "Magic Trackpad"}},
        {2.0, TraceDeviceUse{9, false}},
        {2.5, TraceFrame{{Finger(1, 0.5, 0.5)}, {}, 9}},
        {3.0, TraceDeviceUse{9, true}},
    };
    std::string text = trace::header() + "\n";
    for (const TraceLine& line : lines) {
        text += trace::formatLine(line) + "\n";
    }
    const TraceReading reading = readTrace(text);
    ASSERT_FALSE(reading.error) << describeTraceError(*reading.error);
    EXPECT_EQ(reading.lines, lines);
}

TEST(TraceReader, TakesUseLinesFromTheThirdVersionOnAndReadsEarlierOnesAsBefore) {
    const std::string body = "1.0 device 9 magic-trackpad T\n2.0 use @9 off\n";
    EXPECT_FALSE(readTrace("tactora-trace 3\n" + body).error);
    EXPECT_EQ(readTrace("tactora-trace 2\n" + body).error, (TraceError{3, TraceProblem::event}));
    EXPECT_EQ(readTrace("tactora-trace 1\n" + body).error, (TraceError{3, TraceProblem::event}));
    const TraceReading earlier = readTrace(
        "tactora-trace 2\n1.0 device 9 magic-trackpad T\n"
        "1.5 frame @9 1:0.5,0.5\n1.6 left-down 0 @9\n");
    ASSERT_FALSE(earlier.error);
    EXPECT_EQ(std::get<TraceFrame>(earlier.lines.at(1).event).device, 9U);
    EXPECT_EQ(std::get<TraceMouseEvent>(earlier.lines.at(2).event).device, 9U);
}

TEST(TraceReader, NamesWhatIsWrongWithAUseLine) {
    const auto errorIn = [](const std::string& body) {
        return readTrace("tactora-trace 3\n1.0 device 9 magic-trackpad T\n" + body).error;
    };
    EXPECT_EQ(errorIn("2.0 use\n"), (TraceError{3, TraceProblem::unknownDevice}));
    EXPECT_EQ(errorIn("2.0 use @8 off\n"), (TraceError{3, TraceProblem::unknownDevice}));
    EXPECT_EQ(errorIn("2.0 use 9 off\n"), (TraceError{3, TraceProblem::unknownDevice}));
    EXPECT_EQ(errorIn("2.0 use @9\n"), (TraceError{3, TraceProblem::onOff}));
    EXPECT_EQ(errorIn("2.0 use @9 maybe\n"), (TraceError{3, TraceProblem::onOff}));
    EXPECT_EQ(errorIn("2.0 use @9 on now\n"), (TraceError{3, TraceProblem::extra}));
}

TEST(TraceReader, NamesTheLineAndTheProblem) {
    EXPECT_EQ(errorOf("frame\n"), (TraceError{2, TraceProblem::time}));
    EXPECT_EQ(errorOf("# c\n1.0 frame\n-1.0 frame\n"), (TraceError{4, TraceProblem::time}));
    EXPECT_EQ(errorOf("2.0 frame\n1.0 frame\n"), (TraceError{3, TraceProblem::timeBack}));
    EXPECT_EQ(errorOf("1.0\n"), (TraceError{2, TraceProblem::event}));
    EXPECT_EQ(errorOf("1.0 wave\n"), (TraceError{2, TraceProblem::event}));
    EXPECT_EQ(errorOf("1.0 frame 1:0.5\n"), (TraceError{2, TraceProblem::contact}));
    EXPECT_EQ(errorOf("1.0 frame 1,0.5:0.5\n"), (TraceError{2, TraceProblem::contact}));
    EXPECT_EQ(errorOf("1.0 frame x:0.5,0.5\n"), (TraceError{2, TraceProblem::contact}));
    EXPECT_EQ(errorOf("1.0 frame 1:0.5,0.5,\n"), (TraceError{2, TraceProblem::contact}));
    EXPECT_EQ(errorOf("1.0 left-down mouse\n"), (TraceError{2, TraceProblem::button}));
    EXPECT_EQ(errorOf("1.0 left-down 0\n"), (TraceError{2, TraceProblem::source}));
    EXPECT_EQ(errorOf("1.0 left-up 0 pen\n"), (TraceError{2, TraceProblem::source}));
    EXPECT_EQ(errorOf("1.0 scroll\n"), (TraceError{2, TraceProblem::source}));
    EXPECT_EQ(errorOf("1.0 profile Default\n"), (TraceError{2, TraceProblem::profile}));
    EXPECT_EQ(errorOf("1.0 front\n"), (TraceError{2, TraceProblem::process}));
    EXPECT_EQ(errorOf("1.0 front 42\n"), (TraceError{2, TraceProblem::process}));
    EXPECT_EQ(errorOf("1.0 front 99999999999 x\n"), (TraceError{2, TraceProblem::process}));
    EXPECT_EQ(errorOf("1.0 gestures yes\n"), (TraceError{2, TraceProblem::onOff}));
    EXPECT_EQ(errorOf("1.0 active\n"), (TraceError{2, TraceProblem::onOff}));
    EXPECT_EQ(errorOf("1.0 scroll mouse now\n"), (TraceError{2, TraceProblem::extra}));
    EXPECT_EQ(errorOf("1.0 front none x\n"), (TraceError{2, TraceProblem::extra}));
}

std::string frameOf(std::size_t contacts) {
    std::string line = "1.0 frame";
    for (std::size_t id = 1; id <= contacts; ++id) {
        line += ' ' + std::to_string(id) + ":0.5,0.5";
    }
    return line + '\n';
}

TEST(TraceReader, AFrameHoldsAsManyContactsAsTheLivePathPassesOn) {
    const TraceReading full = read(frameOf(TraceFrame::mostContacts));
    ASSERT_FALSE(full.error);
    EXPECT_EQ(std::get<TraceFrame>(full.lines.at(0).event).fingers.size(),
              TraceFrame::mostContacts);
    EXPECT_EQ(errorOf("# one more\n" + frameOf(TraceFrame::mostContacts + 1)),
              (TraceError{3, TraceProblem::crowded}));
    EXPECT_EQ(errorOf(frameOf(1000)), (TraceError{2, TraceProblem::crowded}));
}

TEST(TraceReader, SaysWhenAContactIdIsBeyondTheSixtyFourBitRange) {
    EXPECT_FALSE(read("1.0 frame 9223372036854775807:0.5,0.5 -9223372036854775808:0,0\n").error);
    EXPECT_EQ(errorOf("1.0 frame 9223372036854775808:0.5,0.5\n"),
              (TraceError{2, TraceProblem::contactID}));
    EXPECT_EQ(errorOf("1.0 frame 1:0,0 -99999999999999999999999:0.5,0.5\n"),
              (TraceError{2, TraceProblem::contactID}));
    EXPECT_EQ(errorOf("1.0 frame 1e3:0.5,0.5\n"), (TraceError{2, TraceProblem::contact}));
}

// Whatever the reader takes, the writer writes so that it reads back to the same values.
TEST(TraceReader, ATinyTimeIsWrittenSoThatItReadsBackTheSame) {
    const std::string tiny = "0.0000000000000000000000002104362927";
    const TraceReading first = read(tiny + " gestures on\n");
    ASSERT_FALSE(first.error);
    const std::string written = trace::formatLine(first.lines.at(0));
    EXPECT_EQ(written.substr(0, written.find(' ')).find('e'), std::string::npos) << written;
    const TraceReading again = read(written + '\n');
    ASSERT_FALSE(again.error) << written;
    EXPECT_EQ(again.lines, first.lines);
}

TEST(TraceFormat, EveryTimeTheReaderTakesIsWrittenBackExactly) {
    for (const char* text : {"0.0000000000000000000000002104362927", "0.1", "0",
                             "0.00000000000000000000000000000000000000000000000000000000000001",
                             "9007199254740991", "9007199254740990.25", "4503599627370495.75",
                             "123456789.123456789123456789", "0000000000000000000000000001.5"}) {
        const std::optional<double> seconds = trace::parseSeconds(text);
        ASSERT_TRUE(seconds) << text;
        const std::string written = trace::formatSeconds(*seconds);
        EXPECT_EQ(trace::parseSeconds(written), seconds) << text << " became " << written;
    }
}

TEST(TraceFormat, TimesEndBelowTwoToTheFiftyThird) {
    EXPECT_FALSE(trace::parseSeconds("9007199254740992"));
    EXPECT_FALSE(
        trace::parseSeconds("100000000000000000000000000000000000000000000000000000000000"));
    EXPECT_EQ(errorOf("9007199254740992.0 frame\n"), (TraceError{2, TraceProblem::time}));
}

TEST(TraceFormat, WritesDevicesAndShapesOnlyWhereALineHasThem) {
    const ContactShape palm{3.5F, 1.25F, 18.5F, 11.0F};
    EXPECT_EQ(trace::formatLine(
                  {1.0, TraceDevice{7, TraceDeviceKind::magicTrackpad, "Magic Trackpad 2"}}),
              "1.0 device 7 magic-trackpad Magic Trackpad 2");
    EXPECT_EQ(trace::formatLine({1.0, TraceDevice{0, TraceDeviceKind::builtInTrackpad, ""}}),
              "1.0 device 0 built-in-trackpad -");
    EXPECT_EQ(trace::formatLine({1.0, TraceDevice{1, TraceDeviceKind::other, " two\nlines "}}),
              "1.0 device 1 other two lines");
    EXPECT_EQ(trace::formatLine({1.0, TraceDevice{2, TraceDeviceKind::magicMouse, "Mouse"}}),
              "1.0 device 2 magic-mouse Mouse");
    EXPECT_EQ(trace::formatLine({2.0, TraceFrame{{Finger(1, 0.5, 0.25), Finger(2, 0.75, 0.5)},
                                                 {std::nullopt, palm},
                                                 7}}),
              "2.0 frame @7 1:0.5,0.25 2:0.75,0.5/3.5,1.25,18.5,11");
    EXPECT_EQ(trace::formatLine({2.0, TraceFrame{{}, {}, 7}}), "2.0 frame @7");
    EXPECT_EQ(trace::formatLine({3.0, TraceMouseEvent{event::leftMouseDown, 0, true, 7}}),
              "3.0 left-down 0 @7");
    EXPECT_EQ(trace::formatLine({3.0, TraceMouseEvent{event::scrollWheel, 0, true, 7}}),
              "3.0 scroll @7");
}

TEST(TraceReader, ReadsDevicesAndShapesBackAsWritten) {
    const std::vector<TraceLine> lines = {
        {1.0, TraceDevice{7, TraceDeviceKind::magicTrackpad, "Magic Trackpad"}},
        {1.0, TraceDevice{18446744073709551615ULL, TraceDeviceKind::magicMouse, "Mouse"}},
        {1.5, TraceFrame{{Finger(1, 0.5, 0.5)}, {ContactShape{0.75F, -0.5F, 9.25F, 8.0F}}, 7}},
        {1.6, TraceFrame{{Finger(1, 0.5, 0.5), Finger(4, 0.25, 0.125)},
                         {std::nullopt, ContactShape{2, 0, 20, 12}},
                         18446744073709551615ULL}},
        {1.7, TraceMouseEvent{event::rightMouseUp, 1, true, 7}},
        {1.8, TraceFrame{{}, {}, 7}},
    };
    std::string text = trace::header() + "\n";
    for (const TraceLine& line : lines) {
        text += trace::formatLine(line) + "\n";
    }
    const TraceReading reading = readTrace(text);
    EXPECT_FALSE(reading.error);
    EXPECT_EQ(reading.lines, lines);
}

TEST(TraceReader, ReadsAFirstVersionTraceAsTheMagicMouseWithoutShapes) {
    const TraceReading reading =
        readTrace("tactora-trace 1\n1.0 frame 1:0.5,0.5\n1.1 left-down 0 mouse\n");
    ASSERT_FALSE(reading.error);
    ASSERT_EQ(reading.lines.size(), 2U);
    const auto& frame = std::get<TraceFrame>(reading.lines[0].event);
    EXPECT_FALSE(frame.device);
    EXPECT_TRUE(frame.shapes.empty());
    const auto& mouse = std::get<TraceMouseEvent>(reading.lines[1].event);
    EXPECT_TRUE(mouse.fromMouse);
    EXPECT_FALSE(mouse.device);
}

TEST(TraceReader, ShapesAreKeptPerContactInFrameOrder) {
    const TraceReading reading =
        readTrace("tactora-trace 2\n1.0 frame 1:0.5,0.5/1,2,3,4 2:0.5,0.5 3:0.5,0.5\n");
    ASSERT_FALSE(reading.error);
    const auto& frame = std::get<TraceFrame>(reading.lines.at(0).event);
    ASSERT_EQ(frame.shapes.size(), 3U);
    EXPECT_EQ(frame.shapes[0], (ContactShape{1, 2, 3, 4}));
    EXPECT_FALSE(frame.shapes[1]);
    EXPECT_FALSE(frame.shapes[2]);
}

// The writer never puts a tab or a carriage return inside a word, so they separate words.
TEST(TraceReader, TabsAndCarriageReturnsSeparateWords) {
    const TraceReading reading =
        readTrace("tactora-trace 1\n1.0\tfront 852 com.example.Mail\r\n2.0 front 9 a\tb\n");
    ASSERT_TRUE(reading.error);
    EXPECT_EQ(*reading.error, (TraceError{3, TraceProblem::extra}));
    const TraceReading first = readTrace("tactora-trace 1\n1.0\tfront 852 com.example.Mail\r\n");
    ASSERT_FALSE(first.error);
    EXPECT_EQ(std::get<TraceFrontApplication>(first.lines.at(0).event).bundleID,
              "com.example.Mail");
}

TEST(TraceReader, ADeviceNameIsTheRestOfTheLine) {
    const TraceReading reading = readTrace(
        "tactora-trace 2\n1.0 device 3 magic-mouse   Anna’s  Mouse  \r\n1.0 device 4 other -\n");
    ASSERT_FALSE(reading.error);
    EXPECT_EQ(std::get<TraceDevice>(reading.lines.at(0).event).name, "Anna’s  Mouse");
    EXPECT_EQ(std::get<TraceDevice>(reading.lines.at(1).event).name, "");
}

TEST(TraceReader, NamesWhatIsWrongWithDevicesAndShapes) {
    const std::string declared = "1.0 device 7 magic-mouse Mouse\n";
    EXPECT_EQ(errorOf("1.0 device\n"), (TraceError{2, TraceProblem::device}));
    EXPECT_EQ(errorOf("1.0 device x magic-mouse M\n"), (TraceError{2, TraceProblem::device}));
    EXPECT_EQ(errorOf("1.0 device -1 magic-mouse M\n"), (TraceError{2, TraceProblem::device}));
    EXPECT_EQ(errorOf("1.0 device 1 pen M\n"), (TraceError{2, TraceProblem::device}));
    EXPECT_EQ(errorOf("1.0 device 1 magic-mouse\n"), (TraceError{2, TraceProblem::device}));
    // Control characters are refused: written back, a carriage return would become a space.
    EXPECT_EQ(errorOf("1.0 device 1 magic-mouse A\rB\n"), (TraceError{2, TraceProblem::device}));
    EXPECT_EQ(errorOf(std::string("1.0 device 1 magic-mouse A\0B\n", 29)),
              (TraceError{2, TraceProblem::device}));
    EXPECT_EQ(errorOf("1.0 device 1 magic-mouse A\x7f\n"), (TraceError{2, TraceProblem::device}));
    EXPECT_EQ(errorOf("1.0 frame @7 1:0.5,0.5\n"), (TraceError{2, TraceProblem::unknownDevice}));
    EXPECT_EQ(errorOf(declared + "1.0 frame @8\n"), (TraceError{3, TraceProblem::unknownDevice}));
    EXPECT_EQ(errorOf(declared + "1.0 frame @\n"), (TraceError{3, TraceProblem::unknownDevice}));
    EXPECT_EQ(errorOf(declared + "1.0 left-down 0 @8\n"),
              (TraceError{3, TraceProblem::unknownDevice}));
    EXPECT_EQ(errorOf(declared + "1.0 scroll @x\n"), (TraceError{3, TraceProblem::unknownDevice}));
    EXPECT_EQ(errorOf(declared + "1.0 frame 1:0.5,0.5 @7\n"),
              (TraceError{3, TraceProblem::contact}));
    EXPECT_EQ(errorOf(declared + "1.0 scroll @7 mouse\n"), (TraceError{3, TraceProblem::extra}));
    for (const char* contact : {"1:0.5,0.5/", "1:0.5,0.5/1,2,3", "1:0.5,0.5/1,2,3,4,5",
                                "1:0.5,0.5/1,2,,4", "1:0.5,0.5/1,2,3,x", "1:0.5,0.5/1/2"}) {
        EXPECT_EQ(errorOf(std::string("1.0 frame ") + contact + "\n"),
                  (TraceError{2, TraceProblem::contact}))
            << contact;
    }
}

TEST(TraceReader, ADeviceMayBeDeclaredAgain) {
    const TraceReading reading = readTrace(
        "tactora-trace 2\n1.0 device 7 magic-mouse A\n2.0 device 7 other B\n3.0 frame @7\n");
    ASSERT_FALSE(reading.error);
    EXPECT_EQ(reading.lines.size(), 3U);
}

}  // namespace
}  // namespace tactora
