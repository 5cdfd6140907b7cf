#include "core/profiles/FilePreferences.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <limits>
#include <optional>
#include <set>
#include <string>

#include "core/profiles/FilePreferenceSuites.h"
#include "profiles/TemporaryDirectory.h"

namespace tactora {
namespace {

namespace fs = std::filesystem;

void writeText(const fs::path& file, const std::string& text) {
    std::ofstream out(file, std::ios::binary);
    out << text;
}

std::string readText(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

class FilePreferencesTest : public testing::Test {
  protected:
    TemporaryDirectory directory;
    fs::path file = directory.path() / "domain.json";
};

TEST_F(FilePreferencesTest, MissingFileReadsAsEmptyAndIsNotCreatedByReading) {
    const FilePreferences preferences(file);
    EXPECT_EQ(preferences.string("k"), std::nullopt);
    EXPECT_TRUE(TemporaryDirectory::entries(directory.path()).empty());
}

TEST_F(FilePreferencesTest, ValuesKeepTheirTypesAcrossReload) {
    Bytes all;
    for (int b = 0; b < 256; ++b) {
        all.push_back(static_cast<std::uint8_t>(b));
    }
    {
        FilePreferences preferences(file);
        preferences.setData("data", all);
        preferences.setData("empty", {});
        preferences.setString("text", "⌘B \"quoted\"\n");
        preferences.setString("digits", "13");
        preferences.setInteger("min", std::numeric_limits<std::int64_t>::min());
        preferences.setInteger("max", std::numeric_limits<std::int64_t>::max());
    }
    const FilePreferences reloaded(file);
    EXPECT_EQ(reloaded.data("data"), all);
    EXPECT_EQ(reloaded.data("empty"), Bytes{});
    EXPECT_EQ(reloaded.string("text"), "⌘B \"quoted\"\n");
    EXPECT_EQ(reloaded.string("digits"), "13");
    EXPECT_EQ(reloaded.integer("digits"), std::nullopt);
    EXPECT_EQ(reloaded.integer("min"), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(reloaded.integer("max"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(reloaded.string("data"), std::nullopt);
    EXPECT_EQ(reloaded.data("text"), std::nullopt);
}

TEST_F(FilePreferencesTest, WritesLeaveNoTemporaryFiles) {
    FilePreferences preferences(file);
    for (int i = 0; i < 20; ++i) {
        preferences.setInteger("k" + std::to_string(i), i);
    }
    preferences.remove("k3");
    EXPECT_EQ(TemporaryDirectory::entries(directory.path()), std::set<std::string>{"domain.json"});
}

TEST_F(FilePreferencesTest, EveryWriteIsOnDiskAtOnce) {
    FilePreferences preferences(file);
    preferences.setString("a", "1");
    EXPECT_EQ(FilePreferences(file).string("a"), "1");
    preferences.remove("a");
    EXPECT_EQ(FilePreferences(file).string("a"), std::nullopt);
}

TEST_F(FilePreferencesTest, WriteReplacesTheFileRatherThanRewritingItInPlace) {
    FilePreferences preferences(file);
    preferences.setString("a", std::string(10000, 'x'));
    // A reader that opened the old file keeps seeing all of it: the new content went to a
    // different file that took the old one's name.
    std::ifstream oldReader(file, std::ios::binary);
    preferences.setString("a", "short");
    const std::string old{std::istreambuf_iterator<char>(oldReader),
                          std::istreambuf_iterator<char>()};
    EXPECT_NE(old.find(std::string(10000, 'x')), std::string::npos);
    EXPECT_EQ(FilePreferences(file).string("a"), "short");
}

TEST_F(FilePreferencesTest, CreatesItsDirectoryOnFirstWrite) {
    const fs::path nested = directory.path() / "config" / "Tactora" / "domain.json";
    FilePreferences preferences(nested);
    EXPECT_FALSE(fs::exists(nested.parent_path()));
    preferences.setInteger("k", 1);
    EXPECT_EQ(FilePreferences(nested).integer("k"), 1);
}

TEST_F(FilePreferencesTest, DamagedFileIsMovedAsideAndReadsAsEmpty) {
    writeText(file, "{\"k\": ");
    FilePreferences preferences(file);
    EXPECT_EQ(preferences.integer("k"), std::nullopt);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(readText(directory.path() / "domain.json.damaged"), "{\"k\": ");
    EXPECT_TRUE(preferences.isWritable());

    preferences.setInteger("k", 2);
    EXPECT_EQ(FilePreferences(file).integer("k"), 2);
    EXPECT_EQ(readText(directory.path() / "domain.json.damaged"), "{\"k\": ");
}

TEST_F(FilePreferencesTest, LaterDamageDoesNotOverwriteAnEarlierDamagedCopy) {
    writeText(file, "first");
    { const FilePreferences preferences(file); }
    writeText(file, "second");
    { const FilePreferences preferences(file); }
    EXPECT_EQ(readText(directory.path() / "domain.json.damaged"), "first");
    EXPECT_EQ(readText(directory.path() / "domain.json.damaged.2"), "second");
}

TEST_F(FilePreferencesTest, FileWithEntriesItDoesNotWriteIsSetAsideWhole) {
    for (const char* text :
         {"[]", "\"text\"", "{\"k\": 1.5}", "{\"k\": true}", "{\"k\": null}", "{\"k\": [1]}",
          "{\"k\": {\"data\": \"Zg=\"}}", "{\"k\": {\"data\": 5}}",
          "{\"k\": {\"other\": \"Zg==\"}}", "{\"k\": {\"data\": \"Zg==\", \"more\": 1}}",
          "{\"k\": 9223372036854775808}", "{\"k\": \"\xFF\"}", "", "{\"good\": 1, \"bad\": 1e3}"}) {
        SCOPED_TRACE(text);
        const TemporaryDirectory scratch;
        const fs::path damaged = scratch.path() / "d.json";
        writeText(damaged, text);
        const FilePreferences preferences(damaged);
        EXPECT_EQ(preferences.integer("k"), std::nullopt);
        EXPECT_EQ(preferences.integer("good"), std::nullopt);
        EXPECT_EQ(readText(scratch.path() / "d.json.damaged"), text);
        EXPECT_FALSE(fs::exists(damaged));
    }
}

TEST_F(FilePreferencesTest, DirectoryInPlaceOfTheFileIsMovedAside) {
    fs::create_directories(file / "inside");
    FilePreferences preferences(file);
    EXPECT_TRUE(fs::is_directory(directory.path() / "domain.json.damaged" / "inside"));
    preferences.setInteger("k", 1);
    EXPECT_EQ(FilePreferences(file).integer("k"), 1);
}

TEST_F(FilePreferencesTest, ReadsTheFileFormatItDocuments) {
    writeText(file,
              "{\"bytes\": {\"data\": \"AAEC\"}, \"name\": \"Mix\", \"count\": -3, \"big\": 42}");
    const FilePreferences preferences(file);
    EXPECT_EQ(preferences.data("bytes"), (Bytes{0, 1, 2}));
    EXPECT_EQ(preferences.string("name"), "Mix");
    EXPECT_EQ(preferences.integer("count"), -3);
    EXPECT_EQ(preferences.integer("big"), 42);
    EXPECT_TRUE(fs::exists(file));
}

TEST_F(FilePreferencesTest, TextThatIsNotUtf8IsStillWritten) {
    FilePreferences preferences(file);
    preferences.setString("good", "ok");
    preferences.setString("bad", "a\xFFz");
    EXPECT_EQ(preferences.string("bad"), "a\xFFz");
    const FilePreferences reloaded(file);
    EXPECT_EQ(reloaded.string("good"), "ok");
    EXPECT_EQ(reloaded.string("bad"), "a\xEF\xBF\xBDz");
}

TEST_F(FilePreferencesTest, RemoveAllDeletesTheFile) {
    FilePreferences preferences(file);
    preferences.setInteger("k", 1);
    preferences.removeAll();
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(preferences.integer("k"), std::nullopt);
}

class FilePreferenceSuitesTest : public testing::Test {
  protected:
    TemporaryDirectory directory;
    FilePreferenceSuites suites{directory.path()};
};

TEST_F(FilePreferenceSuitesTest, EachDomainIsOneJsonFileNamedAfterIt) {
    suites.standard()->setInteger("k", 1);
    suites.suite("Tactora.tests.X")->setInteger("k", 2);
    EXPECT_EQ(TemporaryDirectory::entries(directory.path()),
              (std::set<std::string>{"app.tactora.Tactora.json", "Tactora.tests.X.json"}));
}

TEST_F(FilePreferenceSuitesTest, SameNameGivesTheSameDomain) {
    EXPECT_EQ(suites.suite("a"), suites.suite("a"));
    EXPECT_EQ(suites.standard(), suites.standard());
    EXPECT_EQ(suites.standard(), suites.suite(FilePreferenceSuites::standardDomain));
    EXPECT_NE(suites.suite("a"), suites.suite("b"));
}

TEST_F(FilePreferenceSuitesTest, DomainsSurviveANewSetOfSuites) {
    suites.suite("a")->setString("k", "v");
    FilePreferenceSuites again(directory.path());
    EXPECT_EQ(again.suite("a")->string("k"), "v");
    EXPECT_EQ(again.standard()->string("k"), std::nullopt);
}

TEST_F(FilePreferenceSuitesTest, RemoveSuiteDeletesItsFileAndEmptiesItsHolders) {
    const auto held = suites.suite("a");
    held->setInteger("k", 1);
    suites.standard()->setInteger("k", 2);
    suites.removeSuite("a");
    EXPECT_EQ(held->integer("k"), std::nullopt);
    EXPECT_EQ(TemporaryDirectory::entries(directory.path()),
              std::set<std::string>{"app.tactora.Tactora.json"});
    EXPECT_EQ(suites.suite("a")->integer("k"), std::nullopt);
}

TEST_F(FilePreferenceSuitesTest, RemoveSuiteDeletesTheFileOfASuiteNotOpenedYet) {
    FilePreferenceSuites(directory.path()).suite("a")->setInteger("k", 1);
    suites.removeSuite("a");
    EXPECT_TRUE(TemporaryDirectory::entries(directory.path()).empty());
}

TEST_F(FilePreferenceSuitesTest, NamesCannotLeaveTheDirectory) {
    EXPECT_EQ(suites.fileFor("../x"), directory.path() / "%2E.%2Fx.json");
    EXPECT_EQ(suites.fileFor("a/b"), directory.path() / "a%2Fb.json");
    EXPECT_EQ(suites.fileFor("a%2Fb"), directory.path() / "a%252Fb.json");
    EXPECT_EQ(suites.fileFor(".hidden"), directory.path() / "%2Ehidden.json");
    suites.suite("../escape")->setInteger("k", 1);
    EXPECT_EQ(TemporaryDirectory::entries(directory.path()),
              std::set<std::string>{"%2E.%2Fescape.json"});
}

// Sets an environment variable for the life of the object and restores it afterwards.
class ScopedEnvironment {
  public:
    ScopedEnvironment(const char* name, const char* value) : name_(name) {
        if (const char* old = std::getenv(name)) {
            old_ = old;
        }
        set(value);
    }
    ScopedEnvironment(const ScopedEnvironment&) = delete;
    ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
    ~ScopedEnvironment() { set(old_ ? old_->c_str() : nullptr); }

  private:
    void set(const char* value) {
        if (value == nullptr) {
            unsetenv(name_);
        } else {
            setenv(name_, value, 1);
        }
    }
    const char* name_;
    std::optional<std::string> old_;
};

TEST(FilePreferenceSuitesDirectory, PrefersAnAbsoluteXdgConfigHome) {
    const ScopedEnvironment config("XDG_CONFIG_HOME", "/xdg/config");
    const ScopedEnvironment home("HOME", "/home/user");
    EXPECT_EQ(FilePreferenceSuites::defaultDirectory(), fs::path("/xdg/config/Tactora"));
}

TEST(FilePreferenceSuitesDirectory, FallsBackToHomeConfig) {
    const ScopedEnvironment config("XDG_CONFIG_HOME", nullptr);
    const ScopedEnvironment home("HOME", "/home/user");
    EXPECT_EQ(FilePreferenceSuites::defaultDirectory(), fs::path("/home/user/.config/Tactora"));
}

TEST(FilePreferenceSuitesDirectory, IgnoresEmptyOrRelativeXdgConfigHome) {
    const ScopedEnvironment home("HOME", "/home/user");
    {
        const ScopedEnvironment config("XDG_CONFIG_HOME", "");
        EXPECT_EQ(FilePreferenceSuites::defaultDirectory(), fs::path("/home/user/.config/Tactora"));
    }
    const ScopedEnvironment config("XDG_CONFIG_HOME", "relative/config");
    EXPECT_EQ(FilePreferenceSuites::defaultDirectory(), fs::path("/home/user/.config/Tactora"));
}

TEST(FilePreferenceSuitesDirectory, NothingWithoutHomeOrConfig) {
    const ScopedEnvironment config("XDG_CONFIG_HOME", nullptr);
    const ScopedEnvironment home("HOME", nullptr);
    EXPECT_EQ(FilePreferenceSuites::defaultDirectory(), std::nullopt);
}

}  // namespace
}  // namespace tactora
