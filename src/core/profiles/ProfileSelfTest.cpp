#include "core/profiles/ProfileSelfTest.h"

#include <algorithm>
#include <iostream>
#include <memory>
#include <string>
#include <utility>

#include "core/actions/ActionIndex.h"
#include "core/actions/SavedShortcut.h"
#include "core/profiles/ProfileStore.h"
#include "core/profiles/Uuid.h"
#include "core/support/Fatal.h"

namespace tactora {

namespace {

constexpr const char* source = "Profiles";

// Removes the private suite however the scenario ends short of a fatal stop.
class SuiteRemoval {
  public:
    SuiteRemoval(PreferenceSuites& suites, std::string name)
        : suites_(suites), name_(std::move(name)) {}
    SuiteRemoval(const SuiteRemoval&) = delete;
    SuiteRemoval& operator=(const SuiteRemoval&) = delete;
    SuiteRemoval(SuiteRemoval&&) = delete;
    SuiteRemoval& operator=(SuiteRemoval&&) = delete;
    ~SuiteRemoval() { suites_.removeSuite(name_); }

  private:
    PreferenceSuites& suites_;
    std::string name_;
};

void runScenario(const std::shared_ptr<Preferences>& defaults) {
    const SavedShortcut commandB(11, 0x100000, "⌘B");
    defaults->setInteger("gesture.2", 13);

    ProfileStore store(defaults, "Default");
    expect(store.profiles().size() == 1 && store.current().actions[2] == 13, source,
           "legacy gesture settings migrate into one profile");
    const Uuid defaultID = store.current().id;

    store.setShortcut(commandB, 2);
    expect(store.current().actions[2] == action::custom && store.current().shortcuts[2] == commandB,
           source, "a saved shortcut makes its slot custom");

    store.add("Video", true);
    expect(store.current().name == "Video" && store.current().actions[2] == action::custom &&
               store.current().shortcuts[2] == commandB,
           source, "duplication copies the active profile's slots");

    store.setAction(action::defaultAction, 2);
    store.select(defaultID);
    expect(store.current().actions[2] == action::custom, source,
           "editing one profile leaves the others alone");

    store.add("Audio", false);
    const auto& actions = store.current().actions;
    expect(std::all_of(actions.begin(), actions.end(),
                       [](ActionIndex a) { return a == action::defaultAction; }),
           source, "a new profile starts with default actions");

    store.rename("Mix");
    expect(store.current().name == "Mix", source, "rename names the active profile");

    ProfileStore reloaded(defaults, "Default");
    expect(reloaded.profiles().size() == 3 && reloaded.current().name == "Mix", source,
           "reload keeps the profiles and the active one");

    reloaded.select(defaultID);
    expect(reloaded.current().shortcuts[2] == commandB, source, "saved shortcuts survive reload");

    expect(SavedShortcut(49, 0, "Space").isValid() && !SavedShortcut(65535, 0, "Bad").isValid(),
           source, "shortcut validity follows the key code");
}

}  // namespace

void profileTests(PreferenceSuites& suites) {
    const std::string name = "Tactora.tests." + Uuid::random().text();
    {
        const SuiteRemoval removal(suites, name);
        runScenario(suites.suite(name));
    }
    std::cout << "PASS: legacy migration, profile isolation, duplication, rename, saved shortcuts "
                 "and reload."
              << std::endl;
}

}  // namespace tactora
