#pragma once

#include <cstdint>
#include <string>

#include "FakeLibraryPaths.h"
#include "bridge/BridgeTesting.h"
#include "bridge/LoadedLibrary.h"
#include "bridge/TouchBridge.h"
#include "bridge/fakes/FakeMultitouchControls.h"

namespace tactora::testing {

// Points the bridge at the stand-in multitouch framework at `path` for the length of a test,
// with no devices and a clean log, makes the stand-in the bridge's device registry, and
// restores the system path afterwards.
class FakeFramework {
  public:
    explicit FakeFramework(const std::string& path = kFakeMultitouchPath)
        : library_(path),
          controls_(library_.function<FakeMultitouchControlsFunction>("fakeMultitouchControls")()),
          path_(path) {
        TASetFrameworkPath(path_.c_str());
        controls_->reset();
        TASetPortableMouseTest(nullptr);
        TASetPortableRegistry(controls_->registry);
    }
    ~FakeFramework() {
        TAStop();
        TASetFrameworkPath(nullptr);
        TASetPortableMouseTest(nullptr);
        TASetPortableRegistry(nullptr);
    }
    FakeFramework(const FakeFramework&) = delete;
    FakeFramework& operator=(const FakeFramework&) = delete;

    const FakeMultitouchControls& controls() const { return *controls_; }
    const FakeMultitouchLog& log() const { return *controls_->log; }

  private:
    LoadedLibrary library_;
    const FakeMultitouchControls* controls_;
    std::string path_;
};

}  // namespace tactora::testing
