#include "core/trace/TraceFormat.h"

#include <array>
#include <cstddef>
#include <cstdint>
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

std::string deviceReference(std::uint64_t device) {
    return '@' + std::to_string(device);
}

void appendShape(std::string& text, const ContactShape& shape) {
    text += '/';
    text += formatPosition(shape.size);
    text += ',';
    text += formatPosition(shape.angle);
    text += ',';
    text += formatPosition(shape.majorAxis);
    text += ',';
    text += formatPosition(shape.minorAxis);
}

std::string describe(const TraceFrame& frame) {
    std::string text = "frame";
    if (frame.device) {
        text += ' ';
        text += deviceReference(*frame.device);
    }
    for (std::size_t index = 0; index < frame.fingers.size(); ++index) {
        const Finger& finger = frame.fingers[index];
        text += ' ';
        text += std::to_string(finger.id);
        text += ':';
        text += formatPosition(static_cast<float>(finger.x));
        text += ',';
        text += formatPosition(static_cast<float>(finger.y));
        if (index < frame.shapes.size() && frame.shapes[index]) {
            appendShape(text, *frame.shapes[index]);
        }
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
    text += mouse.device && mouse.fromMouse ? deviceReference(*mouse.device)
                                            : std::string(source(mouse.fromMouse));
    return text;
}

// The rest of the line: line breaks become spaces, and "-" stands for no name.
std::string deviceName(const std::string& name) {
    std::string result = name;
    for (char& c : result) {
        if (c == '\n' || c == '\r') {
            c = ' ';
        }
    }
    const std::size_t start = result.find_first_not_of(" \t");
    if (start == std::string::npos) {
        return "-";
    }
    const std::size_t end = result.find_last_not_of(" \t");
    return result.substr(start, end - start + 1);
}

std::string describe(const TraceDevice& device) {
    return "device " + std::to_string(device.id) + ' ' + std::string(deviceKindWord(device.kind)) +
           ' ' + deviceName(device.name);
}

std::string describe(const TraceDeviceUse& use) {
    return "use " + deviceReference(use.device) + ' ' + std::string(onOff(use.on));
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

std::string_view deviceKindWord(TraceDeviceKind kind) {
    switch (kind) {
        case TraceDeviceKind::magicMouse:
            return "magic-mouse";
        case TraceDeviceKind::magicTrackpad:
            return "magic-trackpad";
        case TraceDeviceKind::builtInTrackpad:
            return "built-in-trackpad";
        case TraceDeviceKind::other:
            break;
    }
    return "other";
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
