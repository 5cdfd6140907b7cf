#include "core/advanced/TryArea.h"

#include <algorithm>
#include <iterator>

#include "core/localization/Localizer.h"
#include "core/reasons/ReasonText.h"

namespace tactora {

namespace {

std::string gestureText(GestureKind kind, std::int64_t fingers) {
    return L(kind == GestureKind::tap ? "gesture.tap" : "gesture.click", fingers);
}

std::string fingersText(std::int64_t fingers) {
    return fingers == 1 ? L("finger.one") : L("finger.many", fingers);
}

}  // namespace

TryLine TryArea::line(const TouchOutcome& outcome) {
    if (outcome.gesture && !outcome.reason) {
        return {.accepted = true,
                .text = L("try.accepted", gestureText(*outcome.gesture, outcome.fingers))};
    }
    const std::string reason = reasons::reasonText(outcome.reason.value_or(DropReason::tooLong));
    if (outcome.gesture) {
        return {
            .accepted = true,
            .text = L("try.not_performed", gestureText(*outcome.gesture, outcome.fingers), reason)};
    }
    if (outcome.fingers < 1) {
        return {.accepted = false, .text = L("try.rejected.plain", reason)};
    }
    return {.accepted = false, .text = L("try.rejected", fingersText(outcome.fingers), reason)};
}

void TryArea::add(const TouchOutcome& outcome) {
    TryLine added = line(outcome);
    newest_ = added.text;
    const auto same = std::find(ids_.begin(), ids_.end(), outcome.id);
    if (same != ids_.end()) {
        lines_.at(static_cast<std::size_t>(std::distance(ids_.begin(), same))) = std::move(added);
        return;
    }
    lines_.insert(lines_.begin(), std::move(added));
    ids_.insert(ids_.begin(), outcome.id);
    if (lines_.size() > capacity) {
        lines_.pop_back();
        ids_.pop_back();
    }
}

void TryArea::clear() {
    lines_.clear();
    ids_.clear();
    newest_.clear();
}

}  // namespace tactora
