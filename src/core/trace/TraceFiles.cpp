#include "core/trace/TraceFiles.h"

#include "core/localization/Localizer.h"

namespace tactora::trace {

std::string fileName(std::string_view stamp, int number) {
    std::string name = "Touches ";
    name += stamp;
    if (number > 1) {
        name += '-' + std::to_string(number);
    }
    return name + ".trace";
}

TraceSinkStart createFile(const std::string& folder, std::string_view stamp,
                          const CreateExclusively& create) {
    TraceSinkStart start;
    for (int number = 1; number <= mostFilesPerStamp; ++number) {
        std::string path = folder + '/' + fileName(stamp, number);
        const std::error_code error = create(path);
        if (!error) {
            start.path = std::move(path);
            return start;
        }
        start.failure = {std::move(path), error};
        if (error != std::errc::file_exists) {
            break;
        }
    }
    return start;
}

}  // namespace tactora::trace

namespace tactora {

namespace {

const char* keyOf(const std::error_code& error) {
    if (error == std::errc::permission_denied || error == std::errc::operation_not_permitted) {
        return "trace.failed.permission";
    }
    if (error == std::errc::no_space_on_device) {
        return "trace.failed.full";
    }
    if (error == std::errc::read_only_file_system) {
        return "trace.failed.readonly";
    }
    return nullptr;
}

}  // namespace

std::string describeTraceSinkFailure(const TraceSinkFailure& failure) {
    if (failure.path.empty()) {
        return L("trace.failed");
    }
    if (const char* key = keyOf(failure.error)) {
        return L(key, failure.path);
    }
    return L("trace.failed.other", failure.path, failure.error.message());
}

}  // namespace tactora
