#pragma once

#include <string>
#include <string_view>

#include "core/app/ControllerEvents.h"

// Why a touch, or the action it stood for, came to nothing, in the user's words: the one table
// that the live view and the Advanced sheet's try area both show. Main thread only (it reads the
// installed string table).
namespace tactora::reasons {

// The localisation key of `reason`'s text ("reason.too_long", ...).
std::string_view reasonKey(DropReason reason);

// `reason` as a sentence in the user's language.
std::string reasonText(DropReason reason);

}  // namespace tactora::reasons
