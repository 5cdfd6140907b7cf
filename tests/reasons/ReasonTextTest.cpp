#include "core/reasons/ReasonText.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>

#include "core/localization/LocalizationKeys.h"
#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"

namespace tactora {
namespace {

constexpr DropReason everyReason[] = {
    DropReason::tooLong,        DropReason::tooShort,           DropReason::moved,
    DropReason::tooManyFingers, DropReason::clickDuring,        DropReason::clickAfter,
    DropReason::profileChanged, DropReason::applicationChanged, DropReason::switchChanged,
    DropReason::gesturesOff,    DropReason::largeContact,       DropReason::edgeBand,
    DropReason::restingContact, DropReason::afterActivity,      DropReason::duringPress,
    DropReason::drumming,
};

TEST(ReasonTextTest, EveryReasonHasAKeyOfItsOwnThatTheProgramLooksUp) {
    std::set<std::string_view> keys;
    for (const DropReason reason : everyReason) {
        const std::string_view key = reasons::reasonKey(reason);
        EXPECT_TRUE(findLocalizationKey(key)) << key;
        keys.insert(key);
    }
    EXPECT_EQ(keys.size(), std::size(everyReason));
}

TEST(ReasonTextTest, TheTextIsTheLocalisedOne) {
    setStringTable(std::make_shared<const StringsTable>(
        StringsTable::Entries{{"reason.edge_band", "At the edge."}}));

    EXPECT_EQ(reasons::reasonText(DropReason::edgeBand), "At the edge.");
    EXPECT_EQ(reasons::reasonText(DropReason::moved), "reason.moved");
    setStringTable(nullptr);
}

}  // namespace
}  // namespace tactora
