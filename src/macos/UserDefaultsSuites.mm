#include "macos/UserDefaultsSuites.h"

#import <Foundation/Foundation.h>

#include "core/support/Fatal.h"
#include "macos/StringConversion.h"
#include "macos/UserDefaultsPreferences.h"

namespace tactora::macos {

std::shared_ptr<Preferences> UserDefaultsSuites::standard() {
    if (!standard_) {
        standard_ = std::make_shared<UserDefaultsPreferences>(NSUserDefaults.standardUserDefaults);
    }
    return standard_;
}

std::shared_ptr<Preferences> UserDefaultsSuites::suite(const std::string& name) {
    NSUserDefaults* defaults = [[NSUserDefaults alloc] initWithSuiteName:toNSString(name)];
    // Only the application's own identifier and the global domain are refused as suite names.
    if (defaults == nil) {
        fatalError("User defaults refused the suite name " + name);
    }
    return std::make_shared<UserDefaultsPreferences>(defaults);
}

void UserDefaultsSuites::removeSuite(const std::string& name) {
    [NSUserDefaults.standardUserDefaults removePersistentDomainForName:toNSString(name)];
}

}  // namespace tactora::macos
