#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/score/TouchLabel.h"

// The labels of a trace, in a file beside it (NAME.labels beside NAME.trace): plain UTF-8 text,
// one touch per line.
//
//   tactora-labels 1                  the first line: the format's name and version
//   # anything                        a comment; comments and blank lines are skipped
//   <start> <end> tap <fingers>       an intended tap with 1 to 4 fingers
//   <start> <end> click <fingers>     an intended physical click with 1 to 4 fingers resting
//   <start> <end> accident <kind>     a touch not meant as a gesture (see TouchLabel.h)
//   <start> <end> gesture <slot>      an intended gesture beyond the taps and clicks, by its
//                                     slot's stored name ("tap.left", "swipe.2.up", "tapHold")
//
// <start> and <end> are seconds on the trace's clock, written as the trace writes times, with
// <end> not before <start>. Lines may come in any order. Pure; any thread.
namespace tactora::labels {

inline constexpr std::string_view formatName = "tactora-labels";
inline constexpr int formatVersion = 1;

// "tactora-labels 1".
std::string header();

// One label's line, without the line break.
std::string formatLine(const TouchLabel& label);

// The whole file: the header, then one line per label.
std::string write(const std::vector<TouchLabel>& labels);

// The labels read, or the number of the first line that is wrong (lines count from 1).
struct Reading {
    std::vector<TouchLabel> labels;  // empty when there is an error
    std::optional<std::size_t> errorLine;
};
Reading read(std::string_view text);

}  // namespace tactora::labels
