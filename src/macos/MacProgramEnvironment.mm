#include "macos/MacProgramEnvironment.h"

#import <AppKit/AppKit.h>

#include "macos/BundledIcon.h"
#include "macos/MacApplication.h"
#include "macos/StringConversion.h"

namespace tactora::macos {

std::optional<std::string> MacProgramEnvironment::preferredLocalization() {
    NSString* language = NSBundle.mainBundle.preferredLocalizations.firstObject;
    if (language == nil) {
        return std::nullopt;
    }
    return toStdString(language);
}

std::optional<std::vector<std::int64_t>> MacProgramEnvironment::appIconPixelWidths() {
    NSImage* icon = loadBundledIcon();
    if (icon == nil) {
        return std::nullopt;
    }
    std::vector<std::int64_t> widths;
    for (NSImageRep* representation in icon.representations) {
        widths.push_back(representation.pixelsWide);
    }
    return widths;
}

void MacProgramEnvironment::runApplication() {
    // AppKit's controls need the shared application to exist before they are made.
    [NSApplication sharedApplication];
    // Deliberately never deleted (see MacApplication): the sensor's thread may still be in a
    // frame callback when the process ends.
    auto* const application = new MacApplication(sensor_, touchDevices_, preferences_.standard());
    application->run();
}

}  // namespace tactora::macos
