#include "macos/MachPortEventTap.h"

namespace tactora::macos {

MachPortEventTap::~MachPortEventTap() {
    if (source_) {
        CFRunLoopRemoveSource(CFRunLoopGetMain(), source_.get(), kCFRunLoopCommonModes);
    }
    if (port_) {
        CGEventTapEnable(port_.get(), false);
        CFMachPortInvalidate(port_.get());
    }
}

bool MachPortEventTap::create(std::uint64_t mask) {
    CFHandle<CFMachPortRef> port(
        CGEventTapCreate(kCGHIDEventTap, kCGHeadInsertEventTap, kCGEventTapOptionDefault,
                         static_cast<CGEventMask>(mask), callback_, userInfo_));
    if (!port) {
        return false;
    }
    // A new tap starts enabled; it stays off until the controller switches it on.
    CGEventTapEnable(port.get(), false);
    CFHandle<CFRunLoopSourceRef> source(
        CFMachPortCreateRunLoopSource(kCFAllocatorDefault, port.get(), 0));
    if (!source) {
        CFMachPortInvalidate(port.get());
        return false;
    }
    CFRunLoopAddSource(CFRunLoopGetMain(), source.get(), kCFRunLoopCommonModes);
    port_ = std::move(port);
    source_ = std::move(source);
    return true;
}

bool MachPortEventTap::exists() const {
    return static_cast<bool>(port_);
}

void MachPortEventTap::setEnabled(bool enabled) {
    if (port_) {
        CGEventTapEnable(port_.get(), enabled);
    }
}

}  // namespace tactora::macos
