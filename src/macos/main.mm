#import <Foundation/Foundation.h>

#include <memory>
#include <string>
#include <vector>

#include "core/console/Program.h"
#include "core/localization/Localizer.h"
#include "core/text/TextHandling.h"
#include "macos/BundleStringTable.h"
#include "macos/MacProgramEnvironment.h"

int main(int argc, const char* argv[]) {
    @autoreleasepool {
        tactora::installTextHandling(tactora::makePlatformTextHandling());
        tactora::setStringTable(std::make_shared<tactora::macos::BundleStringTable>());
        const std::vector<std::string> arguments(argv, argv + argc);
        // Never destroyed, like the application it makes (see MacApplication), which refers to
        // its sensor until the process ends.
        auto& environment = *new tactora::macos::MacProgramEnvironment();
        return tactora::runProgram(arguments, environment);
    }
}
