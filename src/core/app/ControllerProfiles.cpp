#include <algorithm>

#include "core/app/Controller.h"
#include "core/app/ProfileName.h"
#include "core/app/TouchStep.h"
#include "core/localization/Localizer.h"
#include "core/profiles/GestureSlot.h"

namespace tactora {

namespace {

// The active profile's item is titled `activeTitle`, which says so when the application in
// front chose it.
std::vector<ProfileMenuItem> profileItems(const ProfileStore& store,
                                          const std::string& activeTitle) {
    std::vector<ProfileMenuItem> items;
    items.reserve(store.profiles().size());
    for (const WorkProfile& profile : store.profiles()) {
        const bool active = profile.id == store.activeID();
        items.push_back({active ? activeTitle : profile.name, profile.id.text()});
    }
    return items;
}

const char* namingTitle(NamingMode mode) {
    switch (mode) {
        case NamingMode::create:
            break;
        case NamingMode::rename:
            return "profile.rename";
        case NamingMode::duplicate:
            return "profile.duplicate";
    }
    return "profile.new";
}

}  // namespace

void Controller::refreshProfileUI() {
    const ProfileStore& store = profiles();
    services_.view.setProfileItems(profileItems(store, activeProfileTitle()));
    services_.view.setDeleteProfileEnabled(store.profiles().size() > 1);
    const auto active = std::find_if(
        store.profiles().begin(), store.profiles().end(),
        [&store](const WorkProfile& profile) { return profile.id == store.activeID(); });
    if (active != store.profiles().end()) {
        services_.view.selectProfileItem(
            static_cast<std::size_t>(active - store.profiles().begin()));
    }
    if (!windowBuilt_) {
        return;
    }
    for (std::int64_t slot = 0; slot < std::int64_t{slot::count}; ++slot) {
        const ActionIndex action = actionAt(slot);
        const std::optional<SavedShortcut>& shortcut = shortcutAt(slot);
        const auto index = static_cast<std::size_t>(slot);
        services_.view.selectAction(index,
                                    std::clamp(action, ActionIndex{0}, action::allCount - 1));
        const std::optional<ExtraAction> extra = action::extra(action);
        if (extra && services_.extraActions != nullptr) {
            services_.view.setRecordButton(
                index, services_.extraActions->rowButton(*extra, valueAt(slot)));
            continue;
        }
        services_.view.setRecordButton(index,
                                       {
                                           .enabled = action == action::custom,
                                           .title = shortcut ? shortcut->label : L("record.button"),
                                           .toolTip = L("record.button"),
                                       });
    }
}

void Controller::changed(std::int64_t slot) {
    cancelPendingActions();
    const ActionIndex action = services_.view.selectedAction(static_cast<std::size_t>(slot));
    if (const std::optional<ExtraAction> extra = action::extra(action)) {
        chooseExtra(slot, *extra);
    } else if (action == action::custom && !shortcutAt(slot)) {
        // The recording stores the shortcut and the custom action together when it is saved.
        beginRecording(slot);
    } else {
        profiles().setAction(action, slot);
    }
    refreshProfileUI();
}

void Controller::chooseExtra(std::int64_t slot, ExtraAction extra) {
    ExtraActionPerformer* const extras = services_.extraActions.get();
    if (extras == nullptr) {
        return;
    }
    // Choosing the slot's own action again changes its value, starting from the one it has.
    const std::string current = actionAt(slot) == action::index(extra) ? valueAt(slot) : "";
    // A value may come after the list of Shortcuts arrived; by then it belongs to the same
    // profile only.
    extras->choose(extra, current,
                   [weak = weak_from_this(), slot, extra,
                    profile = profiles().activeID()](const std::string& value) {
                       const auto self = weak.lock();
                       if (!self || self->profiles().activeID() != profile) {
                           return;
                       }
                       self->cancelPendingActions();
                       self->profiles().setExtra({extra, value}, slot);
                       self->refreshProfileUI();
                   });
}

void Controller::selectProfile() {
    const std::optional<std::string> text = services_.view.selectedProfileID();
    const std::optional<Uuid> id = text ? Uuid::parse(*text) : std::nullopt;
    if (!id) {
        return;
    }
    switchProfile(*id, ProfileSwitch::chosen);
}

void Controller::switchProfile(const Uuid& id, ProfileSwitch kind) {
    dropPendingWork();
    if (kind == ProfileSwitch::chosen) {
        profiles().select(id);
    } else {
        profiles().activate(id);
    }
    observers_.profileSelected({.id = id.text(),
                                .chosen = kind == ProfileSwitch::chosen,
                                .time = services_.clock.uptime()});
    state_.lastGesture = "—";
    state_.lastAction.clear();
    refreshProfileUI();
    refresh();
}

void Controller::switchProfileAutomatically(const Uuid& id) {
    switchProfile(id, ProfileSwitch::automatic);
}

void Controller::tellFrontApplication(const FrontApplicationNote& note) {
    observers_.frontApplicationChanged(note);
}

std::string Controller::activeProfileTitle() {
    return titleSource_ != nullptr ? titleSource_->activeProfileTitle() : profiles().current().name;
}

void Controller::nameProfile(NamingMode mode) {
    // A touch half seen before the dialog must not complete after it, even when it is cancelled.
    cancelPendingActions();
    releasePresses();
    resetTouch(state_.gesture, services_.judge.get(), services_.extension.get());
    const NamingDialogTexts texts{
        .message = L(namingTitle(mode)),
        .informative = L("profile.name"),
        .saveButton = L("profile.save"),
        .cancelButton = L("cancel"),
        .initialText = mode == NamingMode::create ? std::string() : profiles().current().name,
    };
    const std::optional<std::string> entered = services_.dialogs.runNamingDialog(texts);
    const std::optional<std::string> name = entered ? profileName(*entered) : std::nullopt;
    if (!name) {
        return;
    }
    releasePresses();
    resetTouch(state_.gesture, services_.judge.get(), services_.extension.get());
    if (mode == NamingMode::rename) {
        profiles().rename(*name);
    } else {
        profiles().add(*name, mode == NamingMode::duplicate);
    }
    refreshProfileUI();
}

}  // namespace tactora
