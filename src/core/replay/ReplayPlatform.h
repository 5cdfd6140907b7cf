#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/platform/AppShell.h"
#include "core/platform/DeviceWatcher.h"
#include "core/platform/Dialogs.h"
#include "core/platform/EventPoster.h"
#include "core/platform/EventTap.h"
#include "core/platform/LoginItem.h"
#include "core/platform/PermissionResetTool.h"
#include "core/platform/Permissions.h"
#include "core/platform/ProcessActivity.h"
#include "core/platform/ProfileFiles.h"
#include "core/platform/SecureInput.h"
#include "core/platform/Sensor.h"
#include "core/platform/SettingsView.h"
#include "core/platform/SurfaceView.h"
#include "core/platform/TapEvent.h"
#include "core/platform/TouchDevices.h"
#include "core/platform/TraceSink.h"
#include "core/platform/Workspace.h"

// The stand-in platform a replay runs the controller on: both permissions granted, a ready
// sensor, an event tap that can always be made, another application in front, and an
// interface that keeps only what the controller decides with. Nothing reaches the system.
// Kept together because each is a few lines and none is used apart from the others.
namespace tactora::replay {

// The sender ids that stand for the touch mouse and for every other pointing device; a touch
// device beside the mouse sends as firstDeviceSender plus its id.
inline constexpr std::uint64_t mouseSender = 1;
inline constexpr std::uint64_t otherSender = 2;
inline constexpr std::uint64_t firstDeviceSender = 16;

class Workspace final : public tactora::Workspace {
  public:
    static constexpr std::int32_t ownProcess = 1;
    static constexpr std::int32_t otherApplication = 2;

    std::optional<std::int32_t> frontmostProcessID() const override { return frontmost; }
    std::string frontmostBundleID() const override { return bundleID; }
    bool isActive() const override { return active; }
    std::vector<std::int32_t> instanceProcessIDs() const override { return {ownProcess}; }
    std::int32_t ownProcessID() const override { return ownProcess; }
    void activateApplication(std::int32_t /*processID*/) override {}
    void requestShow(std::int32_t /*processID*/) override {}
    void observeShowRequests(std::function<void()> /*handler*/) override {}
    // The replay's application never comes to the front by itself.
    void activate() override {}
    void openURL(const std::string& /*url*/) override {}
    void terminate() override {}
    void observeWake(std::function<void()> /*handler*/) override {}
    // The trace says when another application comes to the front (see TraceReplay).
    void observeFrontmostApplication(
        std::function<void(std::optional<std::int32_t>, std::string)> /*handler*/) override {}
    std::vector<RunningApplication> regularApplications() const override { return {}; }
    std::optional<std::string> applicationName(const std::string& /*bundleID*/) const override {
        return std::nullopt;
    }

    std::optional<std::int32_t> frontmost = otherApplication;
    std::string bundleID;
    bool active = false;
};

class Permissions final : public tactora::Permissions {
  public:
    bool accessibilityTrusted() const override { return true; }
    bool inputMonitoringGranted() const override { return true; }
    void requestAccessibility() override {}
    void requestInputMonitoring() override {}
};

// Posts nothing; the Dock always answers success.
class EventPoster final : public tactora::EventPoster {
  public:
    void post(const MouseButtonEvent& /*event*/) override {}
    void post(const KeyEvent& /*event*/) override {}
    std::int32_t sendDockNotification(bool /*showDesktop*/) override { return 0; }
};

class EventTap final : public tactora::EventTap {
  public:
    bool create(std::uint64_t /*mask*/) override {
        created_ = true;
        return true;
    }
    bool exists() const override { return created_; }
    void setEnabled(bool /*enabled*/) override {}

