#include "core/trace/TraceReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <set>
#include <string>
#include <system_error>
#include <utility>

#include "core/profiles/Uuid.h"
#include "core/trace/TraceFormat.h"
#include "core/trace/TraceNumbers.h"

namespace tactora {

namespace {

// The words of one line, taken one at a time. Spaces, tabs and carriage returns separate
// them: the writer never puts one inside a word, so a word read is written back as it was.
class Words {
  public:
    explicit Words(std::string_view line) : rest_(line) {}

    // The next word, or nothing at the end of the line.
    std::optional<std::string_view> next() {
        const std::size_t start = rest_.find_first_not_of(separators);
        if (start == std::string_view::npos) {
            rest_ = {};
            return std::nullopt;
        }
        rest_.remove_prefix(start);
        const std::size_t end = std::min(rest_.find_first_of(separators), rest_.size());
        const std::string_view word = rest_.substr(0, end);
        rest_.remove_prefix(end);
        return word;
    }

    bool atEnd() const { return rest_.find_first_not_of(separators) == std::string_view::npos; }

    // Everything left on the line, without the spaces, tabs and carriage returns around it.
    std::string_view rest() {
        const std::size_t start = rest_.find_first_not_of(separators);
        std::string_view text =
            start == std::string_view::npos ? std::string_view() : rest_.substr(start);
        text.remove_suffix(text.size() - (text.find_last_not_of(separators) + 1));
        rest_ = {};
        return text;
    }

  private:
    static constexpr std::string_view separators = " \t\r";

