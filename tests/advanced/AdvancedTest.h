#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "app/ControllerHarness.h"
#include "core/advanced/AdvancedSettings.h"

namespace tactora::testing {

// A launched program with gestures on, another application in front, and the try area's texts
// in the string table; every reason shows as its key.
class AdvancedTest : public ::testing::Test {
  protected:
    void SetUp() override {
        StringsTable::Entries entries = testTable()->entries();
        entries.insert({{"finger.one", "1 finger"},
                        {"finger.many", "%d fingers"},
                        {"try.accepted", "ok %@"},
                        {"try.not_performed", "%@ not run: %@"},
                        {"try.rejected", "no (%@): %@"},
                        {"try.rejected.plain", "no: %@"}});
        setStringTable(std::make_shared<const StringsTable>(entries));
        initializeGlobals();
        h.launchAndSwitchOn();
    }

    AdvancedSettings& advanced() { return h.a().advanced(); }
    MisfireGuard& guard() { return h.a().misfireGuard(); }
    const AdvancedSheet& shown() const { return *h.advancedView.shown; }

    // The try area's lines as the sheet shows them, newest first.
    std::vector<std::string> tries() const {
        std::vector<std::string> texts;
        for (const TryLine& line : shown().tries) {
            texts.push_back(line.text);
        }
        return texts;
    }

    // The field of the sheet showing `field`.
    const AdvancedValue& value(AdvancedField field) const {
        for (const AdvancedGroup& group : shown().groups) {
            for (const AdvancedValue& row : group.values) {
                if (row.field == field) {
                    return row;
                }
            }
        }
        ADD_FAILURE() << "no field " << static_cast<int>(field);
        static const AdvancedValue none;
        return none;
    }

    // The checkbox group of `option`.
    const AdvancedGroup& group(AdvancedOption option) const {
        for (const AdvancedGroup& candidate : shown().groups) {
            if (candidate.option == option) {
                return candidate;
            }
        }
        ADD_FAILURE() << "no option " << static_cast<int>(option);
        static const AdvancedGroup none;
        return none;
    }

    // A tap of `fingers` fingers at `x` that lasts `duration`.
    void tapAt(std::int32_t fingers, float x, double duration = 0.1) {
        h.frame(fingers, x);
        h.queue.advance(duration);
        h.frame(0);
    }

    ControllerHarness h;
};

}  // namespace tactora::testing
