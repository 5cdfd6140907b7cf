#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "core/platform/AdvancedSheet.h"
#include "core/reasons/TouchOutcomes.h"

namespace tactora {

// The Advanced sheet's try area: the last few touches, newest first, each as the gesture it
// became or why it became none. A later word about the same touch (its action refused) takes the
// place of the earlier one. Main thread only.
class TryArea {
  public:
    // The lines kept; older ones are forgotten.
    static constexpr std::size_t capacity = 6;

    // Takes in what became of a touch.
    void add(const TouchOutcome& outcome);
    void clear();

    const std::vector<TryLine>& lines() const { return lines_; }
    // The line of the outcome added last: what VoiceOver announces.
    const std::string& newest() const { return newest_; }

    // The line for `outcome`, in words.
    static TryLine line(const TouchOutcome& outcome);

  private:
    std::vector<TryLine> lines_;
    std::vector<std::uint64_t> ids_;  // the outcome of each line
    std::string newest_;
};

}  // namespace tactora
