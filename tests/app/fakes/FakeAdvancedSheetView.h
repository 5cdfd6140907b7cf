#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/platform/AdvancedSheetView.h"

namespace tactora::testing {

// The Advanced sheet as the core left it: what it shows, and what VoiceOver was asked to say.
class FakeAdvancedSheetView final : public AdvancedSheetView {
  public:
    void show(const AdvancedSheet& sheet) override {
        shown = sheet;
        ++shows;
    }

    void showTries(const std::vector<TryLine>& tries, const std::string& announcement) override {
        if (shown) {
            shown->tries = tries;
        }
        announcements.push_back(announcement);
    }

    // Nothing until the sheet was first shown.
    std::optional<AdvancedSheet> shown;
    std::size_t shows = 0;
    std::vector<std::string> announcements;
};

}  // namespace tactora::testing
