#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/actions/ExtraAction.h"
#include "core/app/ExtraActionPerformer.h"
#include "core/platform/ActionValuePicker.h"
#include "core/platform/Clock.h"
#include "core/platform/Dialogs.h"
#include "core/platform/EventPoster.h"
#include "core/platform/Opener.h"
#include "core/platform/ProcessLauncher.h"
#include "core/platform/RecordButtonState.h"
#include "core/platform/SettingsView.h"
#include "core/platform/SystemEventPoster.h"

namespace tactora {

// What the extra actions reach the system and the window through. The referenced objects must
// outlive the ExtraActions.
struct ExtraActionServices {
    EventPoster& poster;
    SystemEventPoster& systemEvents;
    Opener& opener;
    ProcessLauncher& processes;
    ActionValuePicker& picker;
    Dialogs& dialogs;
    SettingsView& view;  // its status line tells what went wrong
    Clock& clock;
};

// What the further actions reach beyond what the controller reaches. The referenced objects
// must outlive the ExtraActions.
struct ExtraActionPlatform {
    SystemEventPoster& systemEvents;
    Opener& opener;
    ProcessLauncher& processes;
    ActionValuePicker& picker;
};

// The actions beyond the catalogue's fifteen: how each is carried out, how the value of those
// that open or run something is chosen, and how a gesture row shows that value. Nothing is
// decided in the platform: it is told exactly what to post, open or start.
// Main thread only.
class ExtraActions final : public ExtraActionPerformer {
  public:
    // The list of the user's Shortcuts is asked for again when it is older than this.
    static constexpr double shortcutListAge = 60;

    // `marker` is written into every event posted, so that the program's own event tap lets it
    // pass.
    ExtraActions(ExtraActionServices services, std::int64_t marker);

    // Carries out `action` with its value. A value that is missing or no longer valid is
    // reported in the status line and nothing else happens; so is a failure that comes later
    // (an application that could not be opened, a Shortcut that failed or ran too long).
    void perform(ExtraAction action, const std::string& value) override;

    // Whether the value no longer names anything: an application not installed, a file gone, an
    // address that is not a URL, a Shortcut the Mac does not have (as far as is known), or no
    // value at all where one is needed.
    bool isMissing(ExtraAction action, const std::string& value);

    // The record button of a gesture row that holds `action`: disabled, titled with what the
    // value names, or saying that it is missing.
    RecordButtonState rowButton(ExtraAction action, const std::string& value) override;

    // Lets the user choose the value for `action`, starting from `current`: an application, a
    // file or folder, a typed address, or one of the user's Shortcuts. `chosen` runs with the
    // value once it is chosen (at once with an empty value for an action that needs none), and
    // never when the user cancels or the choice is not valid.
    void choose(ExtraAction action, const std::string& current,
                std::function<void(const std::string&)> chosen) override;

    // Runs whenever what rowButton() shows may have changed by itself (the list of Shortcuts
    // arrived).
    void setRowsChanged(std::function<void()> changed) { rowsChanged_ = std::move(changed); }

    // The names of the user's Shortcuts as last listed; nothing before the first list arrived.
    const std::optional<std::vector<std::string>>& shortcutNames() const { return shortcutNames_; }

  private:
    void postKeys(std::uint16_t keyCode, std::uint64_t flags);
    void postMediaKey(std::int32_t key);
    void click(std::uint64_t flags);
    void sendDock(ExtraAction action, const std::string& name);
    void open(ExtraAction action, const std::string& value);
    void runShortcut(const std::string& name);
    void screenshot();
    void report(const std::string& text);
    // Asks for the Shortcuts again when the list is missing or old; `then` runs when it
    // arrives (or at once when it is fresh).
    void listShortcuts(std::function<void()> then);
    void chooseShortcut(const std::string& current,
                        const std::function<void(const std::string&)>& chosen);
    std::string valueTitle(ExtraAction action, const std::string& value) const;

    ExtraActionServices services_;
    std::int64_t marker_;
    std::optional<std::vector<std::string>> shortcutNames_;
    std::optional<double> namesListedAt_;
    bool listing_ = false;
    std::vector<std::function<void()>> waitingForNames_;
    std::function<void()> rowsChanged_;
    // Work that comes back later holds this weakly, and does nothing once it is gone.
    std::shared_ptr<int> lifetime_ = std::make_shared<int>(0);
};

}  // namespace tactora
