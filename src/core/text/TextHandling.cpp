#include "core/text/TextHandling.h"

#include <utility>

#include "core/support/Fatal.h"

namespace tactora {

namespace {

// Read and written on the main thread only, so it needs no lock.
std::shared_ptr<const TextHandling>& installedHandling() {
    static std::shared_ptr<const TextHandling> handling;
    return handling;
}

}  // namespace

void installTextHandling(std::shared_ptr<const TextHandling> handling) {
    installedHandling() = std::move(handling);
}

const TextHandling& textHandling() {
    const std::shared_ptr<const TextHandling>& handling = installedHandling();
    if (!handling) {
        fatalError("No text handling is installed");
    }
    return *handling;
}

}  // namespace tactora
