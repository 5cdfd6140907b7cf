#pragma once

#include "core/platform/ProcessActivity.h"

namespace tactora::testing {

// Counts activities; beginning one while held, or ending one not held, counts as misuse.
class FakeProcessActivity final : public ProcessActivity {
  public:
    void begin() override {
        misuse += held ? 1 : 0;
        held = true;
        ++begun;
    }
    void end() override {
        misuse += held ? 0 : 1;
        held = false;
        ++ended;
    }

    bool held = false;
    int begun = 0;
    int ended = 0;
    int misuse = 0;
};

}  // namespace tactora::testing
