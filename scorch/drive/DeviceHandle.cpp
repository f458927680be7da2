// SPDX-License-Identifier: GPL-2.0-or-later
#include "scorch/drive/DeviceHandle.h"

#include <utility>

namespace scorch {

DeviceHandle::DeviceHandle(std::shared_ptr<DriveRegistry> registry,
                           std::shared_ptr<DeviceWatch> watch)
    : registry_(std::move(registry)), watch_(std::move(watch)) {}

DeviceHandle::~DeviceHandle() {
    watch_->delegate.set(nullptr);
    registry_->forget(watch_.get());
}

std::shared_ptr<Drive> DeviceHandle::drive() const {
    return registry_->find(watch_->name);
}

DiscState DeviceHandle::disc() const {
    const std::shared_ptr<Drive> present = drive();
    return present != nullptr ? present->state().disc : DiscState();
}

std::string DeviceHandle::deviceName() const {
    return watch_->name;
}

void DeviceHandle::setDelegate(ScorcherDeviceDelegate *delegate) {
    registry_->setDelegate(*watch_, delegate);
}

bool DeviceHandle::cdBurnEnabled() const {
    const std::shared_ptr<Drive> present = drive();
    return present != nullptr && !present->state().canWriteCd;
}

bool DeviceHandle::isCheckingDisc() const {
    const std::shared_ptr<Drive> present = drive();
    return present != nullptr && present->state().checking;
}

bool DeviceHandle::isDiscInDevice() const {
    return disc().present;
}

bool DeviceHandle::isDiscBlank() const {
    return disc().blank;
}

bool DeviceHandle::isCDDisc() const {
    return disc().isCd;
}

std::int64_t DeviceHandle::freeTimeOfDisc() const {
    const DiscState state = disc();
    return state.blank && state.isCd ? state.freeSectors : 0;
}

std::int64_t DeviceHandle::freeSizeOfDisc() const {
    return freeTimeOfDisc() * static_cast<std::int64_t>(dataSectorBytes);
}

ScorcherDeviceDescription DeviceHandle::description() const {
    const std::shared_ptr<Drive> present = drive();
    return present != nullptr ? present->description() : ScorcherDeviceDescription();
}

void DeviceHandle::eject() {
    if (registry_->isTaken(watch_->name)) {
        return;
    }
    if (const std::shared_ptr<Drive> present = drive()) {
        present->eject();
    }
}

} // namespace scorch
