#pragma once

#import <AppKit/AppKit.h>

#include <memory>

namespace tactora {
class Controller;
}

NS_ASSUME_NONNULL_BEGIN

// The application's delegate and the target of every menu item and control: it hands each call
// to the controller unchanged. The action selectors are the controller's operation names.
@interface TAApplicationDelegate : NSObject <NSApplicationDelegate>

- (void)attachController:(std::shared_ptr<tactora::Controller>)controller;

- (void)show;
- (void)quit;
- (void)pause;
- (void)recordTouches;
- (void)toggle;
- (void)access;
- (void)monitor;
- (void)reconnect;
- (void)selectProfile;
- (void)newProfile;
- (void)renameProfile;
- (void)duplicateProfile;
- (void)changed:(NSControl*)sender;
- (void)recordShortcut:(NSControl*)sender;
- (void)testDesktop;

@end

NS_ASSUME_NONNULL_END
