#include "core/replay/ReplayMode.h"

#include <algorithm>
#include <optional>
#include <ostream>
#include <set>
#include <string_view>
#include <vector>

#include "core/localization/Localizer.h"
#include "core/profiles/ProfileJson.h"
#include "core/replay/TraceReplay.h"
#include "core/support/FileContents.h"
#include "core/trace/TraceReader.h"

namespace tactora {

namespace {

bool hasDistinctIDs(const std::vector<WorkProfile>& profiles) {
    std::set<Uuid> ids;
    for (const WorkProfile& profile : profiles) {
        ids.insert(profile.id);
    }
    return ids.size() == profiles.size();
}

int fail(std::ostream& err, const std::string& message) {
    err << message << '\n' << std::flush;
    return 1;
}

}  // namespace

std::optional<std::string> valueAfter(std::span<const std::string> arguments,
                                      std::string_view flag) {
    const auto found = std::ranges::find(arguments, flag);
    if (found == arguments.end()) {
        return std::nullopt;
    }
    const auto value = std::next(found);
    return value == arguments.end() ? std::string() : *value;
}

std::optional<std::vector<WorkProfile>> profileList(const std::string& text) {
    std::optional<std::vector<WorkProfile>> profiles = decodeProfiles(text);
    if (!profiles || profiles->empty() || !hasDistinctIDs(*profiles)) {
        return std::nullopt;
    }
    for (WorkProfile& profile : *profiles) {
        profile.sanitize();
    }
    return profiles;
}

int runReplay(std::span<const std::string> arguments, std::ostream& out, std::ostream& err) {
    const std::optional<std::string> tracePath = valueAfter(arguments, "--replay");
    const std::optional<std::string> profilePath = valueAfter(arguments, "--profile");
    if (!tracePath || tracePath->empty() || (profilePath && profilePath->empty())) {
        return fail(err, L("replay.usage"));
    }
    const std::optional<std::string> trace = readFileContents(*tracePath);
    if (!trace) {
        return fail(err, L("replay.unreadable", *tracePath));
    }
    TraceReading reading = readTrace(*trace);
    if (reading.error) {
        return fail(err, *tracePath + ": " + describeTraceError(*reading.error));
    }
    std::optional<std::vector<WorkProfile>> profiles;
    if (profilePath) {
        const std::optional<std::string> json = readFileContents(*profilePath);
        if (!json) {
            return fail(err, L("replay.unreadable", *profilePath));
        }
        profiles = profileList(*json);
        if (!profiles) {
            return fail(err, L("replay.profiles", *profilePath));
        }
    }
    const bool explain = std::ranges::find(arguments, "--explain") != arguments.end();
    out << TraceReplay::run(
               reading.lines, profiles,
               explain ? TraceReplay::Detail::explained : TraceReplay::Detail::decisions)
        << std::flush;
    return 0;
}

}  // namespace tactora
