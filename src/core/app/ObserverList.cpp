#include "core/app/ObserverList.h"

#include <algorithm>
#include <type_traits>

namespace tactora {

ObserverList::~ObserverList() {
    for (ControllerObserver* observer : observers_) {
        if (observer->wanters_ == &mouseEventWanters_) {
            observer->wanters_ = nullptr;
        }
    }
}

void ObserverList::add(ControllerObserver& observer) {
    if (observer.wanters_ == nullptr) {
        observer.wanters_ = &mouseEventWanters_;
        mouseEventWanters_ += observer.wantsMouseEvents_ ? 1 : 0;
    }
    observers_.push_back(&observer);
}

void ObserverList::remove(ControllerObserver& observer) {
    const auto found = std::ranges::find(observers_, &observer);
    if (found == observers_.end()) {
        return;
    }
    observers_.erase(found);
    if (std::ranges::find(observers_, &observer) == observers_.end() &&
        observer.wanters_ == &mouseEventWanters_) {
        mouseEventWanters_ -= observer.wantsMouseEvents_ ? 1 : 0;
        observer.wanters_ = nullptr;
    }
}

MouseEventNote* ObserverList::keepMouseEvent() {
    Note* slot = nextSlot();
    return slot == nullptr ? nullptr : &slot->emplace<MouseEventNote>();
}

void ObserverList::frameReceived(const FrameNote& note) {
    each(&ControllerObserver::frameReceived, note);
}

void ObserverList::gestureRecognised(const GestureNote& note) {
    tell(note);
}
void ObserverList::touchDropped(const TouchDropNote& note) {
    tell(note);
}
void ObserverList::actionPerformed(const ActionNote& note) {
    tell(note);
}
void ObserverList::actionDropped(const ActionDropNote& note) {
    tell(note);
}
void ObserverList::pressesReleased(const PressesReleasedNote& note) {
    tell(note);
}
void ObserverList::switchChanged(const SwitchNote& note) {
    tell(note);
}
void ObserverList::profileSelected(const ProfileNote& note) {
    tell(note);
}
void ObserverList::activeChanged(const ActiveNote& note) {
    tell(note);
}

void ObserverList::switchChosen(const SwitchNote& note) {
    each(&ControllerObserver::switchChosen, note);
}
void ObserverList::frontApplicationChanged(const FrontApplicationNote& note) {
    each(&ControllerObserver::frontApplicationChanged, note);
}
void ObserverList::launched(double time) {
    each(&ControllerObserver::launched, time);
}
void ObserverList::windowShown(const MomentNote& note) {
    each(&ControllerObserver::windowShown, note);
}
void ObserverList::woke(const MomentNote& note) {
    each(&ControllerObserver::woke, note);
}
void ObserverList::reconnected(const ReconnectNote& note) {
    each(&ControllerObserver::reconnected, note);
}
void ObserverList::permissionsPolled(const PermissionsNote& note) {
    each(&ControllerObserver::permissionsPolled, note);
}
void ObserverList::refreshed(double time) {
    each(&ControllerObserver::refreshed, time);
}
void ObserverList::terminating(double time) {
    each(&ControllerObserver::terminating, time);
}

void ObserverList::tell(const Note& note) {
    if (observers_.empty() || keep(note)) {
        return;
    }
    for (ControllerObserver* observer : observers_) {
        std::visit(
            [observer](const auto& told) {
                using Told = std::decay_t<decltype(told)>;
                if constexpr (std::is_same_v<Told, GestureNote>) {
                    observer->gestureRecognised(told);
                } else if constexpr (std::is_same_v<Told, TouchDropNote>) {
                    observer->touchDropped(told);
                } else if constexpr (std::is_same_v<Told, ActionNote>) {
                    observer->actionPerformed(told);
                } else if constexpr (std::is_same_v<Told, ActionDropNote>) {
                    observer->actionDropped(told);
                } else if constexpr (std::is_same_v<Told, MouseEventNote>) {
                    observer->mouseEventDecided(told);
                } else if constexpr (std::is_same_v<Told, PressesReleasedNote>) {
                    observer->pressesReleased(told);
                } else if constexpr (std::is_same_v<Told, SwitchNote>) {
                    observer->switchChanged(told);
                } else if constexpr (std::is_same_v<Told, ProfileNote>) {
                    observer->profileSelected(told);
                } else {
                    observer->activeChanged(told);
                }
            },
            note);
    }
}

bool ObserverList::keep(const Note& note) {
    if (deferring_ == 0) {
        return false;
    }
    if (Note* slot = nextSlot()) {
        *slot = note;
    }
    return true;
}

ObserverList::Note* ObserverList::nextSlot() {
    return keptCount_ == kept_.size() ? nullptr : &kept_.at(keptCount_++);
}

void ObserverList::tellKept() {
    const std::size_t count = keptCount_;
    keptCount_ = 0;
    for (std::size_t i = 0; i < count; ++i) {
        const Note note = std::move(kept_.at(i));
        tell(note);
    }
}

}  // namespace tactora
