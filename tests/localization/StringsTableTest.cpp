#include "core/localization/StringsTable.h"

#include <gtest/gtest.h>

#include "localization/TemporaryDirectory.h"

namespace tactora {
namespace {

TEST(StringsTableTest, LooksUpItsEntries) {
    const StringsTable table(StringsTable::Entries{{"ok", "Granted"}});
    EXPECT_EQ(table.lookup("ok"), "Granted");
    EXPECT_EQ(table.lookup("pending"), std::nullopt);
}

TEST(StringsTableTest, EmptyTextIsAnEntry) {
    const StringsTable table(StringsTable::Entries{{"empty", ""}});
    EXPECT_EQ(table.lookup("empty"), "");
}

TEST(StringsTableTest, KeepsTheEntriesReadBeforeAParseError) {
    const StringsTable table(parseStringsFile("\"a\" = \"1\";\n\"b\" = \"2\"\n\"c\" = \"3\";"));
    EXPECT_EQ(table.lookup("a"), "1");
    EXPECT_EQ(table.lookup("b"), std::nullopt);
    EXPECT_EQ(table.lookup("c"), std::nullopt);
}

TEST(StringsTableTest, LoadsAFile) {
    const TemporaryDirectory directory;
    const auto path = directory.write("en.lproj/Localizable.strings", "\"hero\" = \"Hello\";");
    const std::shared_ptr<const StringsTable> table = StringsTable::load(path);
    ASSERT_NE(table, nullptr);
    EXPECT_EQ(table->lookup("hero"), "Hello");
}

TEST(StringsTableTest, UnreadableFileGivesNoTable) {
    const TemporaryDirectory directory;
    EXPECT_EQ(StringsTable::load(directory.path() / "missing.strings"), nullptr);
}

}  // namespace
}  // namespace tactora
