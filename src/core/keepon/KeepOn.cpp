#include "core/keepon/KeepOn.h"

#include <algorithm>
#include <utility>

namespace tactora {

namespace {

bool readFlag(const Preferences& defaults, const char* key) {
    return defaults.integer(key) == std::int64_t{1};
}

}  // namespace

KeepOn::KeepOn(std::shared_ptr<Preferences> defaults)
    : defaults_(std::move(defaults)),
      enabled_(readFlag(*defaults_, enabledKey)),
      wanted_(enabled_ && readFlag(*defaults_, wantedKey)) {}

bool KeepOn::waitIsAnnounced(KeepOnWait wait) {
    switch (wait) {
        case KeepOnWait::sensor:
        case KeepOnWait::accessibility:
        case KeepOnWait::inputMonitoring:
        case KeepOnWait::eventTap:
            return true;
        case KeepOnWait::nothing:
        case KeepOnWait::coolDown:
        case KeepOnWait::stopped:
            break;
    }
    return false;
}

bool KeepOn::setEnabled(bool on, bool gesturesOn) {
    const bool announced = waitIsAnnounced(waiting_);
    enabled_ = on;
    store(enabledKey, on);
    wanted_ = on && gesturesOn;
    store(wantedKey, wanted_);
    waiting_ = KeepOnWait::nothing;
    disables_.clear();
    cancelScheduled();
    return announced;
}

bool KeepOn::userChose(bool on) {
    const bool announced = !on && waitIsAnnounced(waiting_);
    cancelScheduled();
    if (on) {
        disables_.clear();
        if (waiting_ == KeepOnWait::stopped || waiting_ == KeepOnWait::coolDown) {
            waiting_ = KeepOnWait::nothing;
        }
    } else {
        waiting_ = KeepOnWait::nothing;
    }
    if (enabled_) {
        wanted_ = on;
        store(wantedKey, on);
    }
    return announced;
}

bool KeepOn::shouldArm() const {
    return enabled_ && wanted_ && waiting_ != KeepOnWait::coolDown &&
           waiting_ != KeepOnWait::stopped;
}

bool KeepOn::setWaiting(KeepOnWait wait) {
    const bool changed = wait != waiting_;
    waiting_ = wait;
    return changed;
}

std::optional<double> KeepOn::tapDisabled(double now) {
    // A notice that arrives after the stop (gestures are off by then) neither counts nor
    // restarts: only the user's tick does.
    if (waiting_ == KeepOnWait::stopped) {
        return std::nullopt;
    }
    cancelScheduled();
    if (!disables_.empty() && now - disables_.back() > ladderMemory) {
        disables_.clear();
    }
    disables_.push_back(now);
    const auto recent =
        std::ranges::count_if(disables_, [now](double at) { return now - at < disableWindow; });
    if (static_cast<std::size_t>(recent) >= disableLimit) {
        waiting_ = KeepOnWait::stopped;
        return std::nullopt;
    }
    waiting_ = KeepOnWait::coolDown;
    const std::size_t step = std::min(disables_.size(), coolDowns.size()) - 1;
    return coolDowns.at(step);
}

bool KeepOn::coolDownEnded(std::uint64_t epoch) {
    if (epoch != epoch_ || waiting_ != KeepOnWait::coolDown) {
        return false;
    }
    waiting_ = KeepOnWait::nothing;
    return true;
}

void KeepOn::woke() {
    ++wakeEpoch_;
    wakeRetry_ = 0;
}

std::optional<double> KeepOn::nextWakeRetry() {
    if (!wakeRetry_ || *wakeRetry_ >= wakeRetries.size()) {
        wakeRetry_.reset();
        return std::nullopt;
    }
    ++wakeEpoch_;
    return wakeRetries.at((*wakeRetry_)++);
}

void KeepOn::sensorConnected() {
    wakeRetry_.reset();
    ++wakeEpoch_;
}

void KeepOn::store(const char* key, bool value) {
    defaults_->setInteger(key, value ? 1 : 0);
}

}  // namespace tactora