    std::string_view rest_;
};

// A whole number written as an optional minus sign and digits, or why it isn't one.
template <typename Integer>
struct ParsedInteger {
    std::optional<Integer> value;
    bool outOfRange = false;  // well written, but beyond what Integer holds
};

template <typename Integer>
ParsedInteger<Integer> readInteger(std::string_view text) {
    Integer value{};
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (text.empty() || stop != end) {
        return {};
    }
    if (error == std::errc::result_out_of_range) {
        return {std::nullopt, true};
    }
    if (error != std::errc()) {
        return {};
    }
    return {value};
}

template <typename Integer>
std::optional<Integer> parseInteger(std::string_view text) {
    return readInteger<Integer>(text).value;
}

// Either the event or the problem with it.
struct Parsed {
    std::optional<TraceEvent> event;
    TraceProblem problem = TraceProblem::event;
};

Parsed failed(TraceProblem problem) {
    return {std::nullopt, problem};
}

// The ids of the devices declared so far.
using Devices = std::set<std::uint64_t>;

// Four 32-bit values separated by commas: size, angle, major and minor axis.
std::optional<ContactShape> parseShape(std::string_view text) {
    std::array<float, 4> values{};
    for (std::size_t index = 0; index < values.size(); ++index) {
        const bool last = index + 1 == values.size();
        const std::size_t comma = last ? text.size() : text.find(',');
        if (comma == std::string_view::npos) {
            return std::nullopt;
        }
        const std::optional<float> value = trace::parsePosition(text.substr(0, comma));
        if (!value) {
            return std::nullopt;
        }
        values.at(index) = *value;
        text.remove_prefix(last ? text.size() : comma + 1);
    }
    return ContactShape{values[0], values[1], values[2], values[3]};
}

// "@<id>" naming a declared device; nothing for anything else.
std::optional<std::uint64_t> parseDeviceReference(std::string_view word, const Devices& devices) {
    if (!word.starts_with('@')) {
        return std::nullopt;
    }
    const auto id = parseInteger<std::uint64_t>(word.substr(1));
    if (!id || !devices.contains(*id)) {
        return std::nullopt;
    }
    return id;
}

// One contact, or what is wrong with it.
struct ParsedContact {
    std::optional<Finger> finger;
    TraceProblem problem = TraceProblem::contact;
};

ParsedContact parseContact(std::string_view text) {
    const std::size_t colon = text.find(':');
    const std::size_t comma = text.find(',');
    if (colon == std::string_view::npos || comma == std::string_view::npos || comma < colon) {
        return {};
    }
    const ParsedInteger<std::int64_t> id = readInteger<std::int64_t>(text.substr(0, colon));
    if (id.outOfRange) {
        return {std::nullopt, TraceProblem::contactID};
    }
    const auto x = trace::parsePosition(text.substr(colon + 1, comma - colon - 1));
    const auto y = trace::parsePosition(text.substr(comma + 1));
    if (!id.value || !x || !y) {
        return {};
    }
    return {Finger(*id.value, static_cast<double>(*x), static_cast<double>(*y))};
}

Parsed parseFrame(Words& words, const Devices& devices) {
    TraceFrame frame;
    std::optional<std::string_view> word = words.next();
    if (word && word->starts_with('@')) {
        frame.device = parseDeviceReference(*word, devices);
        if (!frame.device) {
            return failed(TraceProblem::unknownDevice);
        }
        word = words.next();
    }
    for (; word; word = words.next()) {
        const std::size_t slash = word->find('/');
        const ParsedContact contact = parseContact(word->substr(0, slash));
        if (!contact.finger) {
            return failed(contact.problem);
        }
        if (frame.fingers.size() == TraceFrame::mostContacts) {
            return failed(TraceProblem::crowded);
        }
        frame.fingers.push_back(*contact.finger);
        if (slash == std::string_view::npos) {
            continue;
        }
        const std::optional<ContactShape> shape = parseShape(word->substr(slash + 1));
        if (!shape) {
            return failed(TraceProblem::contact);
        }
        frame.shapes.resize(frame.fingers.size());
        frame.shapes.back() = shape;
    }
    if (!frame.shapes.empty()) {
        frame.shapes.resize(frame.fingers.size());
    }
    return {frame};
}

std::optional<bool> parseSource(std::optional<std::string_view> word) {
    if (word == "mouse") {
        return true;
    }
    if (word == "other") {
        return false;
    }
    return std::nullopt;
}

std::optional<bool> parseOnOff(std::optional<std::string_view> word) {
    if (word == "on") {
        return true;
    }
    if (word == "off") {
        return false;
    }
    return std::nullopt;
}

std::optional<EventType> mouseEventType(std::string_view word) {
    for (const EventType type :
         {event::leftMouseDown, event::leftMouseUp, event::leftMouseDragged, event::rightMouseDown,
          event::rightMouseUp, event::rightMouseDragged, event::scrollWheel}) {
        if (trace::mouseEventWord(type) == word) {
            return type;
        }
    }
    return std::nullopt;
}

Parsed parseMouseEvent(EventType type, Words& words, const Devices& devices) {
    TraceMouseEvent mouse{type, 0, true};
    if (type != event::scrollWheel) {
        const auto word = words.next();
        const auto button = word ? parseInteger<std::int64_t>(*word) : std::nullopt;
        if (!button) {
            return failed(TraceProblem::button);
        }
        mouse.button = *button;
    }
    const std::optional<std::string_view> source = words.next();
    if (source && source->starts_with('@')) {
        mouse.device = parseDeviceReference(*source, devices);
        if (!mouse.device) {
            return failed(TraceProblem::unknownDevice);
        }
        return {mouse};
    }
    const std::optional<bool> fromMouse = parseSource(source);
    if (!fromMouse) {
        return failed(TraceProblem::source);
    }
    mouse.fromMouse = *fromMouse;
    return {mouse};
}

std::optional<TraceDeviceKind> parseDeviceKind(std::optional<std::string_view> word) {
    for (const TraceDeviceKind kind : {TraceDeviceKind::magicMouse, TraceDeviceKind::magicTrackpad,
                                       TraceDeviceKind::builtInTrackpad, TraceDeviceKind::other}) {
        if (word == trace::deviceKindWord(kind)) {
            return kind;
        }
    }
    return std::nullopt;
}

// A name for people: control characters (other than tabs) are no part of one, and the writer
// could not give them back.
bool isDeviceName(std::string_view name) {
    return !name.empty() && std::ranges::none_of(name, [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return (byte < 0x20 && c != '\t') || byte == 0x7F;
    });
}

Parsed parseDevice(Words& words, Devices& devices) {
    const auto word = words.next();
    const std::optional<std::uint64_t> id =
        word ? parseInteger<std::uint64_t>(*word) : std::nullopt;
    const std::optional<TraceDeviceKind> kind = parseDeviceKind(words.next());
    const std::string_view name = words.rest();
    if (!id || !kind || !isDeviceName(name)) {
        return failed(TraceProblem::device);
    }
    TraceDevice device{id.value(), *kind, name == "-" ? std::string() : std::string(name)};
    devices.insert(device.id);
    return {std::move(device)};
}

Parsed parseDeviceUse(Words& words, const Devices& devices) {
    const auto word = words.next();
    const std::optional<std::uint64_t> device =
        word ? parseDeviceReference(*word, devices) : std::nullopt;
    if (!device) {
        return failed(TraceProblem::unknownDevice);
    }
    const std::optional<bool> on = parseOnOff(words.next());
    if (!on) {
        return failed(TraceProblem::onOff);
    }
    return {TraceDeviceUse{*device, *on}};
}

Parsed parseProfile(Words& words) {
    const auto word = words.next();
    const std::optional<Uuid> id = word ? Uuid::parse(std::string(*word)) : std::nullopt;
    if (!id) {
        return failed(TraceProblem::profile);
    }
    return {TraceProfileSelected{id->text()}};
}

Parsed parseFront(Words& words) {
    const auto word = words.next();
    if (word == "none") {
        return {TraceFrontApplication{}};
    }
    const auto processID = word ? parseInteger<std::int32_t>(*word) : std::nullopt;
    const auto bundle = words.next();
    if (!processID || !bundle) {
        return failed(TraceProblem::process);
    }
    return {
        TraceFrontApplication{processID, *bundle == "-" ? std::string() : std::string(*bundle)}};
}

Parsed parseSwitch(std::string_view name, Words& words) {
    const std::optional<bool> on = parseOnOff(words.next());
    if (!on) {
        return failed(TraceProblem::onOff);
    }
    if (name == "gestures") {
        return {TraceGestures{*on}};
    }
    return {TraceActive{*on}};
}

// The first version whose traces may hold "use" lines.
constexpr int firstVersionWithUse = 3;

Parsed parseEvent(Words& words, Devices& devices, int version) {
    const auto name = words.next();
    if (!name) {
        return failed(TraceProblem::event);
    }
    Parsed parsed = failed(TraceProblem::event);
    if (*name == "frame") {
        parsed = parseFrame(words, devices);
    } else if (const std::optional<EventType> type = mouseEventType(*name)) {
        parsed = parseMouseEvent(*type, words, devices);
    } else if (*name == "device") {
        parsed = parseDevice(words, devices);
    } else if (*name == "use" && version >= firstVersionWithUse) {
        parsed = parseDeviceUse(words, devices);
    } else if (*name == "profile") {
        parsed = parseProfile(words);
    } else if (*name == "front") {
        parsed = parseFront(words);
    } else if (*name == "gestures" || *name == "active") {
        parsed = parseSwitch(*name, words);
    }
    if (parsed.event && !words.atEnd()) {
        return failed(TraceProblem::extra);
    }
    return parsed;
}

// The version the header names, or nothing when it is not a header.
std::optional<int> headerVersion(std::string_view line) {
    Words words(line);
    if (words.next() != trace::formatName) {
        return std::nullopt;
    }
    const auto word = words.next();
    const auto version = word ? parseInteger<int>(*word) : std::nullopt;
    if (!version || *version < 1 || !words.atEnd()) {
        return std::nullopt;
    }
    return version;
}

bool isSkipped(std::string_view line) {
    const std::size_t start = line.find_first_not_of(' ');
    return start == std::string_view::npos || line[start] == '#';
}

// Splits `text` into lines, dropping each line's "\r" before its "\n".
class Lines {
  public:
    explicit Lines(std::string_view text) : rest_(text) {}

