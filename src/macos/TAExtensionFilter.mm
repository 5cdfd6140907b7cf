#import "macos/TAExtensionFilter.h"

@implementation TAExtensionFilter {
    NSString* _extension;
}

- (instancetype)initWithExtension:(NSString*)extension {
    self = [super init];
    if (self != nil) {
        _extension = [extension copy];
    }
    return self;
}

- (BOOL)panel:(id)sender shouldEnableURL:(NSURL*)url {
    if ([url.pathExtension caseInsensitiveCompare:_extension] == NSOrderedSame) {
        return YES;
    }
    NSNumber* directory = nil;
    NSNumber* package = nil;
    [url getResourceValue:&directory forKey:NSURLIsDirectoryKey error:nil];
    [url getResourceValue:&package forKey:NSURLIsPackageKey error:nil];
    return directory.boolValue && !package.boolValue;
}

@end
