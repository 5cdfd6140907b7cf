#pragma once

#include <CoreGraphics/CoreGraphics.h>

#include <cstdint>

#include "core/platform/EventTap.h"
#include "macos/CFHandle.h"

namespace tactora::macos {

// A CoreGraphics event tap and its run-loop source on the main run loop. Every event it sees
// goes to `callback`, with `userInfo` (not owned) as its user-info pointer.
class MachPortEventTap final : public EventTap {
  public:
    explicit MachPortEventTap(CGEventTapCallBack callback, void* userInfo = nullptr)
        : callback_(callback), userInfo_(userInfo) {}
    ~MachPortEventTap() override;

    MachPortEventTap(const MachPortEventTap&) = delete;
    MachPortEventTap& operator=(const MachPortEventTap&) = delete;

    bool create(std::uint64_t mask) override;
    bool exists() const override;
    void setEnabled(bool enabled) override;

  private:
    CGEventTapCallBack callback_;
    void* userInfo_;
    CFHandle<CFMachPortRef> port_;
    CFHandle<CFRunLoopSourceRef> source_;
};

}  // namespace tactora::macos
