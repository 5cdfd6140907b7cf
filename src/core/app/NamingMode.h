#pragma once

namespace tactora {

// What the profile naming dialog is for.
enum class NamingMode {
    create = 0,
    rename = 1,
    duplicate = 2,
};

}  // namespace tactora
