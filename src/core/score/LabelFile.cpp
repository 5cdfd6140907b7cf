#include "core/score/LabelFile.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <system_error>

#include "core/trace/TraceNumbers.h"

namespace tactora::labels {

namespace {

// The words of a line, separated by one or more spaces.
std::vector<std::string_view> words(std::string_view line) {
    std::vector<std::string_view> result;
    while (true) {
        const std::size_t start = line.find_first_not_of(' ');
        if (start == std::string_view::npos) {
            return result;
        }
        line.remove_prefix(start);
        const std::size_t end = std::min(line.find(' '), line.size());
        result.push_back(line.substr(0, end));
        line.remove_prefix(end);
    }
}

std::optional<std::int64_t> fingerCount(std::string_view text) {
    std::int64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || error != std::errc() || stop != end || value < 1 || value > 4) {
        return std::nullopt;
    }
    return value;
}

std::optional<TouchLabel> parseLabel(std::string_view line) {
    const std::vector<std::string_view> parts = words(line);
    if (parts.size() != 4) {
        return std::nullopt;
    }
    const std::optional<double> start = trace::parseSeconds(parts[0]);
    const std::optional<double> end = trace::parseSeconds(parts[1]);
    if (!start || !end || *end < *start) {
        return std::nullopt;
    }
    TouchLabel label{*start, *end};
    if (parts[2] == "accident") {
        const std::optional<AccidentKind> kind = accidentFromWord(parts[3]);
        if (!kind) {
            return std::nullopt;
        }
        label.intent = TouchIntent::accident;
        label.accident = *kind;
        return label;
    }
    if (parts[2] == "gesture") {
        const std::optional<MoreGestureSlot> slot = moreslot::named(parts[3]);
        if (!slot) {
            return std::nullopt;
        }
        label.intent = TouchIntent::gesture;
        label.slot = *slot;
        return label;
    }
    const std::optional<std::int64_t> fingers = fingerCount(parts[3]);
    if (!fingers || (parts[2] != "tap" && parts[2] != "click")) {
        return std::nullopt;
    }
    label.intent = parts[2] == "tap" ? TouchIntent::tap : TouchIntent::click;
    label.fingers = *fingers;
    return label;
}

bool isSkipped(std::string_view line) {
    const std::size_t start = line.find_first_not_of(' ');
    return start == std::string_view::npos || line[start] == '#';
}

}  // namespace

std::string header() {
    return std::string(formatName) + ' ' + std::to_string(formatVersion);
}

std::string formatLine(const TouchLabel& label) {
    std::string text = trace::formatSeconds(label.start) + ' ' + trace::formatSeconds(label.end);
    switch (label.intent) {
        case TouchIntent::tap:
            return text + " tap " + std::to_string(label.fingers);
        case TouchIntent::click:
            return text + " click " + std::to_string(label.fingers);
        case TouchIntent::gesture:
            return text + " gesture " + std::string(moreslot::name(label.slot));
        case TouchIntent::accident:
            break;
    }
    return text + " accident " + std::string(accidentWord(label.accident));
}

std::string write(const std::vector<TouchLabel>& labels) {
    std::string text = header() + '\n';
    for (const TouchLabel& label : labels) {
        text += formatLine(label);
        text += '\n';
    }
    return text;
}

Reading read(std::string_view text) {
    Reading reading;
    std::size_t number = 0;
    bool sawHeader = false;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        ++number;
        if (!sawHeader) {
            if (line != header()) {
                return {{}, number};
            }
            sawHeader = true;
            continue;
        }
        if (isSkipped(line)) {
            continue;
        }
        const std::optional<TouchLabel> label = parseLabel(line);
        if (!label) {
            return {{}, number};
        }
        reading.labels.push_back(*label);
    }
    if (!sawHeader) {
        return {{}, 1};
    }
    return reading;
}

}  // namespace tactora::labels
