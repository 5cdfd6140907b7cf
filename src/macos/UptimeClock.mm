#include "macos/UptimeClock.h"

#import <Foundation/Foundation.h>

namespace tactora::macos {

double UptimeClock::uptime() const {
    return NSProcessInfo.processInfo.systemUptime;
}

}  // namespace tactora::macos
