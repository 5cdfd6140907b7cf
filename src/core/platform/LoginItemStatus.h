#pragma once

namespace tactora {

// Where the application stands as a login item, as the system reports it.
enum class LoginItemStatus {
    notRegistered,     // never registered, or unregistered
    enabled,           // registered; the application opens at login
    requiresApproval,  // registered, but the user must allow it in the Login Items settings
    notFound,          // the system cannot find the service (or offers none on this system)
};

}  // namespace tactora
