#pragma once

#include <memory>
#include <string>

#include "core/advanced/AdvancedChoices.h"
#include "core/advanced/TryArea.h"
#include "core/advanced/UnseenTouches.h"
#include "core/app/ControllerObserver.h"
#include "core/misfire/MisfireGuard.h"
#include "core/platform/AdvancedSheet.h"
#include "core/platform/AdvancedSheetView.h"
#include "core/profiles/Preferences.h"
#include "core/reasons/TouchOutcomes.h"

namespace tactora {

// The settings window's Advanced sheet: the options against accidental gestures and the tap's
// limits, which it shows, checks, keeps in the user defaults and hands to the guard at once;
// Recommended and Restore Defaults; and a try area in which, while the sheet is open, every
// touch shows what it became, or why it became nothing. It learns of touches as an observer of
// the controller.
//
// A touch whose every contact the options leave out reaches the recogniser not at all, and the
// controller tells nothing of it; the try area shows it all the same, with the option's reason.
//
// Whether a gesture's action runs while the sheet is open is left to the controller: while this
// program is the active one, as it is whenever the user works in its window, gestures are
// recognised and their actions do not run, and the try area says so for each.
//
// Main thread only.
class AdvancedSettings final : public ControllerObserver {
  public:
    // `defaults` may be null: changes are then applied but not kept.
    AdvancedSettings(MisfireGuard& guard, std::shared_ptr<Preferences> defaults,
                     AdvancedSheetView& view);

    // The title of the settings window's button and of the menu item that open the sheet.
    static std::string openTitle();

    // Shows the sheet with the guard's options and limits and an empty try area.
    void open();
    // The sheet was closed (Done, or Escape); the try area stops listening.
    void close();
    bool isOpen() const { return open_; }

    // A checkbox was ticked or unticked.
    void setOption(AdvancedOption option, bool on);
    // A field was given `value`, in the units it shows. A value that is refused leaves every
    // choice as it was, and the sheet shows the value kept and says why.
    void setValue(AdvancedField field, double value);
    // The combination the score recommends; the tap's limits stay as they are.
    void recommend();
    // The tap's limits back to the defaults and every option off.
    void restoreDefaults();

    // What the sheet shows now.
    AdvancedSheet sheet() const;
    const AdvancedChoices& choices() const { return choices_; }

    void frameReceived(const FrameNote& note) override;
    void gestureRecognised(const GestureNote& note) override;
    void touchDropped(const TouchDropNote& note) override;
    void actionPerformed(const ActionNote& note) override;
    void actionDropped(const ActionDropNote& note) override;

  private:
    // Keeps `choices`, hands them to the guard and shows them.
    void apply(const AdvancedChoices& choices);
    void show();
    void tried(const std::optional<TouchOutcome>& outcome);

    MisfireGuard& guard_;
    std::shared_ptr<Preferences> defaults_;
    AdvancedSheetView& view_;
    AdvancedChoices choices_;
    std::string problem_;
    TouchOutcomes outcomes_;
    UnseenTouches unseen_;
    TryArea tries_;
    bool open_ = false;
};

}  // namespace tactora
