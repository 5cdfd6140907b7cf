#include "core/keepon/PermissionMemory.h"

#include <cstdint>
#include <utility>

namespace tactora {

namespace {

bool readFlag(const Preferences& defaults, const char* key) {
    return defaults.integer(key) == std::int64_t{1};
}

}  // namespace

PermissionMemory::PermissionMemory(std::shared_ptr<Preferences> defaults)
    : defaults_(std::move(defaults)),
      accessibilityBefore_(readFlag(*defaults_, accessibilityKey)),
      inputMonitoringBefore_(readFlag(*defaults_, inputMonitoringKey)),
      accessibilitySeen_(accessibilityBefore_),
      inputMonitoringSeen_(inputMonitoringBefore_) {}

void PermissionMemory::observe(bool accessibility, bool inputMonitoring) {
    if (accessibility) {
        remember(accessibilityKey, accessibilitySeen_);
    }
    if (inputMonitoring) {
        remember(inputMonitoringKey, inputMonitoringSeen_);
    }
}

bool PermissionMemory::accessibilityStale(bool accessibilityNow) const {
    return accessibilityBefore_ && !accessibilityNow;
}

bool PermissionMemory::inputMonitoringStale(bool inputMonitoringNow) const {
    return inputMonitoringBefore_ && !inputMonitoringNow;
}

void PermissionMemory::forget() {
    defaults_->remove(accessibilityKey);
    defaults_->remove(inputMonitoringKey);
    accessibilityBefore_ = false;
    inputMonitoringBefore_ = false;
    accessibilitySeen_ = false;
    inputMonitoringSeen_ = false;
}

void PermissionMemory::remember(const char* key, bool& seen) {
    // Written once per run, not at every refresh.
    if (!seen) {
        defaults_->setInteger(key, 1);
        seen = true;
    }
}

}  // namespace tactora