    std::optional<std::string_view> next() {
        if (rest_.empty()) {
            return std::nullopt;
        }
        const std::size_t end = std::min(rest_.find('\n'), rest_.size());
        std::string_view line = rest_.substr(0, end);
        rest_.remove_prefix(std::min(end + 1, rest_.size()));
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        return line;
    }

  private:
    std::string_view rest_;
};

TraceReading failure(std::size_t line, TraceProblem problem) {
    return {{}, TraceError{line, problem}};
}

}  // namespace

TraceReading readTrace(std::string_view text) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) {
        text.remove_prefix(byteOrderMark.size());
    }
    Lines lines(text);
    const auto first = lines.next();
    const std::optional<int> version = first ? headerVersion(*first) : std::nullopt;
    if (!version) {
        return failure(1, TraceProblem::header);
    }
    if (*version > trace::formatVersion) {
        return failure(1, TraceProblem::version);
    }
    TraceReading reading;
    Devices devices;
    std::size_t number = 1;
    double previous = 0;
    while (const auto line = lines.next()) {
        ++number;
        if (isSkipped(*line)) {
            continue;
        }
        Words words(*line);
        const auto stamp = words.next();
        const std::optional<double> time = stamp ? trace::parseSeconds(*stamp) : std::nullopt;
        if (!time) {
            return failure(number, TraceProblem::time);
        }
        if (*time < previous) {
            return failure(number, TraceProblem::timeBack);
        }
        previous = *time;
        Parsed parsed = parseEvent(words, devices, *version);
        if (!parsed.event) {
            return failure(number, parsed.problem);
        }
        reading.lines.push_back({*time, std::move(*parsed.event)});
    }
    return reading;
}

}  // namespace tactora
