#include "core/moreactions/ExtraActions.h"

#include <algorithm>
#include <utility>

#include "core/localization/Localizer.h"
#include "core/moreactions/ExtraActionCatalogue.h"
#include "core/moreactions/WebAddress.h"
#include "core/platform/MouseButton.h"

namespace tactora {

namespace {

// The lines of what `shortcuts list` wrote, without blank ones.
std::vector<std::string> lines(const std::string& output) {
    std::vector<std::string> result;
    std::size_t start = 0;
    while (start <= output.size()) {
        std::size_t end = output.find('\n', start);
        if (end == std::string::npos) {
            end = output.size();
        }
        std::string line = output.substr(start, end - start);
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (!line.empty()) {
            result.push_back(std::move(line));
        }
        start = end + 1;
    }
    return result;
}

std::string lastPathComponent(const std::string& path) {
    std::string trimmed = path;
    while (trimmed.size() > 1 && trimmed.back() == '/') {
        trimmed.pop_back();
    }
    const std::size_t slash = trimmed.rfind('/');
    return slash == std::string::npos || slash + 1 == trimmed.size() ? trimmed
                                                                     : trimmed.substr(slash + 1);
}

const char* missingKey(ActionValueKind kind) {
    switch (kind) {
        case ActionValueKind::application:
            return "extra.missing.app";
        case ActionValueKind::file:
            return "extra.missing.file";
        case ActionValueKind::address:
            return "extra.missing.url";
        case ActionValueKind::shortcut:
        case ActionValueKind::none:
            break;
    }
    return "extra.missing.shortcut";
}

}  // namespace

ExtraActions::ExtraActions(ExtraActionServices services, std::int64_t marker)
    : services_(services), marker_(marker) {}

void ExtraActions::perform(ExtraAction action, const std::string& value) {
    if (const std::optional<std::int32_t> key = catalogue::mediaKey(action)) {
        postMediaKey(*key);
        return;
    }
    if (const std::optional<KeyStroke> stroke = catalogue::systemKeyStroke(action)) {
        postKeys(stroke->keyCode, stroke->flags);
        return;
    }
    if (const std::optional<std::string_view> name = catalogue::dockNotification(action)) {
        sendDock(action, std::string(*name));
        return;
    }
    if (const std::optional<std::uint64_t> flags = catalogue::clickFlags(action)) {
        click(*flags);
        return;
    }
    switch (action) {
        case ExtraAction::openApplication:
        case ExtraAction::openFile:
        case ExtraAction::openAddress:
            open(action, value);
            return;
        case ExtraAction::runShortcut:
            runShortcut(value);
            return;
        case ExtraAction::screenshotArea:
            screenshot();
            return;
        default:
            return;
    }
}

bool ExtraActions::isMissing(ExtraAction action, const std::string& value) {
    const ActionValueKind kind = catalogue::info(action).value;
    if (kind == ActionValueKind::none) {
        return false;
    }
    if (value.empty()) {
        return true;
    }
    switch (kind) {
        case ActionValueKind::application:
            return !services_.opener.hasApplication(value);
        case ActionValueKind::file:
            return !services_.opener.hasFile(value);
        case ActionValueKind::address:
            return !webAddress(value);
        case ActionValueKind::shortcut:
            // Unknown until the list arrives; the rows are told when it does.
            listShortcuts({});
            return shortcutNames_ &&
                   std::ranges::find(*shortcutNames_, value) == shortcutNames_->end();
        case ActionValueKind::none:
            break;
    }
    return false;
}

RecordButtonState ExtraActions::rowButton(ExtraAction action, const std::string& value) {
    if (catalogue::info(action).value == ActionValueKind::none) {
        return {.enabled = false, .title = L("record.button"), .toolTip = L("record.button")};
    }
    const std::string title = valueTitle(action, value);
    if (isMissing(action, value)) {
        return {.enabled = false, .title = L("extra.row.missing", title), .toolTip = value};
    }
    return {.enabled = false, .title = title, .toolTip = value};
}

void ExtraActions::choose(ExtraAction action, const std::string& current,
                          std::function<void(const std::string&)> chosen) {
    std::optional<std::string> value;
    switch (catalogue::info(action).value) {
        case ActionValueKind::none:
            chosen({});
            return;
        case ActionValueKind::application:
            value = services_.picker.chooseApplication(
                {.message = L("extra.app.message"), .chooseButton = L("extra.choose")});
            break;
        case ActionValueKind::file:
            value = services_.picker.chooseFile(
                {.message = L("extra.file.message"), .chooseButton = L("extra.choose")});
            break;
        case ActionValueKind::address: {
            const std::optional<std::string> typed = services_.dialogs.runNamingDialog({
                .message = L("extra.url.title"),
                .informative = L("extra.url.info"),
                .saveButton = L("profile.save"),
                .cancelButton = L("cancel"),
                .initialText = current,
            });
            if (!typed) {
                return;
            }
            value = webAddress(*typed);
            if (!value) {
                report(L("extra.url.invalid", *typed));
            }
            break;
        }
        case ActionValueKind::shortcut:
            // Listed afresh: the user may just have made the Shortcut.
            namesListedAt_.reset();
            listShortcuts(
                [this, current, chosen = std::move(chosen)] { chooseShortcut(current, chosen); });
            return;
    }
    if (value && !value->empty()) {
        chosen(*value);
    }
}

void ExtraActions::chooseShortcut(const std::string& current,
                                  const std::function<void(const std::string&)>& chosen) {
    if (!shortcutNames_ || shortcutNames_->empty()) {
        report(L("extra.shortcut.none"));
        return;
    }
    const std::optional<std::string> name = services_.picker.chooseFromList(
        {
            .message = L("extra.shortcut.title"),
            .informative = L("extra.shortcut.info"),
            .chooseButton = L("extra.choose"),
            .cancelButton = L("cancel"),
        },
        *shortcutNames_, current);
    if (name && !name->empty()) {
        chosen(*name);
    }
}

void ExtraActions::postKeys(std::uint16_t keyCode, std::uint64_t flags) {
    for (const bool down : {true, false}) {
        services_.poster.post(
            KeyEvent{.keyCode = keyCode, .down = down, .flags = flags, .userData = marker_});
    }
}

void ExtraActions::postMediaKey(std::int32_t key) {
    for (const bool down : {true, false}) {
        SystemDefinedEvent event = catalogue::mediaKeyEvent(key, down);
        event.userData = marker_;
        services_.systemEvents.post(event);
    }
}

void ExtraActions::click(std::uint64_t flags) {
    for (const bool down : {true, false}) {
        services_.poster.post(MouseButtonEvent{
            .type = down ? event::leftMouseDown : event::leftMouseUp,
            .button = MouseButton::left,
            .clickState = 1,
            .userData = marker_,
            .flags = flags,
        });
    }
}

void ExtraActions::sendDock(ExtraAction action, const std::string& name) {
    const std::int32_t code = services_.systemEvents.sendDockNotification(name);
    if (code != 0) {
        report(L("error.action", L(catalogue::info(action).textKey), std::int64_t{code}));
    }
}

void ExtraActions::open(ExtraAction action, const std::string& value) {
    const std::string title = valueTitle(action, value);
    if (isMissing(action, value)) {
        report(L(missingKey(catalogue::info(action).value), title));
        return;
    }
    auto done = [alive = std::weak_ptr<int>(lifetime_), this, title](bool opened) {
        if (!opened && !alive.expired()) {
            report(L("extra.failed.open", title));
        }
    };
    switch (action) {
        case ExtraAction::openApplication:
            services_.opener.openApplication(value, std::move(done));
            break;
        case ExtraAction::openFile:
            services_.opener.openFile(value, std::move(done));
            break;
        default:
            services_.opener.openAddress(*webAddress(value), std::move(done));
            break;
    }
}

void ExtraActions::runShortcut(const std::string& name) {
    const bool known = shortcutNames_.has_value();
    if (name.empty() ||
        (known && std::ranges::find(*shortcutNames_, name) == shortcutNames_->end())) {
        report(L("extra.missing.shortcut", name));
        return;
    }
    const std::optional<ProcessRequest> request =
        catalogue::process(ExtraAction::runShortcut, name);
    services_.processes.start(*request, [alive = std::weak_ptr<int>(lifetime_), this, name,
                                         path = request->path](const ProcessOutcome& outcome) {
        if (alive.expired() || outcome.succeeded()) {
            return;
        }
        switch (outcome.end) {
            case ProcessEnd::timedOut:
                report(L("extra.timeout.shortcut", name));
                break;
            case ProcessEnd::failedToStart:
                report(L("extra.failed.start", path));
                break;
            case ProcessEnd::exited:
                report(L("extra.failed.shortcut", name, std::int64_t{outcome.exitStatus}));
                break;
        }
    });
}

void ExtraActions::screenshot() {
    const std::optional<ProcessRequest> request =
        catalogue::process(ExtraAction::screenshotArea, {});
    // Cancelling the selection ends it with a failure status; only a failed start is news.
    services_.processes.start(*request, [alive = std::weak_ptr<int>(lifetime_), this,
                                         path = request->path](const ProcessOutcome& outcome) {
        if (!alive.expired() && outcome.end == ProcessEnd::failedToStart) {
            report(L("extra.failed.start", path));
        }
    });
}

void ExtraActions::report(const std::string& text) {
    services_.view.setStatusText(text);
}

void ExtraActions::listShortcuts(std::function<void()> then) {
    const double now = services_.clock.uptime();
    if (namesListedAt_ && now - *namesListedAt_ < shortcutListAge) {
        if (then) {
            then();
        }
        return;
    }
    if (then) {
        waitingForNames_.push_back(std::move(then));
    }
    if (listing_) {
        return;
    }
    listing_ = true;
    services_.processes.start(catalogue::shortcutList(), [alive = std::weak_ptr<int>(lifetime_),
                                                          this](const ProcessOutcome& outcome) {
        if (alive.expired()) {
            return;
        }
        listing_ = false;
        // A failed list keeps what was known, and is not asked for again at once.
        namesListedAt_ = services_.clock.uptime();
        bool changed = false;
        if (outcome.succeeded()) {
            std::vector<std::string> names = lines(outcome.output);
            changed = shortcutNames_ != names;
            shortcutNames_ = std::move(names);
        }
        std::vector<std::function<void()>> waiting = std::exchange(waitingForNames_, {});
        for (const std::function<void()>& work : waiting) {
            work();
        }
        if (changed && rowsChanged_) {
            rowsChanged_();
        }
    });
}

std::string ExtraActions::valueTitle(ExtraAction action, const std::string& value) const {
    switch (catalogue::info(action).value) {
        case ActionValueKind::application:
            return services_.opener.applicationName(value);
        case ActionValueKind::file:
            return lastPathComponent(value);
        default:
            return value;
    }
}

}  // namespace tactora
