#include "core/score/ScoreMode.h"

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <ostream>
#include <system_error>
#include <vector>

#include "core/localization/Localizer.h"
#include "core/replay/ReplayMode.h"
#include "core/score/CorpusScore.h"
#include "core/score/LabelFile.h"
#include "core/support/FileContents.h"
#include "core/trace/TraceReader.h"

namespace tactora {

namespace {

int fail(std::ostream& err, const std::string& message) {
    err << message << '\n' << std::flush;
    return 1;
}

// Every NAME.trace in `directory` that has NAME.labels beside it, by name; nothing when the
// directory can't be listed.
std::optional<std::vector<std::filesystem::path>> labelledTraces(const std::string& directory) {
    std::error_code error;
    std::filesystem::directory_iterator entries(directory, error);
    if (error) {
        return std::nullopt;
    }
    std::vector<std::filesystem::path> traces;
    for (const std::filesystem::directory_entry& entry : entries) {
        std::filesystem::path labels = entry.path();
        labels.replace_extension(".labels");
        if (entry.path().extension() == ".trace" && std::filesystem::exists(labels, error)) {
            traces.push_back(entry.path());
        }
    }
    std::ranges::sort(traces);
    return traces;
}

}  // namespace

int runScore(std::span<const std::string> arguments, std::ostream& out, std::ostream& err) {
    const std::optional<std::string> directory = valueAfter(arguments, "--score");
    const std::optional<std::string> profilePath = valueAfter(arguments, "--profile");
    const std::optional<std::string> rulesName = valueAfter(arguments, "--rules");
    const std::vector<NamedRules> known = comparedRules();
    if (!directory || directory->empty() || (profilePath && profilePath->empty()) ||
        (rulesName && std::ranges::find(known, *rulesName, &NamedRules::name) == known.end())) {
        return fail(err, L("score.usage"));
    }
    const std::optional<std::vector<std::filesystem::path>> traces = labelledTraces(*directory);
    if (!traces) {
        return fail(err, L("replay.unreadable", *directory));
    }
    if (traces->empty()) {
        return fail(err, L("score.empty", *directory));
    }
    std::vector<LabelledTrace> sessions;
    for (const std::filesystem::path& path : *traces) {
        std::filesystem::path labelsPath = path;
        labelsPath.replace_extension(".labels");
        const std::optional<std::string> trace = readFileContents(path.string());
        const std::optional<std::string> labels = readFileContents(labelsPath.string());
        if (!trace || !labels) {
            return fail(err, L("replay.unreadable", (trace ? labelsPath : path).string()));
        }
        TraceReading reading = readTrace(*trace);
        if (reading.error) {
            return fail(err, path.string() + ": " + describeTraceError(*reading.error));
        }
        labels::Reading labelReading = labels::read(*labels);
        if (labelReading.errorLine) {
            return fail(err, L("score.labels", labelsPath.string(),
                               static_cast<std::int64_t>(*labelReading.errorLine)));
        }
        sessions.push_back({std::move(reading.lines), std::move(labelReading.labels)});
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
    const std::vector<NamedRules> compared = comparedRules();
    if (std::ranges::find(arguments, "--compare") == arguments.end()) {
        const auto named =
            std::ranges::find(compared, rulesName.value_or("default"), &NamedRules::name);
        out << formatScore(scoreTraces(sessions, profiles, named->rules)) << std::flush;
        return 0;
    }
    std::vector<ScoreCard> cards;
    cards.reserve(compared.size());
    for (const NamedRules& rules : compared) {
        cards.push_back(scoreTraces(sessions, profiles, rules.rules));
    }
    out << formatComparison(compared, cards) << std::flush;
    return 0;
}

}  // namespace tactora
