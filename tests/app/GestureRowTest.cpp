#include "core/app/GestureRow.h"

#include <gtest/gtest.h>

#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"

namespace tactora {
namespace {

TEST(GestureRowTest, ClickRowsThenTapRowsWithHeadingsAndFingerLabels) {
    setStringTable(std::make_shared<const StringsTable>(
        StringsTable::Entries{{"finger.many", "%d fingers"}, {"finger.one", "1 finger"}}));
    const std::vector<GestureRow> rows = gestureRows();
    setStringTable(nullptr);

    ASSERT_EQ(rows.size(), 8U);
    EXPECT_EQ(rows[0], (GestureRow{"section.click", "1 finger", 0}));
    EXPECT_EQ(rows[1], (GestureRow{std::nullopt, "2 fingers", 1}));
    EXPECT_EQ(rows[3], (GestureRow{std::nullopt, "4 fingers", 3}));
    EXPECT_EQ(rows[4], (GestureRow{"section.tap", "1 finger", 4}));
    EXPECT_EQ(rows[7], (GestureRow{std::nullopt, "4 fingers", 7}));
}

}  // namespace
}  // namespace tactora
