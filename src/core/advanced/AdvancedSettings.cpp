#include "core/advanced/AdvancedSettings.h"

#include <initializer_list>
#include <optional>
#include <string_view>
#include <utility>

#include "core/localization/Localizer.h"

namespace tactora {

namespace {

std::string text(std::string_view key) {
    return key.empty() ? std::string() : L(key);
}

// Whether `field` means anything with the options as they are.
bool fieldEnabled(const AdvancedChoices& choices, AdvancedField field) {
    if (const std::optional<AdvancedOption> option = AdvancedChoices::optionOf(field)) {
        return choices.isOn(*option);
    }
    if (field == AdvancedField::fingertipSize) {
        return choices.options.ignoreLargeContacts || choices.options.fingertipsOnly;
    }
    return true;
}

AdvancedValue valueRow(const AdvancedChoices& choices, AdvancedField field) {
    const AdvancedFieldSpec& spec = AdvancedChoices::spec(field);
    return {.field = field,
            .label = text(spec.labelKey),
            .unit = text(spec.unitKey),
            .value = choices.value(field),
            .low = spec.low,
            .high = spec.high,
            .fractionDigits = spec.fractionDigits,
            .enabled = fieldEnabled(choices, field)};
}

AdvancedGroup optionGroup(const AdvancedChoices& choices, AdvancedOption option,
                          std::string_view titleKey, std::initializer_list<AdvancedField> fields) {
    AdvancedGroup group{
        .option = option, .title = L(titleKey), .on = choices.isOn(option), .values = {}};
    for (const AdvancedField field : fields) {
        group.values.push_back(valueRow(choices, field));
    }
    return group;
}

AdvancedGroup valueGroup(const AdvancedChoices& choices, std::string_view titleKey,
                         std::initializer_list<AdvancedField> fields) {
    AdvancedGroup group{.option = std::nullopt, .title = text(titleKey), .on = false, .values = {}};
    for (const AdvancedField field : fields) {
        group.values.push_back(valueRow(choices, field));
    }
    return group;
}

}  // namespace

AdvancedSettings::AdvancedSettings(MisfireGuard& guard, std::shared_ptr<Preferences> defaults,
                                   AdvancedSheetView& view)
    : guard_(guard),
      defaults_(std::move(defaults)),
      view_(view),
      choices_(AdvancedChoices::from(guard.options(), guard.thresholds())) {}

std::string AdvancedSettings::openTitle() {
    return L("advanced.open");
}

void AdvancedSettings::open() {
    choices_ = AdvancedChoices::from(guard_.options(), guard_.thresholds());
    problem_.clear();
    tries_.clear();
    open_ = true;
    show();
}

void AdvancedSettings::close() {
    open_ = false;
    tries_.clear();
}

void AdvancedSettings::setOption(AdvancedOption option, bool on) {
    AdvancedChoices changed = choices_;
    changed.setOption(option, on);
    apply(changed);
}

void AdvancedSettings::setValue(AdvancedField field, double value) {
    AdvancedChoices changed = choices_;
    if (const std::optional<std::string_view> refused = changed.setValue(field, value)) {
        problem_ = L(*refused);
        show();
        return;
    }
    apply(changed);
}

void AdvancedSettings::recommend() {
    AdvancedChoices changed =
        AdvancedChoices::from(MisfireOptions::recommended(), choices_.thresholds);
    apply(changed);
}

void AdvancedSettings::restoreDefaults() {
    apply(AdvancedChoices::from(MisfireOptions::none(), TapThresholds{}));
}

void AdvancedSettings::apply(const AdvancedChoices& choices) {
    choices_ = choices;
    problem_.clear();
    if (defaults_) {
        choices_.options.save(*defaults_);
        (void)choices_.thresholds.save(*defaults_);
    }
    guard_.setOptions(choices_.options);
    guard_.setThresholds(choices_.thresholds);
    show();
}

AdvancedSheet AdvancedSettings::sheet() const {
    using enum AdvancedField;
    return {
        .title = L("advanced.title"),
        .explanation = L("advanced.info"),
        .groups =
            {
                optionGroup(choices_, AdvancedOption::quietAfterActivity, "advanced.quiet",
                            {quietTime}),
                optionGroup(choices_, AdvancedOption::ignoreLargeContacts, "advanced.large", {}),
                optionGroup(choices_, AdvancedOption::edgeBands, "advanced.edges",
                            {edgeLeft, edgeRight, edgeFront, edgeBack}),
                optionGroup(choices_, AdvancedOption::fingertipsOnly, "advanced.fingertips", {}),
                optionGroup(choices_, AdvancedOption::forgetEarlierActivity, "advanced.forget", {}),
                optionGroup(choices_, AdvancedOption::ignoreDrumming, "advanced.drumming", {}),
                valueGroup(choices_, "", {fingertipSize}),
                valueGroup(choices_, "advanced.limits", {shortestTap, longestTap, tolerance}),
            },
        .problem = problem_,
        .recommendedButton = L("advanced.recommended"),
        .restoreButton = L("advanced.restore"),
        .doneButton = L("advanced.done"),
        .tryTitle = L("advanced.try"),
        .tryEmpty = L("advanced.try.empty"),
        .tries = tries_.lines(),
    };
}

void AdvancedSettings::show() {
    if (open_) {
        view_.show(sheet());
    }
}

void AdvancedSettings::frameReceived(const FrameNote& note) {
    outcomes_.frame(!note.fingers.empty());
    if (!open_) {
        return;
    }
    if (const std::optional<DropReason> reason =
            unseen_.frame(note.fingers, note.shapes, guard_.options())) {
        tried(outcomes_.dropped({.reason = *reason, .fingers = 0, .time = note.time}));
    }
}

void AdvancedSettings::gestureRecognised(const GestureNote& note) {
    tried(outcomes_.gesture(note));
}

void AdvancedSettings::touchDropped(const TouchDropNote& note) {
    tried(outcomes_.dropped(note));
}

void AdvancedSettings::actionPerformed(const ActionNote& note) {
    outcomes_.actionPerformed(note);
}

void AdvancedSettings::actionDropped(const ActionDropNote& note) {
    tried(outcomes_.actionDropped(note));
}

void AdvancedSettings::tried(const std::optional<TouchOutcome>& outcome) {
    if (!open_ || !outcome) {
        return;
    }
    tries_.add(*outcome);
    view_.showTries(tries_.lines(), tries_.newest());
}

}  // namespace tactora
