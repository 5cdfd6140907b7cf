#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "core/console/ProgramEnvironment.h"
#include "core/localization/StringTable.h"
#include "core/profiles/MemoryPreferenceSuites.h"

namespace tactora::testing {

// A sensor that reports what the test tells it to and counts its calls.
class FakeSensor : public Sensor {
  public:
    bool start(FrameCallback callback) override {
        ++starts;
        lastCallback = callback;
        return startResult;
    }
    void stop() override { ++stops; }
    std::string status() const override { return statusKey; }
    std::int32_t statusError() const override { return error; }
    bool isMouseSender(std::uint64_t /*senderID*/) override { return false; }

    bool startResult = false;
    std::string statusKey = "sensor.not_started";
    std::int32_t error = 0;
    int starts = 0;
    int stops = 0;
    FrameCallback lastCallback = nullptr;
};

class FakeProgramEnvironment : public ProgramEnvironment {
  public:
    PreferenceSuites& preferences() override { return suites; }
    Sensor& sensor() override { return fakeSensor; }
    std::optional<std::string> preferredLocalization() override { return localization; }
    std::optional<std::vector<std::int64_t>> appIconPixelWidths() override { return iconWidths; }
    void runApplication() override { ++applicationRuns; }

    MemoryPreferenceSuites suites;
    FakeSensor fakeSensor;
    std::optional<std::string> localization = "en";
    std::optional<std::vector<std::int64_t>> iconWidths =
        std::vector<std::int64_t>{16, 32, 32, 64, 128, 256, 256, 512, 512, 1024};
    int applicationRuns = 0;
};

// A string table made of the entries a test gives it.
class MapStringTable : public StringTable {
  public:
    explicit MapStringTable(std::map<std::string, std::string, std::less<>> entries)
        : entries_(std::move(entries)) {}

    std::optional<std::string> lookup(std::string_view key) const override {
        const auto found = entries_.find(key);
        if (found == entries_.end()) {
            return std::nullopt;
        }
        return found->second;
    }

  private:
    std::map<std::string, std::string, std::less<>> entries_;
};

}  // namespace tactora::testing
