#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <utility>

namespace tactora::macos {

// Owns one reference to a CoreFoundation object obtained under the Create rule and releases it
// when it goes. Move-only, like the reference it holds.
template <typename Ref>
class CFHandle {
  public:
    CFHandle() = default;
    explicit CFHandle(Ref ref) : ref_(ref) {}
    ~CFHandle() { reset(); }

    CFHandle(const CFHandle&) = delete;
    CFHandle& operator=(const CFHandle&) = delete;
    CFHandle(CFHandle&& other) noexcept : ref_(std::exchange(other.ref_, nullptr)) {}
    CFHandle& operator=(CFHandle&& other) noexcept {
        if (this != &other) {
            reset(std::exchange(other.ref_, nullptr));
        }
        return *this;
    }

    Ref get() const { return ref_; }
    explicit operator bool() const { return ref_ != nullptr; }

    void reset(Ref ref = nullptr) {
        if (ref_ != nullptr) {
            CFRelease(ref_);
        }
        ref_ = ref;
    }

  private:
    Ref ref_ = nullptr;
};

}  // namespace tactora::macos
