#include "macos/AppKitSurfaceView.h"

#import <AppKit/AppKit.h>

#import "macos/TASurfaceView.h"

namespace tactora::macos {

AppKitSurfaceView::~AppKitSurfaceView() {
    if (occlusionObserver_ != nil) {
        [NSNotificationCenter.defaultCenter removeObserver:occlusionObserver_];
    }
}

void AppKitSurfaceView::observeVisibility(std::function<void(bool visible)> handler) {
    occlusionObserver_ = [NSNotificationCenter.defaultCenter
        addObserverForName:NSWindowDidChangeOcclusionStateNotification
                    object:controls_.window
                     queue:NSOperationQueue.mainQueue
                usingBlock:^(NSNotification* notification) {
                    NSWindow* window = notification.object;
                    handler((window.occlusionState & NSWindowOcclusionStateVisible) != 0);
                }];
}

void AppKitSurfaceView::show(const SurfaceSnapshot& snapshot) {
    [controls_.surface showSnapshot:snapshot];
}

}  // namespace tactora::macos