  private:
    bool created_ = false;
};

// Ready at once; frames come from the trace, not from a callback.
class Sensor final : public tactora::Sensor {
  public:
    bool start(FrameCallback /*callback*/) override { return true; }
    void stop() override {}
    std::string status() const override { return "sensor.connected"; }
    std::int32_t statusError() const override { return 0; }
    std::uint64_t connectedDevice() const override { return 0; }
    bool isMouseSender(std::uint64_t senderID) override { return senderID == mouseSender; }
};

class AppShell final : public tactora::AppShell {
  public:
    LaunchOrigin launchOrigin() const override { return LaunchOrigin::user; }
    void setRegularActivationPolicy() override {}
    void setAccessoryActivationPolicy() override {}
    void applyApplicationIcon() override {}
    void buildMainMenu(const std::vector<MenuEntry>& /*items*/) override {}
    void addMainMenu(const std::string& /*title*/,
                     const std::vector<MenuEntry>& /*items*/) override {}
    void buildWindow(const SettingsWindowTexts& /*texts*/) override {}
    void createStatusItem() override {}
    void buildStatusMenu(const std::vector<MenuEntry>& /*items*/) override {}
    void showWindow() override {}
};

// Keeps the switch, the profile choice and the action pop-ups; drops every text.
class SettingsView final : public tactora::SettingsView {
  public:
    void setStatusText(const std::string& /*text*/) override {}
    void setPermissionText(const std::string& /*text*/) override {}
    void setLiveText(const std::string& /*text*/) override {}
    bool isEnabledOn() const override { return enabled; }
    void setEnabledOn(bool on) override { enabled = on; }
    bool isKeepOnChecked() const override { return false; }
    void setKeepOnChecked(bool /*on*/) override {}
    bool isLoginItemChecked() const override { return false; }
    void setLoginItemChecked(bool /*on*/) override {}
    void setResetPermissionsVisible(bool /*visible*/) override {}
    void setLoginItemsSettingsVisible(bool /*visible*/) override {}
    void setProfileItems(const std::vector<ProfileMenuItem>& /*items*/) override {}
    void selectProfileItem(std::size_t /*index*/) override {}
    std::optional<std::string> selectedProfileID() const override { return profileChoice; }
    void setDeleteProfileEnabled(bool /*enabled*/) override {}
    void showApplications(const ApplicationsSheet& /*sheet*/) override {}
    void selectAction(std::size_t slot, std::int64_t action) override { actions.at(slot) = action; }
    std::int64_t selectedAction(std::size_t slot) const override { return actions.at(slot); }
    void setRecordButton(std::size_t /*slot*/, const RecordButtonState& /*state*/) override {}
    void setStatusItem(const StatusItemAppearance& /*appearance*/) override {}

    bool enabled = false;
    std::optional<std::string> profileChoice;
    std::array<std::int64_t, 8> actions{};
};

// No dialog is ever answered: both are cancelled.
class Dialogs final : public tactora::Dialogs {
  public:
    bool runRecordingDialog(const RecordingDialogTexts& /*texts*/,
                            const RecordingKeyHandler& /*onKey*/) override {
        return false;
    }
    std::optional<std::string> runNamingDialog(const NamingDialogTexts& /*texts*/) override {
        return std::nullopt;
    }
    bool runConfirmation(const ConfirmationTexts& /*texts*/) override { return false; }
    void showMessage(const MessageTexts& /*texts*/) override {}
};

// Nothing is drawn: the window is never on screen.
class SurfaceView final : public tactora::SurfaceView {
  public:
    void observeVisibility(std::function<void(bool visible)> /*handler*/) override {}
    void show(const SurfaceSnapshot& /*snapshot*/) override {}
};

// No file is chosen, read or written.
class ProfileFiles final : public tactora::ProfileFiles {
  public:
    void chooseExportPath(const std::string& /*suggestedName*/, const std::string& /*message*/,
                          PathChosen chosen) override {
        chosen(std::nullopt);
    }
    void chooseImportPath(const std::string& /*message*/, PathChosen chosen) override {
        chosen(std::nullopt);
    }
    std::optional<std::string> read(const std::string& /*path*/, std::size_t /*limit*/) override {
        return std::nullopt;
    }
    bool write(const std::string& /*path*/, const std::string& /*bytes*/) override { return false; }
};

// The mouse stays as the trace found it: no device comes or goes.
class DeviceWatcher final : public tactora::DeviceWatcher {
  public:
    bool watch(Change /*arrived*/, Change /*left*/) override { return false; }
};

// The touch devices beside the Magic Mouse that the trace declares, each in use while the
// gestures' choice accepts it. Their frames reach the gestures from the replay itself, on its
// one thread, so the sensor's callback is never called; no device comes or goes by itself.
class TouchDevices final : public tactora::TouchDevices {
  public:
    static std::uint64_t senderOf(std::uint64_t device) { return firstDeviceSender + device; }

