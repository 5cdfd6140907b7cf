#pragma once

#include <optional>

#include "core/platform/MoreSheetView.h"

namespace tactora::testing {

// The More Gestures sheet as the program last showed it. The test plays the user by calling
// the sheet part, and closing by calling its closed().
class FakeMoreSheetView final : public MoreSheetView {
  public:
    void showMoreSheet(const MoreSheetContent& content) override {
        shown = content;
        ++shows;
    }

    std::optional<MoreSheetContent> shown;
    int shows = 0;
};

}  // namespace tactora::testing
