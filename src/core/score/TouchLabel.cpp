#include "core/score/TouchLabel.h"

#include <array>
#include <utility>

namespace tactora {

namespace {

constexpr std::array<std::pair<AccidentKind, std::string_view>, accidentKindCount> accidentWords = {
    {
        {AccidentKind::palm, "palm"},
        {AccidentKind::thumb, "thumb"},
        {AccidentKind::scroll, "scroll"},
        {AccidentKind::scrollGraze, "scroll-graze"},
        {AccidentKind::reposition, "reposition"},
        {AccidentKind::clickLift, "click-lift"},
        {AccidentKind::drumming, "drumming"},
        {AccidentKind::pickUp, "pick-up"},
        {AccidentKind::shortScroll, "short-scroll"},
        {AccidentKind::restingFinger, "resting-finger"},
        {AccidentKind::restAfterTap, "rest-after-tap"},
    }};

}  // namespace

std::string_view accidentWord(AccidentKind kind) {
    for (const auto& [accident, word] : accidentWords) {
        if (accident == kind) {
            return word;
        }
    }
    return "palm";
}

std::optional<AccidentKind> accidentFromWord(std::string_view word) {
    for (const auto& [accident, text] : accidentWords) {
        if (text == word) {
            return accident;
        }
    }
    return std::nullopt;
}

}  // namespace tactora
