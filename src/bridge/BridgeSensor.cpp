#include "bridge/BridgeSensor.h"

#include "bridge/TouchBridge.h"

namespace tactora {

bool BridgeSensor::start(FrameCallback callback) {
    return TAStart(callback) != 0;
}

void BridgeSensor::stop() {
    TAStop();
}

std::string BridgeSensor::status() const {
    return TAStatus();
}

std::int32_t BridgeSensor::statusError() const {
    return TAStatusError();
}

std::uint64_t BridgeSensor::connectedDevice() const {
    return TAConnectedDevice();
}

bool BridgeSensor::isMouseSender(std::uint64_t senderID) {
    return TAIsMouseSender(senderID);
}

}  // namespace tactora
