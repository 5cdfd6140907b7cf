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
        tactora::macos::MacProgramEnvironment environment;
        return tactora::runProgram(arguments, environment);
    }
}
