#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>
#include <string_view>

#include "core/localization/KeyArgument.h"

namespace tactora {

// One localisation key and the arguments its callers pass, in order. Pure value; constexpr.
class LocalizationKey {
  public:
    static constexpr std::size_t maxArguments = 3;

    constexpr explicit LocalizationKey(std::string_view key) : key_(key) {}

    // More than maxArguments arguments is a mistake in the key list: at() then stops the
    // compile-time evaluation of the list.
    constexpr LocalizationKey(std::string_view key, std::initializer_list<KeyArgument> arguments)
        : key_(key), argumentCount_(arguments.size()) {
        std::size_t index = 0;
        for (const KeyArgument& argument : arguments) {
            arguments_.at(index++) = argument;
        }
    }

    constexpr std::string_view key() const { return key_; }

    constexpr std::span<const KeyArgument> arguments() const {
        return std::span<const KeyArgument>(arguments_).first(argumentCount_);
    }

  private:
    std::string_view key_;
    std::array<KeyArgument, maxArguments> arguments_{};
    std::size_t argumentCount_ = 0;
};

}  // namespace tactora
