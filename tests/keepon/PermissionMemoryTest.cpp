#include "core/keepon/PermissionMemory.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/profiles/MemoryPreferences.h"

namespace tactora {
namespace {

class PermissionMemoryTest : public ::testing::Test {
  protected:
    std::shared_ptr<MemoryPreferences> defaults = std::make_shared<MemoryPreferences>();
};

TEST_F(PermissionMemoryTest, NothingIsStaleInTheRunThatFirstSeesAGrant) {
    PermissionMemory memory(defaults);
    memory.observe(true, false);
    EXPECT_EQ(defaults->integer(PermissionMemory::accessibilityKey), 1);
    EXPECT_FALSE(defaults->values().contains(PermissionMemory::inputMonitoringKey));
    EXPECT_FALSE(memory.accessibilityStale(false));
    EXPECT_FALSE(memory.inputMonitoringStale(false));
}

TEST_F(PermissionMemoryTest, AGrantOfAnEarlierRunThatIsGoneIsStale) {
    PermissionMemory(defaults).observe(true, true);
    const PermissionMemory next(defaults);
    EXPECT_TRUE(next.accessibilityStale(false));
    EXPECT_FALSE(next.accessibilityStale(true));
    EXPECT_TRUE(next.inputMonitoringStale(false));
}

TEST_F(PermissionMemoryTest, WrongTypesReadAsNeverGranted) {
    defaults->setString(PermissionMemory::accessibilityKey, "1");
    defaults->setInteger(PermissionMemory::inputMonitoringKey, 3);
    const PermissionMemory memory(defaults);
    EXPECT_FALSE(memory.accessibilityStale(false));
    EXPECT_FALSE(memory.inputMonitoringStale(false));
}

TEST_F(PermissionMemoryTest, ForgettingClearsTheDefaultsAndTheStaleness) {
    PermissionMemory(defaults).observe(true, true);
    PermissionMemory memory(defaults);
    memory.forget();
    EXPECT_FALSE(memory.accessibilityStale(false));
    EXPECT_TRUE(defaults->values().empty());
    memory.observe(true, false);
    EXPECT_EQ(defaults->integer(PermissionMemory::accessibilityKey), 1);
}

}  // namespace
}  // namespace tactora
