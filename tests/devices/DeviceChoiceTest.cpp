#include "core/devices/DeviceChoice.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "core/profiles/MemoryPreferences.h"

namespace tactora {
namespace {

const TouchDevice magicTrackpad{
    .id = 1, .kind = TouchDeviceKind::magicTrackpad, .name = "Magic Trackpad"};
const TouchDevice builtIn{.id = 2,
                          .kind = TouchDeviceKind::builtInTrackpad,
                          .name = "Apple Internal Keyboard / Trackpad"};

std::string stored(const MemoryPreferences& defaults) {
    return defaults.string(std::string(DeviceChoice::key)).value_or("");
}

TEST(DeviceChoice, NothingIsUsedUntilTicked) {
    const DeviceChoice choice(std::make_shared<MemoryPreferences>());

    EXPECT_FALSE(choice.uses(magicTrackpad));
    EXPECT_FALSE(choice.uses(builtIn));
}

TEST(DeviceChoice, ATickIsRememberedByKindAndNameAcrossLaunchesAndIds) {
    auto defaults = std::make_shared<MemoryPreferences>();
    DeviceChoice(defaults).setUses(magicTrackpad, true);

    const DeviceChoice later(defaults);
    TouchDevice returned = magicTrackpad;
    returned.id = 99;

    EXPECT_TRUE(later.uses(returned));
    EXPECT_FALSE(later.uses(builtIn));
    EXPECT_EQ(stored(*defaults), R"([{"kind":"magicTrackpad","name":"Magic Trackpad"}])");
}

TEST(DeviceChoice, AnotherKindWithTheSameNameIsAnotherDevice) {
    DeviceChoice choice(std::make_shared<MemoryPreferences>());
    choice.setUses(magicTrackpad, true);
    TouchDevice sameName = builtIn;
    sameName.name = magicTrackpad.name;

    EXPECT_FALSE(choice.uses(sameName));
}

TEST(DeviceChoice, UntickingForgetsTheDeviceAndTickingTwiceKeepsOneEntry) {
    auto defaults = std::make_shared<MemoryPreferences>();
    DeviceChoice choice(defaults);
    choice.setUses(magicTrackpad, true);
    choice.setUses(magicTrackpad, true);
    choice.setUses(builtIn, true);
    choice.setUses(magicTrackpad, false);

    EXPECT_FALSE(choice.uses(magicTrackpad));
    EXPECT_TRUE(choice.uses(builtIn));
    EXPECT_EQ(stored(*defaults),
              R"([{"kind":"builtInTrackpad","name":"Apple Internal Keyboard / Trackpad"}])");
}

TEST(DeviceChoice, ADamagedValueReadsAsNothingChosenAndIsLeftAsItIs) {
    for (const std::string damaged : {"", "not json", "{\"kind\":\"magicTrackpad\"}", "42"}) {
        auto defaults = std::make_shared<MemoryPreferences>();
        defaults->setString(std::string(DeviceChoice::key), damaged);

        const DeviceChoice choice(defaults);

        EXPECT_FALSE(choice.uses(magicTrackpad)) << damaged;
        EXPECT_EQ(stored(*defaults), damaged);
    }
}

TEST(DeviceChoice, EntriesThisVersionCannotReadAreKeptWhenTheChoiceChanges) {
    auto defaults = std::make_shared<MemoryPreferences>();
    defaults->setString(
        std::string(DeviceChoice::key),
        R"([{"kind":"visionSurface","name":"Future"},7,{"kind":"magicTrackpad","name":"Magic Trackpad"},{"kind":"magicTrackpad"}])");

    DeviceChoice choice(defaults);
    EXPECT_TRUE(choice.uses(magicTrackpad));
    choice.setUses(builtIn, true);

    EXPECT_EQ(
        stored(*defaults),
        R"([{"kind":"magicTrackpad","name":"Magic Trackpad"},{"kind":"builtInTrackpad","name":"Apple Internal Keyboard / Trackpad"},{"kind":"visionSurface","name":"Future"},7,{"kind":"magicTrackpad"}])");
}

TEST(DeviceChoice, ANameThatIsNotUtf8IsUsedAndStoredWithReplacementCharacters) {
    auto defaults = std::make_shared<MemoryPreferences>();
    DeviceChoice choice(defaults);
    TouchDevice odd = magicTrackpad;
    odd.name = "Pad \xff";

    choice.setUses(odd, true);

    EXPECT_TRUE(choice.uses(odd));
    EXPECT_EQ(stored(*defaults), "[{\"kind\":\"magicTrackpad\",\"name\":\"Pad \xef\xbf\xbd\"}]");
}

TEST(DeviceChoice, EveryKindHasAStoredNameThatReadsBack) {
    for (const TouchDeviceKind kind :
         {TouchDeviceKind::other, TouchDeviceKind::magicMouse, TouchDeviceKind::magicTrackpad,
          TouchDeviceKind::builtInTrackpad}) {
        EXPECT_EQ(storedKind(storedKindName(kind)), kind);
    }
    EXPECT_EQ(storedKind("visionSurface"), std::nullopt);
}

}  // namespace
}  // namespace tactora
