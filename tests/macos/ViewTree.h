#pragma once

#import <AppKit/AppKit.h>

#include <vector>

namespace tactora::testing {

// Every view of class `View` (or a subclass) below `view`, depth first, `view` itself excluded.
template <typename View>
std::vector<View*> subviewsOf(NSView* view) {
    std::vector<View*> found;
    for (NSView* subview in view.subviews) {
        if ([subview isKindOfClass:[View class]]) {
            found.push_back(static_cast<View*>(subview));
        }
        const std::vector<View*> below = subviewsOf<View>(subview);
        found.insert(found.end(), below.begin(), below.end());
    }
    return found;
}

}  // namespace tactora::testing