    void useOthers(DeviceFrameCallback /*callback*/, Choice choose) override {
        choose_ = std::move(choose);
    }
    bool refresh() override {
        bool changed = false;
        for (TouchDevice& device : listed_) {
            const TouchDeviceState wanted =
                choose_ && choose_(device) ? TouchDeviceState::connected : TouchDeviceState::off;
            changed = changed || wanted != device.state;
            device.state = wanted;
        }
        return changed;
    }
    std::vector<TouchDevice> devices() const override { return listed_; }
    std::uint64_t deviceForSender(std::uint64_t senderID) override {
        const auto found = std::ranges::find_if(listed_, [senderID](const TouchDevice& device) {
            return senderOf(device.id) == senderID;
        });
        return found != listed_.end() && found->state == TouchDeviceState::connected ? found->id
                                                                                     : 0;
    }
    bool watch(std::function<void()> /*changed*/) override { return false; }

    // Lists `device`, or describes it anew when it is listed; off until the next refresh().
    void declare(TouchDevice device) {
        device.state = TouchDeviceState::off;
        const auto found = std::ranges::find(listed_, device.id, &TouchDevice::id);
        if (found == listed_.end()) {
            listed_.push_back(std::move(device));
        } else {
            *found = std::move(device);
        }
    }
    std::optional<TouchDevice> find(std::uint64_t id) const {
        const auto found = std::ranges::find(listed_, id, &TouchDevice::id);
        return found == listed_.end() ? std::nullopt : std::optional<TouchDevice>(*found);
    }
    bool inUse(std::uint64_t id) const {
        const std::optional<TouchDevice> device = find(id);
        return device && device->state == TouchDeviceState::connected;
    }

  private:
    Choice choose_;
    std::vector<TouchDevice> listed_;
};

class LoginItem final : public tactora::LoginItem {
  public:
    LoginItemStatus status() const override { return LoginItemStatus::notRegistered; }
    std::int64_t registerItem() override { return 0; }
    std::int64_t unregisterItem() override { return 0; }
    void openLoginItemsSettings() override {}
};

class ProcessActivity final : public tactora::ProcessActivity {
  public:
    void begin() override {}
    void end() override {}
};

class SecureInput final : public tactora::SecureInput {
  public:
    bool enabled() const override { return false; }
};

class PermissionResetTool final : public tactora::PermissionResetTool {
  public:
    std::optional<std::string> bundleIdentifier() const override { return std::nullopt; }
    void run(const std::vector<std::string>& /*arguments*/, double /*timeLimit*/,
             Done /*done*/) override {}
};

// A replay has no pointer to drag.
class PointerDragger final : public tactora::PointerDragger {
  public:
    void setDragging(std::optional<MouseButton> /*button*/) override {}
};

// A replay records nothing.
class TraceSink final : public tactora::TraceSink {
  public:
    TraceSinkStart begin() override { return {}; }
    void write(std::string /*text*/) override {}
    void end() override {}
};

// A mouse event of the trace as the event tap would hand it over.
class TapEvent final : public tactora::TapEvent {
  public:
    TapEvent(std::int64_t button, bool fromMouse) {
        fields_.at(event::buttonNumber) = button;
        fields_.at(event::senderID) =
            static_cast<std::int64_t>(fromMouse ? mouseSender : otherSender);
        fields_.at(event::clickState) = 1;
    }

    std::int64_t integerField(EventField field) const override {
        return field < fields_.size() ? fields_.at(field) : 0;
    }
    void setIntegerField(EventField field, std::int64_t value) override {
        if (field < fields_.size()) {
            fields_.at(field) = value;
        }
    }
    void setType(EventType /*type*/) override {}
    void setFlags(std::uint64_t /*flags*/) override {}

  private:
    std::array<std::int64_t, 128> fields_{};
};

}  // namespace tactora::replay
