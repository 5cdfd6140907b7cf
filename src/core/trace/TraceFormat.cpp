#include "core/trace/TraceFormat.h"

#include <array>
#include <type_traits>
#include <utility>

#include "core/trace/TraceNumbers.h"

namespace tactora::trace {

namespace {

constexpr std::array<std::pair<EventType, std::string_view>, 7> mouseEventWords = {{
    {event::leftMouseDown, "left-down"},
    {event::leftMouseUp, "left-up"},
    {event::leftMouseDragged, "left-drag"},
    {event::rightMouseDown, "right-down"},
    {event::rightMouseUp, "right-up"},
    {event::rightMouseDragged, "right-drag"},
    {event::scrollWheel, "scroll"},
}};

std::string_view source(bool fromMouse) {
    return fromMouse ? "mouse" : "other";
}

std::string_view onOff(bool on) {
    return on ? "on" : "off";
}

// A word without spaces, so that the line splits back the same way; "-" for nothing.
std::string word(const std::string& text) {
    if (text.empty()) {
        return "-";
    }
    std::string result = text;
    for (char& c : result) {
        if (c == ' ' || c == '\t' || c == '\n' || c == '\r') {
            c = '_';
        }
    }
    return result;
}

std::string describe(const TraceFrame& frame) {
    std::string text = "frame";
    for (const Finger& finger : frame.fingers) {
        text += ' ';
        text += std::to_string(finger.id);
        text += ':';
        text += formatPosition(static_cast<float>(finger.x));
        text += ',';
        text += formatPosition(static_cast<float>(finger.y));
    }
    return text;
}

std::string describe(const TraceMouseEvent& mouse) {
    std::string text(mouseEventWord(mouse.type));
    if (mouse.type != event::scrollWheel) {
        text += ' ';
        text += std::to_string(mouse.button);
    }
    text += ' ';
    text += source(mouse.fromMouse);
    return text;
}

std::string describe(const TraceProfileSelected& profile) {
    return "profile " + word(profile.id);
}

std::string describe(const TraceFrontApplication& front) {
    if (!front.processID) {
        return "front none";
    }
    return "front " + std::to_string(*front.processID) + ' ' + word(front.bundleID);
}

std::string describe(const TraceGestures& gestures) {
    return "gestures " + std::string(onOff(gestures.on));
}

std::string describe(const TraceActive& active) {
    return "active " + std::string(onOff(active.active));
}

}  // namespace

std::string header() {
    return std::string(formatName) + ' ' + std::to_string(formatVersion);
}

std::string formatLine(const TraceLine& line) {
    return formatSeconds(line.time) + ' ' +
           std::visit([](const auto& event) { return describe(event); }, line.event);
}

std::string_view mouseEventWord(EventType type) {
    for (const auto& [eventType, text] : mouseEventWords) {
        if (eventType == type) {
            return text;
        }
    }
    return {};
}

}  // namespace tactora::trace
