#import "macos/TASettingsControls.h"

@implementation TASettingsControls

- (instancetype)initWithEnableTitle:(NSString*)enableTitle {
    self = [super init];
    if (self != nil) {
        _status = [NSTextField labelWithString:@""];
        _permission = [NSTextField labelWithString:@""];
        _live = [NSTextField labelWithString:@""];
        _enabled = [NSButton checkboxWithTitle:enableTitle target:nil action:nil];
        _enabled.state = NSControlStateValueOff;
        _keepOn = [NSButton checkboxWithTitle:@"" target:nil action:nil];
        _loginItem = [NSButton checkboxWithTitle:@"" target:nil action:nil];
        _resetPermissions = [NSButton buttonWithTitle:@"" target:nil action:nil];
        _resetPermissions.hidden = YES;
        _openLoginItems = [NSButton buttonWithTitle:@"" target:nil action:nil];
        _openLoginItems.hidden = YES;
        _profileMenu = [[NSPopUpButton alloc] initWithFrame:NSZeroRect pullsDown:NO];
        _deleteProfileItem = [[NSMenuItem alloc] initWithTitle:@"" action:nil keyEquivalent:@""];
        _applicationsSheet = [[TAApplicationsSheet alloc] init];
        _actionMenus = [NSMutableArray array];
        _recordButtons = [NSMutableArray array];
        _deviceTable = [[TADeviceTable alloc] init];
        _surface = [[TASurfaceView alloc] initWithFrame:NSZeroRect];
    }
    return self;
}

@end
