#pragma once

namespace tactora {

// Who started the application.
enum class LaunchOrigin {
    user,       // Finder, the Dock, a script, a second launch: anything but the login item
    loginItem,  // the system, opening the application's login item at login
};

}  // namespace tactora
