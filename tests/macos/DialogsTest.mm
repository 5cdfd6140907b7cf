// The dialogs' buttons, in every language the bundle ships: Escape cancels every dialog that
// has a Cancel button, and nothing but a click confirms a deletion.
#import <AppKit/AppKit.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>

#include "core/localization/Localizer.h"
#include "core/localization/StringsTable.h"
#include "macos/AppBundle.h"
#include "macos/AppKitDialogs.h"
#include "macos/StringConversion.h"

namespace tactora::testing {
namespace {

class DialogsTest : public ::testing::TestWithParam<std::string> {
  protected:
    void SetUp() override {
        NSDictionary* texts =
            [NSDictionary dictionaryWithContentsOfFile:stringTablePath(GetParam())];
        StringsTable::Entries entries;
        for (NSString* key in texts) {
            if ([texts[key] isKindOfClass:NSString.class]) {
                entries.emplace(macos::toStdString(key), macos::toStdString(texts[key]));
            }
        }
        setStringTable(std::make_shared<const StringsTable>(std::move(entries)));
    }
    void TearDown() override { setStringTable(nullptr); }
};

TEST_P(DialogsTest, EscapeCancelsTheDeleteConfirmationAndReturnDoesNotConfirm) {
    NSAlert* alert = macos::makeConfirmationAlert({
        .message = L("profile.delete.message", std::string("Work")),
        .informative = L("profile.delete.info"),
        .confirmButton = L("profile.delete.button"),
        .cancelButton = L("cancel"),
    });

    ASSERT_EQ(alert.buttons.count, 2U);
    NSButton* confirm = alert.buttons[0];
    NSButton* cancel = alert.buttons[1];
    EXPECT_TRUE([cancel.title isEqualToString:@(L("cancel").c_str())]);
    EXPECT_TRUE([cancel.keyEquivalent isEqualToString:@"\033"]);
    EXPECT_EQ(confirm.keyEquivalent.length, 0U);
    EXPECT_TRUE(confirm.hasDestructiveAction);
}

TEST_P(DialogsTest, EscapeCancelsTheNamingDialog) {
    NSAlert* alert = macos::makeNamingAlert({
        .message = L("profile.new"),
        .informative = L("profile.name"),
        .saveButton = L("profile.save"),
        .cancelButton = L("cancel"),
        .initialText = "Work",
    });

    ASSERT_EQ(alert.buttons.count, 2U);
    EXPECT_TRUE([alert.buttons[1].keyEquivalent isEqualToString:@"\033"]);
    EXPECT_TRUE([alert.buttons[0].keyEquivalent isEqualToString:@"\r"]);
    ASSERT_TRUE([alert.accessoryView isKindOfClass:NSTextField.class]);
    EXPECT_TRUE(
        [static_cast<NSTextField*>(alert.accessoryView).stringValue isEqualToString:@"Work"]);
}

INSTANTIATE_TEST_SUITE_P(ShippedLanguages, DialogsTest, ::testing::ValuesIn(shippedLanguages()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = info.param;
                             std::ranges::replace(name, '-', '_');
                             return name;
                         });

}  // namespace
}  // namespace tactora::testing
