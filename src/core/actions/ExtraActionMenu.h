#pragma once

#include <vector>

#include "core/actions/ActionIndex.h"
#include "core/platform/ActionMenuEntry.h"

namespace tactora {

// The extra actions as the action pop-ups list them after the fifteen: one list per group (the
// things to open or run, media and volume, the system's views, modifier clicks), in index order,
// each entry with its localised name. Main thread only.
std::vector<std::vector<ActionMenuEntry>> extraActionMenu();

}  // namespace tactora
