#include "core/trace/TraceFiles.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <system_error>
#include <vector>

#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"

namespace tactora {
namespace {

// A folder in memory: creating a path that is there fails as the system's exclusive create does.
struct Folder {
    std::set<std::string> files;
    std::vector<std::string> tried;
    std::error_code refusal;  // what every creation fails with, when set

    trace::CreateExclusively creator() {
        return [this](const std::string& path) -> std::error_code {
            tried.push_back(path);
            if (refusal) {
                return refusal;
            }
            if (!files.insert(path).second) {
                return std::make_error_code(std::errc::file_exists);
            }
            return {};
        };
    }
};

constexpr const char* stamp = "2026-11-22 at 17.20.05";

TEST(TraceFiles, NamesTheFirstFileAfterTheTimeAndLaterOnesWithANumber) {
    EXPECT_EQ(trace::fileName(stamp, 1), "Touches 2026-11-22 at 17.20.05.trace");
    EXPECT_EQ(trace::fileName(stamp, 2), "Touches 2026-11-22 at 17.20.05-2.trace");
    EXPECT_EQ(trace::fileName(stamp, 10), "Touches 2026-11-22 at 17.20.05-10.trace");
}

TEST(TraceFiles, TwoRecordingsInTheSameSecondGetTwoFiles) {
    Folder folder;
    const TraceSinkStart first = trace::createFile("/Logs", stamp, folder.creator());
    const TraceSinkStart second = trace::createFile("/Logs", stamp, folder.creator());
    EXPECT_EQ(first.path, "/Logs/Touches 2026-11-22 at 17.20.05.trace");
    EXPECT_EQ(second.path, "/Logs/Touches 2026-11-22 at 17.20.05-2.trace");
    EXPECT_EQ(folder.files.size(), 2U);
}

TEST(TraceFiles, NeverReplacesAFileThatIsThere) {
    Folder folder;
    folder.files = {"/Logs/Touches 2026-11-22 at 17.20.05.trace",
                    "/Logs/Touches 2026-11-22 at 17.20.05-2.trace"};
    const TraceSinkStart start = trace::createFile("/Logs", stamp, folder.creator());
    EXPECT_EQ(start.path, "/Logs/Touches 2026-11-22 at 17.20.05-3.trace");
    EXPECT_EQ(folder.tried.size(), 3U);
}

TEST(TraceFiles, AnotherFailureStopsAtOnceAndSaysWhichFile) {
    Folder folder;
    folder.refusal = std::make_error_code(std::errc::permission_denied);
    const TraceSinkStart start = trace::createFile("/Logs", stamp, folder.creator());
    EXPECT_FALSE(start.path);
    EXPECT_EQ(start.failure,
              (TraceSinkFailure{"/Logs/Touches 2026-11-22 at 17.20.05.trace",
                                std::make_error_code(std::errc::permission_denied)}));
    EXPECT_EQ(folder.tried.size(), 1U);
}

TEST(TraceFiles, GivesUpWhenEveryNameOfTheSecondIsTaken) {
    Folder folder;
    for (int number = 1; number <= trace::mostFilesPerStamp; ++number) {
        folder.files.insert("/Logs/" + trace::fileName(stamp, number));
    }
    const TraceSinkStart start = trace::createFile("/Logs", stamp, folder.creator());
    EXPECT_FALSE(start.path);
    EXPECT_EQ(start.failure.error, std::errc::file_exists);
    EXPECT_EQ(folder.tried.size(), static_cast<std::size_t>(trace::mostFilesPerStamp));
}

class TraceSinkFailureTextTest : public ::testing::Test {
  protected:
    void SetUp() override {
        setStringTable(std::make_shared<const StringsTable>(StringsTable::Entries{
            {"trace.failed", "no folder"},
            {"trace.failed.permission", "may not write %@"},
            {"trace.failed.full", "full: %@"},
            {"trace.failed.readonly", "read-only: %@"},
            {"trace.failed.other", "%@: %@"},
        }));
    }
    void TearDown() override { setStringTable(nullptr); }
};

TEST_F(TraceSinkFailureTextTest, SaysWhyInTheUsersWords) {
    const auto failure = [](std::errc reason) {
        return describeTraceSinkFailure({"/Logs/T", std::make_error_code(reason)});
    };
    EXPECT_EQ(describeTraceSinkFailure({}), "no folder");
    EXPECT_EQ(failure(std::errc::permission_denied), "may not write /Logs/T");
    EXPECT_EQ(failure(std::errc::operation_not_permitted), "may not write /Logs/T");
    EXPECT_EQ(failure(std::errc::no_space_on_device), "full: /Logs/T");
    EXPECT_EQ(failure(std::errc::read_only_file_system), "read-only: /Logs/T");
}

TEST_F(TraceSinkFailureTextTest, AnyOtherReasonIsTheSystemsOwnText) {
    const std::error_code error = std::make_error_code(std::errc::not_a_directory);
    EXPECT_EQ(describeTraceSinkFailure({"/Logs/T", error}), "/Logs/T: " + error.message());
}

}  // namespace
}  // namespace tactora
