// Telling a start at login from any other by the Apple event that opened the application.
#import <CoreServices/CoreServices.h>
#import <Foundation/Foundation.h>

#include <gtest/gtest.h>

#include "macos/LaunchEvent.h"

namespace tactora::testing {
namespace {

NSAppleEventDescriptor* openApplicationEvent() {
    return [NSAppleEventDescriptor appleEventWithEventClass:kCoreEventClass
                                                    eventID:kAEOpenApplication
                                           targetDescriptor:nil
                                                   returnID:kAutoGenerateReturnID
                                              transactionID:kAnyTransactionID];
}

TEST(LaunchEventTest, NoEventIsAStartByTheUser) {
    EXPECT_EQ(macos::launchOrigin(nil), LaunchOrigin::user);
}

TEST(LaunchEventTest, APlainOpenApplicationEventIsAStartByTheUser) {
    EXPECT_EQ(macos::launchOrigin(openApplicationEvent()), LaunchOrigin::user);
}

TEST(LaunchEventTest, TheLoginItemsOpenApplicationEventIsAStartAtLogin) {
    NSAppleEventDescriptor* event = openApplicationEvent();
    [event
        setParamDescriptor:[NSAppleEventDescriptor descriptorWithEnumCode:keyAELaunchedAsLogInItem]
                forKeyword:keyAEPropData];
    EXPECT_EQ(macos::launchOrigin(event), LaunchOrigin::loginItem);
}

TEST(LaunchEventTest, AServiceItemOrAnotherEventIsNotAStartAtLogin) {
    NSAppleEventDescriptor* service = openApplicationEvent();
    [service setParamDescriptor:[NSAppleEventDescriptor
                                    descriptorWithEnumCode:keyAELaunchedAsServiceItem]
                     forKeyword:keyAEPropData];
    EXPECT_EQ(macos::launchOrigin(service), LaunchOrigin::user);

    NSAppleEventDescriptor* reopen =
        [NSAppleEventDescriptor appleEventWithEventClass:kCoreEventClass
                                                 eventID:kAEReopenApplication
                                        targetDescriptor:nil
                                                returnID:kAutoGenerateReturnID
                                           transactionID:kAnyTransactionID];
    [reopen
        setParamDescriptor:[NSAppleEventDescriptor descriptorWithEnumCode:keyAELaunchedAsLogInItem]
                forKeyword:keyAEPropData];
    EXPECT_EQ(macos::launchOrigin(reopen), LaunchOrigin::user);
}

}  // namespace
}  // namespace tactora::testing
