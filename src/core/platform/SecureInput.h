#pragma once

namespace tactora {

// Whether secure event input is on (a password field has the keyboard), which keeps synthetic
// key presses from reaching applications. Main thread only.
class SecureInput {
  public:
    virtual ~SecureInput() = default;

    virtual bool enabled() const = 0;
};

}  // namespace tactora
