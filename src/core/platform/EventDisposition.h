#pragma once

namespace tactora {

// What becomes of an event that the program examined: it goes on (possibly changed in place),
// or it is deleted and nobody else sees it.
enum class EventDisposition {
    pass,
    swallow,
};

}  // namespace tactora
